// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/DropDown.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "content/Theme.h"

DropDown::DropDown(QWidget *parent) : QDialog(parent, Qt::Popup) { setSizeGripEnabled(false); }

void DropDown::OpenBelow(const QWidget &anchor) {
  adjustSize();
  const QPoint above = anchor.mapToGlobal(QPoint(0, 0));
  QPoint topLeft = above + QPoint(0, anchor.height() + Grid::Gap / 2);
  const QScreen *display = QGuiApplication::screenAt(above);
  if (display && topLeft.y() + height() > display->availableGeometry().bottom() &&
      above.y() - height() >= display->availableGeometry().top())
    topLeft.setY(above.y() - height());
  OpenAt(topLeft);
}

void DropDown::OpenAt(const QPoint &topLeft) {
  adjustSize();
  const QScreen *display = QGuiApplication::screenAt(topLeft);
  if (!display) display = QGuiApplication::primaryScreen();
  const QRect room = display->availableGeometry();
  resize(size().boundedTo(room.size()));
  move(std::clamp(topLeft.x(), room.left(), std::max(room.left(), room.right() + 1 - width())),
       std::clamp(topLeft.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
  show();
  activateWindow();
}

void DropDown::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setPen(Theme::Current().chart.line);
  painter.setBrush(Theme::Current().chart.card);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
