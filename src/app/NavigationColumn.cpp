// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/NavigationColumn.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QStyle>

#include "chart/ImageButton.h"
#include "content/Skin.h"

NavigationColumn::NavigationColumn(const QList<Entry> &entries, QWidget *parent) : QWidget(parent) {
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  for (const Entry &entry : entries) {
    const QString name = QLatin1String(entry.name);
    auto *row = new QFrame(this);
    row->setProperty("role", "navrow");
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins(14, 0, 8, 0);
    auto *button = new ImageButton(row);
    button->setObjectName(name);
    button->SetNormalPic(Skin::Picture(name));
    button->SetHoverPic(Skin::Picture(name, Skin::State::Hover));
    button->SetDownPic(Skin::Picture(name, Skin::State::Down));
    button->setText(entry.text);
    button->SetTextBeside(true);
    button->setAccessibleName(entry.text);
    button->setAccessibleDescription(entry.hint);
    button->SetToolTip(entry.hint);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setMinimumHeight(28);
    button->setMaximumHeight(42);
    button->installEventFilter(this);
    line->addWidget(button);
    column->addWidget(row);
    buttons.insert(name, button);
    rows.insert(name, row);
    hints.insert(button, entry.hint);
    connect(button, &QAbstractButton::clicked, this, [this, name] { emit Pressed(name); });
  }
}

void NavigationColumn::Mark(const char *name) {
  for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
    it.value()->setProperty("chosen", it.key() == QLatin1String(name));
    it.value()->style()->unpolish(it.value());
    it.value()->style()->polish(it.value());
  }
}

bool NavigationColumn::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) emit Hint(hints.value(watched));
  if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) emit Hint({});
  return QWidget::eventFilter(watched, event);
}
