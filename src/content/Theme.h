// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

#include "chart/ChartPalette.h"

class QApplication;

// The colours of the skin by role, light or dark with the desktop, and the style sheet made of them. Screens name
// roles, never colours. Colour never stands alone: every good or bad period also has its word.
struct Theme {
  ChartPalette chart;  // paper, card, line, ink, muted, maroon, saffron, gold, and two for text
  QColor good, goodBack, bad, badBack;
  QColor selection;  // the chosen row, the button under the pointer
  QColor tint;       // every second row of a table
  bool dark = false;

  static const Theme &Current();

  // Chooses by the desktop's scheme and dresses the whole program.
  // arrow: the picture file of a list's arrow; none for an empty path.
  static void Apply(QApplication &application, const QString &arrow = QString());

  QString StyleSheet(const QString &arrow) const;
};

// The 8 px grid: distances of the layouts, in device-independent pixels.
namespace Grid {
constexpr int Gap = 8, Margin = 18, CardRadius = 10, CardPadding = 18;
}
