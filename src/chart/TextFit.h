// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <vector>

#include "chart/TextMeasure.h"

// A text that was wrapped and sized to stand in a cell of a chart.
struct FittedText {
  struct Word {
    QString text;
    bool accent = false;
    QRectF box;  // one line high, as wide as the word
  };

  int pixelSize = 0;
  std::vector<Word> words;

  // What there is to fit: a caption wraps at blanks, each line centred in its room.
  struct Task {
    QString caption;
    QString accentText;  // the word that is accented; empty for none
    QRectF box;          // the room that the text keeps to as long as it can
    QPolygonF shape;     // the convex cell around the box: the room of a crowded text, `gap` off its sides
    QRectF taken;        // a part of the cell that holds something else, or an empty rectangle
    double gap = 3;
    int preferredSize = 11;  // in pixels, as `smallestSize`
    int smallestSize = 9;    // undercut only where the text would otherwise leave its cell
    bool middle = true;      // the text stands in the middle of the box's height, otherwise at its top
  };

  // The largest size at which the text stands in its box, or else in its cell. Never drops a word.
  static FittedText Fit(const Task &task, const TextMeasure &measure);
};

// A part of a level line.
struct LevelSpan {
  double left = 0;
  double right = 0;
};

// Where the level line at `y` enters and leaves a convex polygon; where it passes by, the left end lies right of the right one.
LevelSpan SpanAt(const QPolygonF &shape, double y);

// Moves a rectangle by the least way that keeps it `gap` inside a convex polygon; a cell too small for it keeps its best place.
QRectF PushInside(QRectF rectangle, const QPolygonF &shape, double gap);
