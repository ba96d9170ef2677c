// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/MessageBoxes.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "content/Role.h"
#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"

namespace {

constexpr size_t MostInOneBox = 8;
constexpr int LeastWidth = 420;  // pixels
constexpr QSize PictureSize(40, 40);

struct Look {
  const char *picture;
  const char *word;
  QMessageBox::Icon fallback;
};

Look LookOf(Notice::Kind kind) {
  switch (kind) {
    case Notice::Kind::Critical: return {"msgStop", QT_TRANSLATE_NOOP("MessageBoxes", "Fault"), QMessageBox::Critical};
    case Notice::Kind::Warning: return {"msgWarning", QT_TRANSLATE_NOOP("MessageBoxes", "Warning"), QMessageBox::Warning};
    case Notice::Kind::Information: break;
  }
  return {"msgInfo", QT_TRANSLATE_NOOP("MessageBoxes", "Information"), QMessageBox::Information};
}

bool Same(const Notice &a, const Notice &b) { return a.kind == b.kind && a.title == b.title && a.text == b.text; }

void Dress(QMessageBox &box, const QString &title, const QString &text, const Look &look) {
  box.setWindowTitle(title.isEmpty() ? QApplication::applicationDisplayName() : title);
  box.setTextFormat(Qt::PlainText);  // texts hold paths and names, which may look like markup
  box.setText(text);
  const QPixmap picture = Skin::Pixmap(QLatin1String(look.picture), PictureSize, box.devicePixelRatioF());
  if (picture.isNull())
    box.setIcon(look.fallback);
  else
    box.setIconPixmap(picture);
  // Last, since a picture lays the box out anew. Wide enough for a path; a least width of the label itself would keep the box
  // from seeing that its text needs several lines.
  if (auto *grid = qobject_cast<QGridLayout *>(box.layout()))
    grid->addItem(new QSpacerItem(LeastWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  if (auto *shown = box.findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label")))
    shown->setAccessibleName(MessageBoxes::tr(look.word));
}

// After the buttons are there: each takes its font from the desktop otherwise.
void UseFonts(QMessageBox &box) {
  const QFont font = ShellFonts().NormalFont();
  box.setFont(font);
  for (QAbstractButton *button : box.buttons()) button->setFont(font);
}

void ShowBox(const Notice &notice) {
  QMessageBox box(QApplication::activeWindow());
  Dress(box, notice.title, notice.text, LookOf(notice.kind));
  SetRole(*box.addButton(QMessageBox::Ok), "primary");
  UseFonts(box);
  box.exec();
}

bool AskInBox(const QString &title, const QString &text) {
  QMessageBox box(QApplication::activeWindow());
  Dress(box, title, text, {"msgQuestion", QT_TRANSLATE_NOOP("MessageBoxes", "Question"), QMessageBox::Question});
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  UseFonts(box);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace

MessageBoxes::MessageBoxes(QObject *parent) : QObject(parent) {
  former = Notices::Install([this](const Notice &notice) { Show(notice); });
}

MessageBoxes::~MessageBoxes() { Notices::Install(std::move(former)); }

void MessageBoxes::Show(const Notice &notice) {
  const bool waits = std::any_of(waiting.begin(), waiting.end(), [&](const Notice &other) { return Same(other, notice); });
  if (waits || (isOpen && Same(open, notice))) return;
  waiting.push_back(notice);
  if (fills == 0) ShowWaiting();
}

void MessageBoxes::EndFill() {
  // Later, so that the page stands behind the box, and because a fill may end by an exception.
  if (--fills == 0 && !waiting.empty()) QMetaObject::invokeMethod(this, &MessageBoxes::ShowWaiting, Qt::QueuedConnection);
}

void MessageBoxes::ShowWaiting() {
  while (!isOpen && fills == 0 && !waiting.empty()) {
    open = TakeWaiting();
    isOpen = true;
    // The box runs an event loop: a fault that passes through it must not leave the queue shut.
    struct Reopen {
      bool &flag;
      ~Reopen() { flag = false; }
    } const reopen{isOpen};
    presenter ? presenter(open) : ShowBox(open);
  }
}

Notice MessageBoxes::TakeWaiting() {
  Notice all = waiting.front();
  const size_t listed = std::min(waiting.size(), MostInOneBox);
  for (size_t i = 1; i < listed; ++i) {
    all.kind = std::max(all.kind, waiting[i].kind);
    all.text += QStringLiteral("\n\n") + waiting[i].text;
  }
  for (size_t i = listed; i < waiting.size(); ++i) all.kind = std::max(all.kind, waiting[i].kind);
  if (waiting.size() > listed)
    all.text += QStringLiteral("\n\n") + tr("... and %n more.", nullptr, static_cast<int>(waiting.size() - listed));
  waiting.clear();
  return all;
}

bool MessageBoxes::Ask(const QString &title, const QString &text) { return asker ? asker(title, text) : AskInBox(title, text); }
