// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ScoreLine.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "content/Theme.h"

namespace {

constexpr int Side = 9, Edge = 7;  // room for a marked point at the ends
constexpr int ScaleGap = 4;        // between the scale's figures and the line
constexpr double Dot = 2.2, MarkedDot = 4.5;
constexpr int DaysBetweenDates = 5;
constexpr double LeastPlot = 2, GoodPlot = 3;  // heights in text heights

}  // namespace

ScoreLine::ScoreLine(QWidget *parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

void ScoreLine::SetCourse(const QString &name, const QDate &firstDay, std::vector<double> scores, bool dates) {
  title = name;
  first = firstDay;
  values = std::move(scores);
  datesWritten = dates;
  marked = -1;
  setAccessibleName(tr("%1 over the next days").arg(title));
  setAccessibleDescription(values.empty() ? QString() : TellDay(0));
  TellParts(*this);
  updateGeometry();
  update();
}

QSize ScoreLine::sizeHint() const {
  const int text = fontMetrics().height();
  return {300, qRound(text * GoodPlot) + 2 * Edge + (datesWritten ? text + 2 : 0)};
}

QSize ScoreLine::minimumSizeHint() const {
  const int text = fontMetrics().height();
  return {220, qRound(text * LeastPlot) + 2 * Edge + (datesWritten ? text + 2 : 0)};
}

QRectF ScoreLine::Plot() const {
  const int below = datesWritten ? fontMetrics().height() + 2 : 0;
  const int scale = fontMetrics().horizontalAdvance(QStringLiteral("100")) + ScaleGap;
  return QRectF(rect()).adjusted(Side + scale, Edge, -Side, -Edge - below);
}

QPointF ScoreLine::PointOf(int day) const {
  const QRectF plot = Plot();
  const double share = LastDay() > 0 ? double(day) / LastDay() : 0;
  return {plot.left() + share * plot.width(), plot.bottom() - values[static_cast<size_t>(day)] / 100 * plot.height()};
}

QRect ScoreLine::PartRoom(int day) const {
  const QRectF plot = Plot();
  const double half = plot.width() / std::max(1, 2 * LastDay());
  return QRectF(PointOf(day).x() - half, plot.top(), 2 * half, plot.height()).toRect();
}

int ScoreLine::DayAt(double x) const {
  const QRectF plot = Plot();
  if (values.empty() || plot.width() <= 0) return -1;
  return std::clamp(static_cast<int>(std::lround((x - plot.left()) / plot.width() * LastDay())), 0, LastDay());
}

QString ScoreLine::TellDay(int day) const {
  return QStringLiteral("%1: %2").arg(QLocale::c().toString(first.addDays(day), QStringLiteral("dddd, d MMMM yyyy")),
                                      QString::number(qRound(values[static_cast<size_t>(day)])));
}

void ScoreLine::Mark(int day) {
  if (day == marked) return;
  marked = day;
  if (day < 0) {
    QToolTip::hideText();
  } else {
    setAccessibleDescription(TellDay(day));
    TellMarked(*this, day);
    QToolTip::showText(mapToGlobal(PointOf(day).toPoint()), title + QLatin1Char('\n') + TellDay(day), this);
  }
  update();
}

void ScoreLine::Choose(int day) {
  if (day >= 0) emit DayChosen(first.addDays(day));
}

void ScoreLine::mouseMoveEvent(QMouseEvent *event) { Mark(DayAt(event->position().x())); }

void ScoreLine::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Choose(DayAt(event->position().x()));
}

void ScoreLine::leaveEvent(QEvent *event) {
  QWidget::leaveEvent(event);
  Mark(-1);
}

void ScoreLine::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  if (marked < 0 && event->reason() != Qt::MouseFocusReason && !values.empty()) Mark(0);
}

void ScoreLine::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  Mark(-1);
}

void ScoreLine::keyPressEvent(QKeyEvent *event) {
  const int at = std::max(marked, 0);
  switch (values.empty() ? 0 : event->key()) {
    case Qt::Key_Left: Mark(std::max(at - 1, 0)); break;
    case Qt::Key_Right: Mark(marked < 0 ? 0 : std::min(at + 1, LastDay())); break;
    case Qt::Key_Home: Mark(0); break;
    case Qt::Key_End: Mark(LastDay()); break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: Choose(marked); break;
    default: QWidget::keyPressEvent(event);
  }
}

void ScoreLine::paintEvent(QPaintEvent *) {
  if (values.empty()) return;
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF plot = Plot();
  if (hasFocus()) {
    painter.setPen(QPen(theme.chart.saffron, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
  }
  for (const double share : {0.0, 0.5, 1.0})
    painter.fillRect(QRectF(plot.left(), std::round(plot.bottom() - share * plot.height()), plot.width(), 1), theme.chart.line);
  painter.setPen(theme.chart.muted);
  const int text = fontMetrics().height();
  for (const int mark : {100, 0}) {
    const double y = mark == 0 ? plot.bottom() : plot.top();
    painter.drawText(QRectF(0, y - text / 2.0, plot.left() - Side + ScaleGap, text), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(mark));
  }
  QPolygonF points;
  for (int day = 0; day <= LastDay(); ++day) points << PointOf(day);
  QPainterPath line;
  line.addPolygon(points);
  QPainterPath area = line;
  area.lineTo(plot.bottomRight());
  area.lineTo(plot.bottomLeft());
  QColor ground = theme.chart.gold;
  ground.setAlphaF(0.14f);
  painter.fillPath(area, ground);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(theme.chart.maroon, 1.6, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));  // the dots cover every corner
  painter.drawPath(line);
  QPainterPath dots;  // filled at once: thirty calls take several times as long
  for (const QPointF &point : points) dots.addEllipse(point, Dot, Dot);
  dots.setFillRule(Qt::WindingFill);
  painter.fillPath(dots, theme.chart.maroon);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme.chart.saffron);
  painter.drawEllipse(points.front(), Dot + 1.3, Dot + 1.3);
  if (marked >= 0) {
    painter.setPen(QPen(theme.chart.saffron, 1, Qt::DotLine));
    painter.drawLine(QPointF(points[marked].x(), plot.top()), QPointF(points[marked].x(), plot.bottom()));
    painter.setPen(QPen(theme.chart.card, 1.5));
    painter.drawEllipse(points[marked], MarkedDot, MarkedDot);
  }
  if (!datesWritten) return;
  painter.setPen(theme.chart.muted);
  const QFontMetrics metrics = fontMetrics();
  double used = -1;
  for (int day = 0; day <= LastDay(); day += DaysBetweenDates) {
    const QString date = QLocale::c().toString(first.addDays(day), QStringLiteral("d MMM"));
    const double wide = metrics.horizontalAdvance(date) + 2;
    const double x = std::clamp(points[day].x() - wide / 2, 0.0, std::max(0.0, width() - wide));
    if (x <= used) continue;
    painter.drawText(QRectF(x, height() - metrics.height() - 2, wide, metrics.height()), Qt::AlignCenter, date);
    used = x + wide + 4;
  }
}
