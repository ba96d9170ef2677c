// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <array>

// One chart as a drawing: every text, line and box with its place in a square of 1000 by 1000 units, origin at the top
// left, y down. Screen, printer and PDF all walk this one value, so that a chart has the same geometry everywhere.
// A target that is not square stretches it.
struct ChartLayout {
  static constexpr double Side = 1000;
  static constexpr int Cells = 12;
  static constexpr int Lines = 8;

  enum Style { North = 0, East = 1, South = 2 };

  // A text in a box: wrapped at blanks to the box's width, each line centred when `centred`.
  struct Text {
    QRectF box;
    QString caption;
    bool visible = true;
    bool opaque = false;  // filled with the back colour first, so that it masks the lines behind it
    bool centred = false;
  };

  struct Line {
    QLineF ends;
    bool visible = true;
  };

  // The style whose drawing stands here; a cell is a house position in the North style and a fixed sign in the others.
  Style style = North;
  std::array<Text, Cells> lblPlanet;
  std::array<Text, Cells> lblHouseNo;
  QRectF squMain;
  std::array<Line, Lines> lines;  // `Line1` is item 0
  QRectF imgCenter;

  // The first cells' texts when they were drawn straight on the surface; such a text stands in place of its box's.
  static constexpr int SurfaceTexts = 3;
  std::array<QRectF, SurfaceTexts> surfaceBoxes;
  bool textOnSurface = false;

  // Pen widths in pixels, never 0.
  int lineWidth = 1;
  int borderWidth = 1;

  // Black, and an invalid back colour, stand for the skin's colour on screen; on paper black is black.
  QColor lineColor = Qt::black;
  QColor borderColor = Qt::black;
  QColor textColor = Qt::black;
  QColor numberColor = Qt::black;
  QColor backColor;

  QFont planetFont;
  QFont houseFont;
  QImage centrePic;
  QString accentText;  // the entry set apart in the accent colour, the ascendant's name; empty for none

  // The outline of a cell, convex. Throws SubscriptError for a cell outside 0 to 11.
  QPolygonF CellShape(int cell) const;

  // The same drawing in other units, such as twips for a control of that many twips; pen widths and fonts stay.
  ChartLayout Scaled(double width, double height) const;
};
