// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/Kundali.h"

#include <QAccessible>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

#include "chart/ChartPainter.h"
#include "chart/InputCodes.h"

namespace {

constexpr double FocusRoom = 4;  // around the drawing, so that the focus ring never lies on its border

}  // namespace

Kundali::Kundali(QWidget *parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent, false);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAccessibleName(tr("Chart"));
  model.SetHouseFont(font());
  model.SetPlanetFont(font());
  model.onChange = [this](const QString &property) { OnChange(property); };
  OnChange({});
}

void Kundali::OnChange(const QString &property) {
  if (property == QLatin1String("Enabled")) setEnabled(model.Enabled());
  const QString description = model.Description();
  if (description != accessibleDescription()) setAccessibleDescription(description);
  update();
  if (!property.isEmpty()) emit PropertyChanged(property);
  emit ChartChanged();
}

QRectF Kundali::ChartRect() const { return QRectF(rect()).adjusted(FocusRoom, FocusRoom, -FocusRoom, -FocusRoom); }

void Kundali::paintEvent(QPaintEvent *) {
  const ChartPalette skin = ChartPalette::For(palette());
  QPainter painter(this);
  if (!isEnabled()) painter.setOpacity(0.5);
  ChartPainter(skin).Paint(painter, model.Layout(), ChartRect());
  if (!focusShown) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(skin.saffron, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

void Kundali::resizeEvent(QResizeEvent *event) {
  model.LayoutChart();
  QWidget::resizeEvent(event);
}

void Kundali::changeEvent(QEvent *event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) update();
  if (event->type() == QEvent::LanguageChange) OnChange({});
  QWidget::changeEvent(event);
}

// A ring for those who walk by keyboard; a click shows where it fell by itself.
void Kundali::focusInEvent(QFocusEvent *event) {
  focusShown = event->reason() != Qt::MouseFocusReason;
  QWidget::focusInEvent(event);
  update();
}

void Kundali::focusOutEvent(QFocusEvent *event) {
  focusShown = false;
  QWidget::focusOutEvent(event);
  update();
}

// --- events -----------------------------------------------------------------------------------------------

void Kundali::keyPressEvent(QKeyEvent *event) {
  const QPointer<Kundali> self = this;
  const bool activates = !event->isAutoRepeat() && InputCodes::Activates(event->key());
  const QString text = event->text();
  emit KeyDown(event->key(), InputCodes::Shift(event->modifiers()));
  if (self && text.size() == 1 && text[0].unicode() < 256) emit KeyPress(text[0].unicode());
  if (self && activates) emit Click();
  if (self && !activates) QWidget::keyPressEvent(event);
}

void Kundali::keyReleaseEvent(QKeyEvent *event) {
  emit KeyUp(event->key(), InputCodes::Shift(event->modifiers()));
  event->ignore();
}

QPointF Kundali::ToChart(const QPointF &position) const {
  const QRectF area = ChartRect();
  return {(position.x() - area.left()) * ChartLayout::Side / area.width(), (position.y() - area.top()) * ChartLayout::Side / area.height()};
}

QRect Kundali::PartRoom(int cell) const {
  const QRectF area = ChartRect();
  const QRectF room = Layout().CellShape(cell).boundingRect();
  const double across = area.width() / ChartLayout::Side, down = area.height() / ChartLayout::Side;
  return QRectF(area.left() + room.left() * across, area.top() + room.top() * down, room.width() * across, room.height() * down).toRect();
}

// The cells are slanted: their rectangles overlap.
int Kundali::PartAt(const QPoint &point) const {
  for (int cell = 0; cell < PartCount(); ++cell)
    if (Layout().CellShape(cell).containsPoint(ToChart(point), Qt::OddEvenFill)) return cell;
  return -1;
}

bool Kundali::IsOverPart(const QPointF &position) const {
  const ChartLayout &layout = model.Layout();
  const auto holds = [&position](const ChartLayout::Text &text) { return text.visible && text.box.contains(position); };
  return layout.imgCenter.contains(position) || std::any_of(layout.lblPlanet.begin(), layout.lblPlanet.end(), holds) ||
         std::any_of(layout.lblHouseNo.begin(), layout.lblHouseNo.end(), holds);
}

void Kundali::mousePressEvent(QMouseEvent *event) {
  const QPointF at = ToChart(event->position());
  pressedInside = event->button() == Qt::LeftButton;
  emit MouseDown(InputCodes::Button(event->button()), InputCodes::Shift(event->modifiers()), static_cast<float>(at.x()),
                 static_cast<float>(at.y()));
}

void Kundali::mouseReleaseEvent(QMouseEvent *event) {
  const QPointF at = ToChart(event->position());
  const bool clicked = pressedInside && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton) pressedInside = false;
  const QPointer<Kundali> self = this;
  emit MouseUp(InputCodes::Button(event->button()), InputCodes::Shift(event->modifiers()), static_cast<float>(at.x()),
               static_cast<float>(at.y()));
  if (self && clicked) emit Click();
}

void Kundali::mouseMoveEvent(QMouseEvent *event) {
  const QPointF at = ToChart(event->position());
  if (IsOverPart(at)) return;
  emit MouseMove(InputCodes::Button(event->buttons()), InputCodes::Shift(event->modifiers()), static_cast<float>(at.x()),
                 static_cast<float>(at.y()));
}

void Kundali::mouseDoubleClickEvent(QMouseEvent *event) {
  pressedInside = false;
  if (!IsOverPart(ToChart(event->position()))) emit DblClick();
}
