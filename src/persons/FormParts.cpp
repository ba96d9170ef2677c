// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/FormParts.h"

#include <QLabel>
#include <QPushButton>

#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace FormParts {

QLabel *MakeLabel(const QString &text, const char *role, QWidget *buddy) {
  auto *label = new QLabel(text);
  label->setProperty("role", role);
  label->setBuddy(buddy);
  return label;
}

QLabel *MakeHeading(const QString &text) {
  QLabel *label = MakeLabel(text, "head");
  ShellFonts().SetSubHeadFont(*label);
  return label;
}

QLabel *MakeFault(const QString &field) {
  QLabel *label = MakeLabel(QString(), "bad");
  label->setObjectName(QStringLiteral("fault_") + field);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);  // names stand in it, which may look like markup
  ShellFonts().SetSmallFont(*label);
  label->hide();
  return label;
}

QPushButton *MakeButton(const char *name, const QString &text, const QString &hint) {
  auto *button = new QPushButton(Skin::Picture(QLatin1String(name)), text);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(hint);
  button->setAccessibleName(QString(text).remove(u'&'));
  button->setAutoDefault(false);
  return button;
}

void Say(QLabel &label, const QString &sentence) {
  label.setText(sentence);
  label.setVisible(!sentence.isEmpty());
}

void Guard(const QWidget &screen, const std::function<void()> &work) {
  try {
    work();
  } catch (const Error &fault) {
    Notices::Show({Notice::Kind::Warning, screen.windowTitle(), fault.Sentence()});
  }
}

}  // namespace FormParts
