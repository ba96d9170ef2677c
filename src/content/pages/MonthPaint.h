// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRectF>
#include <array>
#include <vector>

#include "analysis/MonthPage.h"
#include "content/pages/PaintInks.h"

class QPaintDevice;
class QPainter;

// A month as a grid of seven columns, for any painter. Texts wrap in their cells; a week is as high as its fullest day needs.
class MonthPaint {
 public:
  // The text is set smaller, down to 7 points, where a word would not fit into a column of this width.
  MonthPaint(const MonthPage &monthPage, const QFont &textFont, QPaintDevice *paintDevice, double roomWidth);

  double Height() const;  // that the weeks need
  // chosen: index of the cell with the focus, -1 for none. Weeks share what the room has beyond their need.
  void Paint(QPainter &painter, const QRectF &room, const PaintInks &inks, int chosen = -1) const;
  // The days' places, in their order.
  std::vector<QRectF> Cells(const QRectF &room) const;
  // Index of the cell at a point, -1 beside them.
  int CellAt(const QRectF &room, const QPointF &point) const;

  // On a sheet of its own with title and legend, in the largest text that fits.
  static void PaintSheet(QPainter &painter, const QRectF &room, const MonthPage &page);

 private:
  double HeadHeight() const { return 1.8 * text; }
  void SetPoints(double points);
  double LongestWord() const;
  double WeekNeed(int week) const;
  double CellNeed(const MonthPage::Cell &cell) const;
  void PaintCell(QPainter &painter, const QRectF &at, const MonthPage::Cell &cell, const PaintInks &inks) const;
  double WrappedHeight(const QFont &with, const QString &words, double width) const;

  const MonthPage &page;
  QFont font, bold, date;
  double text = 0;
  double columnWidth;
  mutable std::vector<double> weekNeeds;  // by week, once asked
  QPaintDevice *device;
};
