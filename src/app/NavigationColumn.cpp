// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/NavigationColumn.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QStyle>

#include "app/ElidedLabel.h"
#include "chart/ImageButton.h"
#include "content/Skin.h"
#include "content/Theme.h"

namespace {
constexpr int LeastForHints = 330;  // pixels of the column, from which each row also shows what it does
}

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
    Skin::Dress(*button, name);
    button->setText(entry.text);
    button->SetTextBeside(true);
    button->setAccessibleName(entry.text);
    button->setAccessibleDescription(entry.hint);
    button->SetToolTip(entry.hint);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setMinimumHeight(24);
    button->setMaximumHeight(56);
    auto *hint = new ElidedLabel(entry.hint, button);
    hint->setProperty("role", "caption");
    hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);  // a press on it is one on the button
    hint->hide();
    beside.insert(button, hint);
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
    const bool chosen = it.key() == QLatin1String(name);
    if (it.value()->property("chosen").toBool() == chosen) continue;
    it.value()->setProperty("chosen", chosen);
    it.value()->style()->unpolish(it.value());
    it.value()->style()->polish(it.value());
    ImageButton *button = buttons.value(it.key());
    button->setAccessibleDescription(chosen ? tr("On show. %1").arg(hints.value(button)) : hints.value(button));
    QFont font = button->font();
    font.setBold(chosen);
    button->setFont(font);
  }
}

void NavigationColumn::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  if (buttons.isEmpty()) return;
  const int room = height() / static_cast<int>(buttons.size());
  const int icon = room >= 44 ? 28 : room >= 29 ? 24 : 20;
  const double points = room >= 44 ? 12 : room >= 34 ? 11 : 10;
  for (ImageButton *button : buttons) {
    button->setIconSize(QSize(icon, icon));
    QFont font = button->font();
    font.setPointSizeF(points);
    button->setFont(font);
  }
  PlaceHints();
}

void NavigationColumn::PlaceHints() {
  for (auto it = beside.cbegin(); it != beside.cend(); ++it) {
    QFont bold = it.key()->font();
    bold.setBold(true);
    const int words = it.key()->iconSize().width() + 3 * Grid::Gap + QFontMetrics(bold).horizontalAdvance(it.key()->text());
    QFont small = font();
    small.setPointSizeF(9);
    it.value()->setFont(small);
    it.value()->setGeometry(words, 0, std::max(0, it.key()->width() - words - Grid::Gap), it.key()->height());
    it.value()->setVisible(width() >= LeastForHints);
  }
}

bool NavigationColumn::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Resize) PlaceHints();
  if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) emit Hint(hints.value(watched));
  if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) emit Hint({});
  return QWidget::eventFilter(watched, event);
}
