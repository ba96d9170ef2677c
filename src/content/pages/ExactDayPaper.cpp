// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ExactDayPaper.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "content/pages/DayTimelinePaint.h"

namespace {

constexpr double LargestPoints = 10, SmallestPoints = 5, StepPoints = 0.5;
constexpr int FactColumns = 4;

class Sheet {
 public:
  Sheet(QPainter &sheetPainter, const QRectF &sheetRoom, const ExactDayPage &dayPage, double points)
      : painter(sheetPainter), room(sheetRoom), page(dayPage), inks(PaintInks::Paper()) {
    font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPointSizeF(points);
    bold = font;
    bold.setBold(true);
    title = bold;
    title.setPointSizeF(points * 1.6);
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
    const double top = y, half = (room.width() - 2 * text) / 2;
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

  void Rows(const std::vector<ExactDayPage::Row> &rows, const QString &head, double x, double width, bool withHeads) {
    const double line = 1.4 * text;
    Write(bold, inks.maroon, QRectF(x, y, width, line), head);
    y += line;
    if (ink) {
      painter.setPen(QPen(inks.gold, text * 0.08));
      painter.drawLine(QPointF(x, y), QPointF(x + width, y));
    }
    const double heads = withHeads ? 0.19 * width : 0, time = 0.2 * width;
    for (const ExactDayPage::Row &row : rows) {
      const QColor tone = row.tone == ExactDayPage::Tone::Good ? inks.good : row.tone == ExactDayPage::Tone::Bad ? inks.bad : inks.ink;
      if (withHeads) Write(font, inks.muted, QRectF(x, y, heads, line), row.head);
      double name = width - heads - 2 * time;
      if (!withHeads) name = 0.34 * width;
      // An event is one moment, or a reason that needs the rest of the line.
      if (row.begins.isEmpty() && row.remark.isEmpty()) {
        Write(bold, tone, QRectF(x, y, 0.4 * width, line), row.name);
        Write(font, inks.ink, QRectF(x + 0.4 * width, y, 0.6 * width, line), row.ends);
      } else {
        Write(bold, tone, QRectF(x + heads, y, name, line), row.name);
        Write(font, inks.ink, QRectF(x + heads + name, y, time, line), row.begins);
        Write(font, inks.ink, QRectF(x + heads + name + time, y, time, line), row.ends);
        if (!withHeads) Write(font, tone, QRectF(x + name + 2 * time, y, width - name - 2 * time, line), row.remark);
      }
      y += line;
      if (!withHeads || row.remark.isEmpty()) continue;
      Write(font, inks.saffron, QRectF(x + heads, y - 0.2 * text, width - heads, line), row.remark);
      y += line - 0.2 * text;
    }
  }

  QPainter &painter;
  QRectF room;
  const ExactDayPage &page;
  PaintInks inks;
  QFont font, bold, title;
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
