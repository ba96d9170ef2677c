// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/SideBySide.h"

#include <algorithm>

#include "content/Theme.h"

SideBySide::SideBySide(QWidget *first, QWidget *second, QWidget *parent)
    : QWidget(parent), left(first), right(second), layout(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap * 2);
  layout->addWidget(left);
  layout->addWidget(right);
  SetStretch(1, 1);
}

void SideBySide::SetStretch(int first, int second) {
  layout->setStretch(0, first);
  layout->setStretch(1, second);
}

// The width that the page cannot do without is that of the stacked halves, whichever way they stand now.
QSize SideBySide::minimumSizeHint() const {
  return {std::max(left->minimumSizeHint().width(), right->minimumSizeHint().width()), layout->minimumSize().height()};
}

void SideBySide::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  const int halves = layout->stretch(0) + layout->stretch(1);
  const int room = width() - layout->spacing();
  const bool fits = room * layout->stretch(0) / halves >= left->minimumSizeHint().width() &&
                    room * layout->stretch(1) / halves >= right->minimumSizeHint().width();
  const QBoxLayout::Direction wanted = fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (layout->direction() == wanted) return;
  layout->setDirection(wanted);
  updateGeometry();
}
