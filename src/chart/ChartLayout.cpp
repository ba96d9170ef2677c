// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ChartLayout.h"

#include <QTransform>

#include <vector>

#include "platform/Errors.h"

namespace {

using Points = std::vector<QPointF>;

// House 1 is the top rhombus; the houses run counter-clockwise.
const std::array<Points, ChartLayout::Cells> NorthShapes{{
    {{500, 0}, {250, 250}, {500, 500}, {750, 250}},
    {{0, 0}, {500, 0}, {250, 250}},
    {{0, 0}, {250, 250}, {0, 500}},
    {{250, 250}, {0, 500}, {250, 750}, {500, 500}},
    {{0, 500}, {250, 750}, {0, 1000}},
    {{0, 1000}, {250, 750}, {500, 1000}},
    {{500, 500}, {250, 750}, {500, 1000}, {750, 750}},
    {{500, 1000}, {750, 750}, {1000, 1000}},
    {{1000, 1000}, {750, 750}, {1000, 500}},
    {{500, 500}, {750, 750}, {1000, 500}, {750, 250}},
    {{1000, 500}, {750, 250}, {1000, 0}},
    {{500, 0}, {750, 250}, {1000, 0}},
}};

// Sign 1 is the top middle cell; the signs run counter-clockwise.
const std::array<Points, ChartLayout::Cells> EastShapes{{
    {{375, 0}, {625, 0}, {625, 375}, {375, 375}},
    {{0, 0}, {375, 0}, {375, 375}},
    {{0, 0}, {375, 375}, {0, 375}},
    {{0, 375}, {375, 375}, {375, 625}, {0, 625}},
    {{0, 625}, {375, 625}, {0, 1000}},
    {{375, 625}, {375, 1000}, {0, 1000}},
    {{375, 625}, {625, 625}, {625, 1000}, {375, 1000}},
    {{625, 625}, {1000, 1000}, {625, 1000}},
    {{625, 625}, {1000, 625}, {1000, 1000}},
    {{625, 375}, {1000, 375}, {1000, 625}, {625, 625}},
    {{1000, 0}, {1000, 375}, {625, 375}},
    {{625, 0}, {1000, 0}, {625, 375}},
}};

// The top left corners of the border cells; sign 1 is the second of the top row, the signs run clockwise.
constexpr std::array<QPointF, ChartLayout::Cells> SouthCorners{{
    {250, 0},
    {500, 0},
    {750, 0},
    {750, 250},
    {750, 500},
    {750, 750},
    {500, 750},
    {250, 750},
    {0, 750},
    {0, 500},
    {0, 250},
    {0, 0},
}};

}  // namespace

QPolygonF ChartLayout::CellShape(int cell) const {
  SubscriptError::Check("CellShape", cell, 0, Cells - 1);
  const auto index = static_cast<size_t>(cell);
  if (style == South) {
    const QRectF square(SouthCorners[index], QSizeF(250, 250));
    return QPolygonF({square.topLeft(), square.topRight(), square.bottomRight(), square.bottomLeft()});
  }
  const Points &points = (style == East ? EastShapes : NorthShapes)[index];
  return QPolygonF(QList<QPointF>(points.begin(), points.end()));
}

ChartLayout ChartLayout::Scaled(double width, double height) const {
  const QTransform scale = QTransform::fromScale(width / Side, height / Side);
  ChartLayout scaled = *this;
  for (auto *texts : {&scaled.lblPlanet, &scaled.lblHouseNo})
    for (Text &text : *texts) text.box = scale.mapRect(text.box);
  for (Line &line : scaled.lines) line.ends = scale.map(line.ends);
  for (QRectF &box : scaled.surfaceBoxes) box = scale.mapRect(box);
  scaled.squMain = scale.mapRect(squMain);
  scaled.imgCenter = scale.mapRect(imgCenter);
  return scaled;
}
