// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <vector>

class QWidget;

// What a widget alone, without its children, draws: each run of text and each picture with its place in the widget.
struct PaintedText {
  QString text;
  QRectF room;  // device-independent pixels
  QColor colour;
  QFont font;
};
struct PaintedPicture {
  QRectF room;
  QSize pixels;  // of the picture that was put there
};
struct Painted {
  std::vector<PaintedText> texts;
  std::vector<PaintedPicture> pictures;

  static Painted By(QWidget &widget);
};
