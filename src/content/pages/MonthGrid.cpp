// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/MonthGrid.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr int LeastWidth = 280;  // pixels

}  // namespace

MonthGrid::MonthGrid(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picMonth"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MonthGrid::SetPage(const MonthPage &monthPage) {
  drawing.reset();
  page = monthPage;
  const auto today = std::find_if(page.cells.begin(), page.cells.end(), [](const MonthPage::Cell &cell) { return cell.isToday; });
  chosen = today == page.cells.end() ? 0 : static_cast<int>(today - page.cells.begin());
  setAccessibleName(page.title);
  TellParts(*this);
  Choose(chosen);
  setMinimumHeight(NeededHeight());
}

QDate MonthGrid::Chosen() const {
  return chosen >= 0 && chosen < static_cast<int>(page.cells.size()) ? page.cells[static_cast<size_t>(chosen)].date : QDate();
}

int MonthGrid::NeededHeight() const { return static_cast<int>(std::ceil(Drawing().Height())); }

const MonthPaint &MonthGrid::Drawing() const {
  const int wide = std::max(width(), LeastWidth);
  if (!drawing || wide != drawingWidth || devicePixelRatioF() != drawingScale) {
    drawing = std::make_unique<MonthPaint>(page, font(), const_cast<MonthGrid *>(this), wide);
    drawingWidth = wide;
    drawingScale = devicePixelRatioF();
  }
  return *drawing;
}

QSize MonthGrid::sizeHint() const { return {700, NeededHeight()}; }
QSize MonthGrid::minimumSizeHint() const { return {LeastWidth, 200}; }

void MonthGrid::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  Drawing().Paint(painter, rect(), PaintInks::Screen(), hasFocus() ? chosen : -1);
}

void MonthGrid::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  setMinimumHeight(NeededHeight());
}

void MonthGrid::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  drawing.reset();
  setMinimumHeight(NeededHeight());
}

void MonthGrid::Choose(int index) {
  if (page.cells.empty()) return;
  chosen = std::clamp(index, 0, static_cast<int>(page.cells.size()) - 1);
  const QString &spoken = page.cells[static_cast<size_t>(chosen)].spoken;
  setAccessibleDescription(spoken);
  setToolTip(spoken);
  TellMarked(*this, chosen);
  update();
}

QRect MonthGrid::PartRoom(int day) const { return Drawing().Cells(rect())[static_cast<size_t>(day)].toRect(); }

void MonthGrid::PressPart(int day) {
  Choose(day);
  Open();
}

void MonthGrid::Open() {
  if (Chosen().isValid()) emit DayChosen(Chosen());
}

void MonthGrid::keyPressEvent(QKeyEvent *event) {
  const int last = static_cast<int>(page.cells.size()) - 1;
  int wanted = chosen;
  switch (event->key()) {
    case Qt::Key_Left: --wanted; break;
    case Qt::Key_Right: ++wanted; break;
    case Qt::Key_Up: wanted -= 7; break;
    case Qt::Key_Down: wanted += 7; break;
    case Qt::Key_Home: wanted = 0; break;
    case Qt::Key_End: wanted = last; break;
    case Qt::Key_PageUp: emit MonthWanted(-1); return;
    case Qt::Key_PageDown: emit MonthWanted(1); return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: Open(); return;
    default: QWidget::keyPressEvent(event); return;
  }
  if (wanted < 0 || wanted > last)
    emit MonthWanted(wanted < 0 ? -1 : 1);
  else
    Choose(wanted);
}

void MonthGrid::mousePressEvent(QMouseEvent *event) {
  const int index = Drawing().CellAt(rect(), event->position());
  if (index >= 0) Choose(index);
}

void MonthGrid::mouseDoubleClickEvent(QMouseEvent *event) {
  if (Drawing().CellAt(rect(), event->position()) >= 0) Open();
}

void MonthGrid::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  update();
}

void MonthGrid::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update();
}
