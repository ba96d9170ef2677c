// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>

#include <array>

#include "chart/ChartLayout.h"
#include "chart/ChartPalette.h"
#include "chart/TextFit.h"

class QPainter;

// Paints a chart into a rectangle of any painter. Text keeps the size of its font on a small chart, grows with a large one,
// and is made smaller or set closer where a house is crowded.
class ChartPainter {
 public:
  explicit ChartPainter(ChartPalette skin) : palette(skin) {}

  void Paint(QPainter &painter, const ChartLayout &layout, const QRectF &target) const;

  // Where every text comes to stand in the rectangle, on a device with so many dots to one unit of it.
  struct Texts {
    std::array<FittedText, ChartLayout::Cells> planets;
    struct Number {
      QString text;
      QRectF box;  // around the digits themselves; empty where no number shows
    };
    std::array<Number, ChartLayout::Cells> numbers;
    int numberSize = 0;
  };
  Texts Arrange(const ChartLayout &layout, const QRectF &target, double dots = 1) const;

 private:
  ChartPalette palette;
};
