// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>

class QPalette;

// The colours of the one skin by their roles.
struct ChartPalette {
  QColor paper;
  QColor card;
  QColor line;
  QColor ink;
  QColor muted;
  QColor maroon;   // chart lines
  QColor saffron;  // the one accent: the ascendant, the focus
  QColor gold;     // rules and grounds; too light for a text
  QColor number;   // gold as a text: house numbers
  QColor accent;   // saffron as a text, readable on a chosen row too

  static ChartPalette Light();
  static ChartPalette Dark();

  // A colour between the ground, at a share of 0, and the colour, at 1.
  static QColor Mixed(const QColor &ground, const QColor &colour, double share);

  // Dark on a dark desktop, told by its window colour.
  static ChartPalette For(const QPalette &desktop);
};
