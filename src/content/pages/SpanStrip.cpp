// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/SpanStrip.h"

#include <QPainter>
#include <algorithm>

#include "content/Theme.h"

namespace {

constexpr int Side = 20;  // room for the captions at both ends
constexpr int Day = 24 * 60;
constexpr double BarHeight = 2.4, TallBar = 4 * BarHeight;  // in text heights

QColor GroundOf(SpanStrip::Tone tone) {
  const Theme &theme = Theme::Current();
  return tone == SpanStrip::Tone::Good ? theme.goodBack : tone == SpanStrip::Tone::Bad ? theme.badBack : theme.selection;
}

QColor InkOf(SpanStrip::Tone tone) {
  const Theme &theme = Theme::Current();
  return tone == SpanStrip::Tone::Good ? theme.good : tone == SpanStrip::Tone::Bad ? theme.bad : theme.chart.ink;
}

}  // namespace

SpanStrip::SpanStrip(QWidget *parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void SpanStrip::SetSpan(Span span) {
  shown = std::move(span);
  TellParts(*this);
  updateGeometry();
  update();
}

QString SpanStrip::ClockCaption(int minutes) {
  const int ofDay = minutes % Day;
  return QStringLiteral("%1:%2").arg(ofDay / 60).arg(ofDay % 60, 2, 10, QLatin1Char('0'));
}

std::vector<SpanStrip::Tick> SpanStrip::HourTicks(int fromMinutes, int toMinutes) {
  std::vector<Tick> ticks{{double(fromMinutes), ClockCaption(fromMinutes)}};
  for (int hour = fromMinutes / 60 + 1; hour * 60 < toMinutes; ++hour) ticks.push_back({hour * 60.0, ClockCaption(hour * 60)});
  ticks.push_back({double(toMinutes), ClockCaption(toMinutes)});
  return ticks;
}

// Names above the bar take two lines, so that neighbours never meet; captions and the moment take a line each below it.
QSize SpanStrip::sizeHint() const {
  const int text = fontMetrics().height();
  return {240, (shown.namesAbove ? 2 * text + 6 : 3) + qRound(text * BarHeight) + 2 * text + 10};
}

void SpanStrip::SetTall(bool tall) {
  if (tall == isTall) return;
  isTall = tall;
  setSizePolicy(QSizePolicy::Expanding, tall ? QSizePolicy::Expanding : QSizePolicy::Fixed);
  updateGeometry();
  update();
}

double SpanStrip::BarPixels() const {
  const int text = fontMetrics().height(), usual = qRound(text * BarHeight);
  return isTall ? std::clamp<double>(usual + height() - sizeHint().height(), usual, text * TallBar) : text * BarHeight;
}

double SpanStrip::At(double place) const { return Side + (place - shown.from) * (width() - 2 * Side) / (shown.to - shown.from); }

double SpanStrip::BarTop() const { return shown.namesAbove ? 2 * fontMetrics().height() + 6 : 3; }

QString SpanStrip::PartWords(int number) const {
  const Part &part = shown.parts[static_cast<size_t>(number)];
  QStringList words{part.name};
  if (part.tone != Tone::Plain) words << (part.tone == Tone::Good ? tr("good") : tr("bad"));
  if (shown.moment >= part.begin && shown.moment < part.end) words << shown.momentWord;
  return words.join(QStringLiteral(", "));
}

QRect SpanStrip::PartRoom(int number) const {
  const Part &part = shown.parts[static_cast<size_t>(number)];
  return QRectF(At(part.begin), BarTop(), At(part.end) - At(part.begin), BarPixels()).toRect();
}

QRectF SpanStrip::Write(QPainter &painter, double centre, double y, const QString &words) const {
  const QFontMetrics metrics(painter.font());
  const double wide = metrics.horizontalAdvance(words) + 2;
  const QRectF room(std::clamp(centre - wide / 2, 0.0, std::max(0.0, width() - wide)), y, wide, metrics.height());
  painter.drawText(room, Qt::AlignCenter, words);
  return room;
}

void SpanStrip::paintEvent(QPaintEvent *) {
  if (shown.to <= shown.from) return;
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int text = fontMetrics().height();
  const double top = BarTop();
  const double bar = BarPixels();
  if (shown.ground != Tone::Plain) {
    painter.setPen(QPen(theme.chart.line, 1));
    painter.setBrush(GroundOf(shown.ground));
    painter.drawRoundedRect(QRectF(At(shown.from), top, At(shown.to) - At(shown.from), bar), 5, 5);
  }
  PaintParts(painter, top);
  PaintTicks(painter, top + bar);
  if (shown.moment < shown.from || shown.moment > shown.to) return;
  painter.setPen(QPen(theme.chart.saffron, 3, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(At(shown.moment), top - 1), QPointF(At(shown.moment), top + bar + 1));
  painter.setPen(theme.chart.accent);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  Write(painter, At(shown.moment), top + bar + 5 + text, shown.momentWord);
}

void SpanStrip::PaintParts(QPainter &painter, double top) const {
  const int text = fontMetrics().height();
  const double bar = BarPixels();
  std::vector<Part> sorted = shown.parts;
  std::sort(sorted.begin(), sorted.end(), [](const Part &a, const Part &b) { return a.begin < b.begin; });
  double usedTo = -1;
  for (const Part &part : sorted) {
    const QRectF room(At(part.begin), top, At(part.end) - At(part.begin), bar);
    painter.setPen(QPen(Theme::Current().chart.card, 1.5));
    painter.setBrush(GroundOf(part.tone));
    painter.drawRoundedRect(room, 5, 5);
    painter.setPen(InkOf(part.tone));
    const bool tall = bar >= 3 * text;
    const double wide = fontMetrics().horizontalAdvance(part.name);
    const double widest = tall ? std::max<double>(wide, fontMetrics().horizontalAdvance(part.detail)) : wide;
    QRectF inside = room;
    // A name makes way for the line of the moment, to the wider side of it.
    if (shown.moment > part.begin && shown.moment < part.end && std::abs(At(shown.moment) - room.center().x()) < widest / 2 + 4) {
      if (At(shown.moment) > room.center().x())
        inside.setRight(At(shown.moment));
      else
        inside.setLeft(At(shown.moment));
    }
    const auto fits = [&](const QString &words) {
      return !words.isEmpty() && fontMetrics().horizontalAdvance(words) + 8 <= inside.width();
    };
    const bool withDetail = tall && fits(part.detail);
    const double middle = inside.center().y() - text / 2.0 - (withDetail ? text * 0.6 : 0);
    if (withDetail) Write(painter, inside.center().x(), middle + text * 1.2, part.detail);
    if (fits(part.name)) {
      Write(painter, inside.center().x(), middle, part.name);
    } else if (fits(part.brief)) {
      Write(painter, inside.center().x(), middle, part.brief);
    } else if (shown.namesAbove) {
      const bool meets = room.center().x() - wide / 2 < usedTo + 8;
      const QRectF written = Write(painter, room.center().x(), meets ? 0 : text + 2, part.name);
      if (!meets) usedTo = written.right();
    }
  }
}

void SpanStrip::PaintTicks(QPainter &painter, double y) const {
  if (shown.ticks.empty()) return;
  painter.setPen(Theme::Current().chart.muted);
  const double begins = Write(painter, At(shown.ticks.front().at), y + 3, shown.ticks.front().caption).right();
  const double ends = Write(painter, At(shown.ticks.back().at), y + 3, shown.ticks.back().caption).left();
  double used = begins + 10;
  for (const Tick &tick : shown.ticks) {
    const double half = fontMetrics().horizontalAdvance(tick.caption) / 2.0 + 1;
    if (At(tick.at) - half < used || At(tick.at) + half > ends - 10) continue;
    used = Write(painter, At(tick.at), y + 3, tick.caption).right() + 10;
  }
}
