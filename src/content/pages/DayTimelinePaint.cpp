// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DayTimelinePaint.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

// In text heights.
constexpr double BarHeight = 1.7, LaneGap = 0.75, ApartGap = 0.5, LevelGap = 0.2, NowHeight = 1.4, HoursHeight = 1.6;

using Tone = ExactDayPage::Tone;

QColor InkOf(Tone tone, const PaintInks &inks) {
  return tone == Tone::Good    ? inks.good
         : tone == Tone::Bad   ? inks.bad
         : tone == Tone::Light ? inks.gold
         : tone == Tone::Note  ? inks.muted
                               : inks.maroon;
}

}  // namespace

DayTimelinePaint::DayTimelinePaint(const ExactDayPage &dayPage, const QFont &textFont, QPaintDevice *paintDevice)
    : page(dayPage), font(textFont), bold(textFont), small(textFont), device(paintDevice) {
  font.setBold(false);
  bold.setBold(true);
  small.setBold(true);
  small.setPointSizeF(font.pointSizeF() * 0.88);
  const QFontMetricsF metrics(bold, device);
  text = QFontMetricsF(font, device).height();
  for (const ExactDayPage::Lane &lane : page.lanes) headWidth = std::max(headWidth, metrics.horizontalAdvance(lane.head));
  headWidth += text;
}

double DayTimelinePaint::MinimumWidth() const { return headWidth + 18 * text; }

double DayTimelinePaint::LaneTop(size_t lane) const {
  double top = NowHeight + LaneGap / 2;
  for (size_t n = 0; n < lane; ++n)
    top += page.lanes[n].levels * (BarHeight + LevelGap) - LevelGap + LaneGap + (page.lanes[n + 1].apart ? ApartGap : 0);
  return top * text;
}

double DayTimelinePaint::Height() const {
  if (page.lanes.empty()) return 0;
  const size_t last = page.lanes.size() - 1;
  return LaneTop(last) + (page.lanes[last].levels * (BarHeight + LevelGap) - LevelGap + LaneGap / 2 + HoursHeight) * text;
}

QRectF DayTimelinePaint::Scale(const QRectF &room) const {
  const double left = room.left() + headWidth, top = room.top() + NowHeight * text;
  return QRectF(left, top, std::max(1.0, room.right() - left - text * 0.2), Height() - (NowHeight + HoursHeight) * text);
}

QRectF DayTimelinePaint::BarRect(const QRectF &scale, const QRectF &room, size_t lane, const ExactDayPage::Bar &bar) const {
  const double perMinute = scale.width() / page.minutes;
  const double top = room.top() + LaneTop(lane) + bar.level * (BarHeight + LevelGap) * text;
  const double left = scale.left() + bar.begins * perMinute, right = scale.left() + bar.ends * perMinute;
  const double gap = text * 0.06;  // that neighbours are told apart
  return QRectF(left + gap / 2, top, std::max(1.0, right - left - gap), BarHeight * text);
}

const ExactDayPage::Bar *DayTimelinePaint::BarAt(const QRectF &room, const QPointF &point) const {
  const QRectF scale = Scale(room);
  for (size_t lane = 0; lane < page.lanes.size(); ++lane)
    for (const ExactDayPage::Bar &bar : page.lanes[lane].bars)
      if (BarRect(scale, room, lane, bar).contains(point)) return &bar;
  return nullptr;
}

void DayTimelinePaint::Paint(QPainter &painter, const QRectF &room, const PaintInks &inks) const {
  if (page.lanes.empty() || page.minutes <= 0) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF scale = Scale(room);
  PaintGround(painter, scale, inks);
  PaintHours(painter, scale, inks);
  for (size_t lane = 0; lane < page.lanes.size(); ++lane) {
    painter.setFont(bold);
    painter.setPen(inks.ink);
    painter.drawText(QRectF(room.left(), room.top() + LaneTop(lane), headWidth, BarHeight * text), Qt::AlignLeft | Qt::AlignVCenter,
                     page.lanes[lane].head);
    for (const ExactDayPage::Bar &bar : page.lanes[lane].bars) PaintBar(painter, BarRect(scale, room, lane, bar), bar, inks);
  }
  PaintNow(painter, scale, inks);
  painter.setFont(small);
  for (size_t lane = 0; lane < page.lanes.size(); ++lane)
    for (const ExactDayPage::Bar &bar : page.lanes[lane].bars)
      PaintCaption(painter, BarRect(scale, room, lane, bar), NowAt(scale), bar, inks);
  painter.restore();
}

void DayTimelinePaint::PaintGround(QPainter &painter, const QRectF &scale, const PaintInks &inks) const {
  const double sunset = scale.left() + scale.width() * page.dayEnds / page.minutes;
  painter.fillRect(QRectF(scale.left(), scale.top(), sunset - scale.left(), scale.height()), inks.day);
  painter.fillRect(QRectF(sunset, scale.top(), scale.right() - sunset, scale.height()), inks.night);
}

void DayTimelinePaint::PaintHours(QPainter &painter, const QRectF &scale, const PaintInks &inks) const {
  painter.setFont(font);
  const double perMinute = scale.width() / page.minutes;
  const double wide = QFontMetricsF(font, device).horizontalAdvance(QStringLiteral("00:00")) * 1.4;
  size_t step = 1;
  while (step < 8 && step * 60 * perMinute < wide) step *= 2;
  for (size_t n = 0; n < page.hours.size(); n += step) {
    const double x = scale.left() + page.hours[n].at * perMinute;
    painter.setPen(QPen(inks.line, text * 0.05));
    painter.drawLine(QPointF(x, scale.top()), QPointF(x, scale.bottom()));
    if (x + wide / 2 > scale.right() + text) continue;
    painter.setPen(inks.muted);
    painter.drawText(QRectF(x - wide, scale.bottom(), 2 * wide, HoursHeight * text), Qt::AlignCenter, page.hours[n].caption);
  }
}

void DayTimelinePaint::PaintBar(QPainter &painter, const QRectF &at, const ExactDayPage::Bar &bar, const PaintInks &inks) const {
  if (bar.tone == Tone::Note) return;
  painter.setPen(QPen(InkOf(bar.tone, inks), text * 0.07));
  painter.setBrush(bar.tone == Tone::Good ? inks.goodBack : bar.tone == Tone::Bad ? inks.badBack : inks.card);
  const double inset = text * 0.035, round = std::min(text * 0.3, at.width() / 3);
  painter.drawRoundedRect(at.adjusted(inset, inset, -inset, -inset), round, round);
}

// The longest caption that fits: in the middle of the bar, or where the line of the moment would cross it, on the wider side of that.
void DayTimelinePaint::PaintCaption(QPainter &painter, const QRectF &at, double now, const ExactDayPage::Bar &bar,
                                    const PaintInks &inks) const {
  const QFontMetricsF metrics(small, device);
  painter.setPen(bar.tone == Tone::Light ? inks.ink : InkOf(bar.tone, inks));
  for (const QString &caption : bar.captions) {
    const double wide = metrics.horizontalAdvance(caption), edge = text * 0.1;
    if (wide + 2 * edge > at.width()) continue;
    QRectF place = at;
    if (std::abs(now - at.center().x()) < wide / 2 + edge) {
      if (now - at.left() > at.right() - now)
        place.setRight(now);
      else
        place.setLeft(now);
      if (wide + edge > place.width()) place = at;
    }
    painter.drawText(place, Qt::AlignCenter, caption);
    return;
  }
}

double DayTimelinePaint::NowAt(const QRectF &scale) const {
  return page.now < 0 ? scale.left() - scale.width() : scale.left() + scale.width() * page.now / page.minutes;
}

void DayTimelinePaint::PaintNow(QPainter &painter, const QRectF &scale, const PaintInks &inks) const {
  if (page.now < 0) return;
  const double x = NowAt(scale);
  painter.setPen(QPen(inks.saffron, text * 0.12));
  painter.drawLine(QPointF(x, scale.top()), QPointF(x, scale.bottom()));
  const double wide = QFontMetricsF(small, device).horizontalAdvance(page.nowCaption) + text;
  const double left = std::clamp(x - wide / 2, scale.left(), std::max(scale.left(), scale.right() - wide));
  const QRectF pill(left, scale.top() - (NowHeight - 0.1) * text, wide, (NowHeight - 0.1) * text);
  painter.setPen(Qt::NoPen);
  painter.setBrush(inks.saffron);
  painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
  painter.setFont(small);
  painter.setPen(inks.card);
  painter.drawText(pill, Qt::AlignCenter, page.nowCaption);
}
