// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/MonthPaint.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "content/SetFonts.h"

namespace {

constexpr int Columns = 7;
constexpr double Padding = 0.35;    // of a cell, in text heights
constexpr double DateHeight = 1.3;  // the line of the date and of the Sun
constexpr double LargestPoints = 12, SmallestPoints = 4.5, StepPoints = 0.25;
constexpr double SmallestWordPoints = 7;

}  // namespace

MonthPaint::MonthPaint(const MonthPage &monthPage, const QFont &textFont, QPaintDevice *paintDevice, double roomWidth)
    : page(monthPage), font(textFont), bold(textFont), date(textFont), columnWidth(roomWidth / Columns), device(paintDevice) {
  double points = textFont.pointSizeF() * 0.9;
  SetPoints(points);
  while (points > SmallestWordPoints && LongestWord() > columnWidth - 2 * Padding * text) SetPoints(points -= StepPoints);
}

void MonthPaint::SetPoints(double points) {
  font.setBold(false);
  font.setPointSizeF(points);
  bold = font;
  bold.setBold(true);
  date = bold;
  date.setPointSizeF(points * 1.15);
  text = QFontMetricsF(font, device).height();
}

double MonthPaint::LongestWord() const {
  const QFontMetricsF metrics(bold, device);
  double longest = 0;
  for (const MonthPage::Cell &cell : page.cells)
    for (const QString &words : {cell.tithi, cell.nakshatra, cell.marks.join(QLatin1Char(' '))})
      for (const QString &word : words.split(QLatin1Char(' '))) longest = std::max(longest, metrics.horizontalAdvance(word));
  return longest;
}

double MonthPaint::WrappedHeight(const QFont &with, const QString &words, double width) const {
  return QFontMetricsF(with, device).boundingRect(QRectF(0, 0, width, 1e6), Qt::TextWordWrap, words).height();
}

// The Sun stands beside the date where both fit, otherwise below it.
double MonthPaint::CellNeed(const MonthPage::Cell &cell) const {
  const double width = columnWidth - 2 * Padding * text;
  double need = (2 * Padding + DateHeight) * text;
  if (QFontMetricsF(font, device).horizontalAdvance(cell.sun) > width - 1.8 * text) need += WrappedHeight(font, cell.sun, width);
  need += WrappedHeight(bold, cell.tithi, width) + WrappedHeight(font, cell.nakshatra, width);
  for (const QString &mark : cell.marks) need += WrappedHeight(bold, mark, width);
  return need;
}

double MonthPaint::WeekNeed(int week) const {
  weekNeeds.resize(static_cast<size_t>(page.Weeks()), 0);
  double &need = weekNeeds.at(static_cast<size_t>(week));
  if (need > 0) return need;
  need = 4 * text;
  for (int column = 0; column < Columns; ++column) {
    const int index = week * Columns + column - page.firstColumn;
    if (index >= 0 && index < static_cast<int>(page.cells.size())) need = std::max(need, CellNeed(page.cells[static_cast<size_t>(index)]));
  }
  return need;
}

double MonthPaint::Height() const {
  double height = HeadHeight();
  for (int week = 0; week < page.Weeks(); ++week) height += WeekNeed(week);
  return height;
}

std::vector<QRectF> MonthPaint::Cells(const QRectF &room) const {
  std::vector<QRectF> cells;
  const double wide = room.width() / Columns;
  const double spare = std::max(0.0, room.height() - Height()) / std::max(1, page.Weeks());
  double top = room.top() + HeadHeight();
  for (int week = 0; week < page.Weeks(); ++week) {
    const double high = WeekNeed(week) + spare;
    for (int column = 0; column < Columns; ++column) {
      const int index = week * Columns + column - page.firstColumn;
      if (index >= 0 && index < static_cast<int>(page.cells.size())) cells.emplace_back(room.left() + column * wide, top, wide, high);
    }
    top += high;
  }
  return cells;
}

int MonthPaint::CellAt(const QRectF &room, const QPointF &point) const {
  const std::vector<QRectF> cells = Cells(room);
  const auto found = std::find_if(cells.begin(), cells.end(), [&](const QRectF &cell) { return cell.contains(point); });
  return found == cells.end() ? -1 : static_cast<int>(found - cells.begin());
}

void MonthPaint::Paint(QPainter &painter, const QRectF &room, const PaintInks &inks, int chosen) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double wide = room.width() / Columns;
  painter.setFont(bold);
  painter.setPen(inks.muted);
  const QFontMetricsF metrics(bold, device);
  for (int column = 0; column < page.weekdays.size(); ++column) {
    const QString &name = page.weekdays[column];
    const bool fits = metrics.horizontalAdvance(name) + text <= wide;
    painter.drawText(QRectF(room.left() + column * wide, room.top(), wide, HeadHeight()), Qt::AlignCenter, fits ? name : name.left(3));
  }
  const std::vector<QRectF> cells = Cells(room);
  for (size_t n = 0; n < cells.size(); ++n) {
    const QRectF at = cells[n].adjusted(text * 0.08, text * 0.08, -text * 0.08, -text * 0.08);
    const MonthPage::Cell &cell = page.cells[n];
    const bool isChosen = static_cast<int>(n) == chosen;
    painter.setPen(QPen(cell.isToday || isChosen ? inks.saffron : inks.line, text * (isChosen ? 0.18 : cell.isToday ? 0.12 : 0.06)));
    painter.setBrush(cell.isToday ? inks.day : inks.card);
    painter.drawRoundedRect(at, text * 0.35, text * 0.35);
    if (isChosen && cell.isToday) {
      // The frame of today is there without the focus too.
      painter.setBrush(Qt::NoBrush);
      painter.drawRoundedRect(at.adjusted(text * 0.3, text * 0.3, -text * 0.3, -text * 0.3), text * 0.2, text * 0.2);
    }
    PaintCell(painter, cells[n], cell, inks);
  }
  painter.restore();
}

void MonthPaint::PaintCell(QPainter &painter, const QRectF &at, const MonthPage::Cell &cell, const PaintInks &inks) const {
  const double pad = Padding * text, width = at.width() - 2 * pad, left = at.left() + pad;
  double y = at.top() + pad;
  painter.setFont(date);
  painter.setPen(cell.isToday ? inks.accent : inks.ink);
  painter.drawText(QRectF(left, y, width, DateHeight * text), Qt::AlignLeft | Qt::AlignVCenter, QString::number(cell.date.day()));
  const auto write = [&](const QFont &with, const QColor &colour, const QString &words) {
    const double high = WrappedHeight(with, words, width);
    painter.setFont(with);
    painter.setPen(colour);
    painter.drawText(QRectF(left, y, width, high + text), Qt::TextWordWrap, words);
    y += high;
  };
  const bool beside = QFontMetricsF(font, device).horizontalAdvance(cell.sun) <= width - 1.8 * text;
  if (beside) {
    painter.setFont(font);
    painter.setPen(inks.muted);
    painter.drawText(QRectF(left, y, width, DateHeight * text), Qt::AlignRight | Qt::AlignVCenter, cell.sun);
  }
  y += DateHeight * text;
  if (!beside) write(font, inks.muted, cell.sun);
  write(bold, inks.maroon, cell.tithi);
  write(font, inks.ink, cell.nakshatra);
  for (const QString &mark : cell.marks) write(bold, inks.accent, mark);
}

void MonthPaint::PaintSheet(QPainter &painter, const QRectF &room, const MonthPage &page) {
  const PaintInks inks = PaintInks::Paper();
  QFont face = SetFonts::Face(15, true);
  painter.save();
  painter.setFont(face);
  painter.setPen(inks.maroon);
  const double titleHeight = QFontMetricsF(face, painter.device()).height() * 1.2;
  painter.drawText(QRectF(room.left(), room.top(), room.width(), titleHeight), Qt::AlignLeft | Qt::AlignVCenter, page.title);
  face.setBold(false);
  face.setPointSizeF(8);
  painter.setFont(face);
  painter.setPen(inks.muted);
  QRectF below = room.adjusted(0, titleHeight, 0, 0);
  const double legend = QFontMetricsF(face, painter.device()).boundingRect(below, Qt::TextWordWrap, page.subtitle).height() * 1.15;
  painter.drawText(below, Qt::TextWordWrap, page.subtitle);
  below.adjust(0, legend, 0, 0);
  // A sheet hangs on the wall for the whole month: no day of it is today.
  MonthPage sheet = page;
  for (MonthPage::Cell &cell : sheet.cells) cell.isToday = false;
  double points = LargestPoints;
  const auto paint = [&] {
    face.setPointSizeF(points);
    return MonthPaint(sheet, face, painter.device(), below.width());
  };
  while (paint().Height() > below.height() && points > SmallestPoints) points -= StepPoints;
  paint().Paint(painter, below, inks);
  painter.restore();
}
