// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ExactDayPaper.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "content/SetFonts.h"
#include "content/pages/DayTimelinePaint.h"

namespace {

constexpr double LargestPoints = 10, SmallestPoints = 5, StepPoints = 0.5;
constexpr int FactColumns = 4;

class Sheet {
 public:
  Sheet(QPainter &sheetPainter, const QRectF &sheetRoom, const ExactDayPage &dayPage, double points)
      : painter(sheetPainter), room(sheetRoom), page(dayPage), inks(PaintInks::Paper()) {
    font = SetFonts::Face(points);
    bold = font;
    bold.setBold(true);
    title = bold;
    title.setPointSizeF(points * 1.6);
    FitRows(points);
    text = QFontMetricsF(font, painter.device()).height();
  }

  // Walks down the sheet; without ink it only measures. Gives the height that was used.
  double Walk(bool withInk) {
    ink = withInk;
    y = room.top();
    Write(title, inks.maroon, QRectF(room.left(), y, room.width(), 2 * text), page.title);
    y += 2.2 * text;
    y += Wrapped(page.lblExactDesc) + 0.5 * text;
    const DayTimelinePaint timeline(page, font, painter.device());
    if (ink) timeline.Paint(painter, QRectF(room.left(), y, room.width(), timeline.Height()), inks);
    y += timeline.Height() + text;
    Facts();
    const double top = y, half = HalfWidth();
    Rows(page.limbs, page.limbHead, room.left(), half, true);
    const double left = y;
    y = top;
    Rows(page.periods, page.periodHead, room.left() + half + 2 * text, half, false);
    y += text;
    Rows(page.events, page.eventHead, room.left() + half + 2 * text, half, false);
    return std::max(left, y) - room.top();
  }

 private:
  void Write(const QFont &with, const QColor &colour, const QRectF &at, const QString &words,
             int align = Qt::AlignLeft | Qt::AlignVCenter) {
    if (!ink) return;
    painter.setFont(with);
    painter.setPen(colour);
    painter.drawText(at, align, QFontMetricsF(with, painter.device()).elidedText(words, Qt::ElideRight, at.width()));
  }

  double Wrapped(const QString &words) {
    const QRectF at(room.left(), y, room.width(), room.height());
    const double height = QFontMetricsF(font, painter.device()).boundingRect(at, Qt::TextWordWrap, words).height();
    if (ink) {
      painter.setFont(font);
      painter.setPen(inks.muted);
      painter.drawText(at, Qt::TextWordWrap, words);
    }
    return height;
  }

  void Facts() {
    const double wide = room.width() / FactColumns;
    for (size_t n = 0; n < page.facts.size(); ++n) {
      const double x = room.left() + static_cast<double>(n % FactColumns) * wide;
      if (n > 0 && n % FactColumns == 0) y += 2.8 * text;
      Write(font, inks.muted, QRectF(x, y, wide - text / 2, 1.2 * text), page.facts[n].head);
      Write(bold, inks.ink, QRectF(x, y + 1.2 * text, wide - text / 2, 1.2 * text), page.facts[n].value);
    }
    y += 3.6 * text;
  }

  struct Widths {
    double head = 0, name = 0, begins = 0, ends = 0, remark = 0;
    double Sum() const { return head + name + begins + ends + remark; }
  };

  // Columns as wide as their texts; an event's one column of times holds its reason too.
  Widths WidthsOf(const std::vector<ExactDayPage::Row> &rows, bool withHeads) const {
    const QFontMetricsF plain(rowFont, painter.device()), strong(rowBold, painter.device());
    const double gap = plain.height() * 0.7;
    Widths widths;
    for (const ExactDayPage::Row &row : rows) {
      if (withHeads) widths.head = std::max(widths.head, plain.horizontalAdvance(row.head) + gap);
      widths.name = std::max(widths.name, strong.horizontalAdvance(row.name) + gap);
      if (!row.begins.isEmpty()) widths.begins = std::max(widths.begins, plain.horizontalAdvance(row.begins) + gap);
      widths.ends = std::max(widths.ends, plain.horizontalAdvance(row.ends) + gap);
      if (!withHeads) widths.remark = std::max(widths.remark, plain.horizontalAdvance(row.remark));
    }
    return widths;
  }

  double HalfWidth() const { return (room.width() - 2 * QFontMetricsF(font, painter.device()).height()) / 2; }

  void FitRows(double points) {
    const double half = HalfWidth();
    const auto set = [this](double size) {
      rowFont = font;
      rowFont.setPointSizeF(size);
      rowBold = rowFont;
      rowBold.setBold(true);
    };
    const auto widest = [this] {
      return std::max({WidthsOf(page.limbs, true).Sum(), WidthsOf(page.periods, false).Sum(), WidthsOf(page.events, false).Sum()});
    };
    for (set(points); widest() > half && points > SmallestPoints; set(points)) points -= StepPoints;
  }

  void Rows(const std::vector<ExactDayPage::Row> &rows, const QString &head, double x, double width, bool withHeads) {
    const double line = 1.4 * text;
    const Widths widths = WidthsOf(rows, withHeads);
    Write(bold, inks.maroon, QRectF(x, y, width, line), head);
    y += line;
    if (ink) {
      painter.setPen(QPen(inks.gold, text * 0.08));
      painter.drawLine(QPointF(x, y), QPointF(x + width, y));
    }
    for (const ExactDayPage::Row &row : rows) {
      const QColor tone = row.tone == ExactDayPage::Tone::Good ? inks.good : row.tone == ExactDayPage::Tone::Bad ? inks.bad : inks.ink;
      double left = x;
      const auto cell = [&](const QFont &with, const QColor &colour, double wide, const QString &words) {
        Write(with, colour, QRectF(left, y, wide, line), words);
        left += wide;
      };
      if (withHeads) cell(rowFont, inks.muted, widths.head, row.head);
      cell(rowBold, tone, widths.name, row.name);
      cell(rowFont, inks.ink, widths.begins, row.begins);
      cell(rowFont, inks.ink, widths.ends, row.ends);
      if (!withHeads) cell(rowFont, tone, x + width - left, row.remark);
      y += line;
      // A limb's remark is too long for the half sheet, and seldom: it has a line of its own.
      if (!withHeads || row.remark.isEmpty()) continue;
      Write(rowFont, inks.saffron, QRectF(x + widths.head, y - 0.2 * text, width - widths.head, line), row.remark);
      y += line - 0.2 * text;
    }
  }

  QPainter &painter;
  QRectF room;
  const ExactDayPage &page;
  PaintInks inks;
  QFont font, bold, title, rowFont, rowBold;
  double text = 0, y = 0;
  bool ink = false;
};

}  // namespace

void ExactDayPaper::Paint(QPainter &painter, const QRectF &room, const ExactDayPage &page) {
  double points = LargestPoints;
  while (points > SmallestPoints && Sheet(painter, room, page, points).Walk(false) > room.height()) points -= StepPoints;
  painter.save();
  Sheet(painter, room, page, points).Walk(true);
  painter.restore();
}
