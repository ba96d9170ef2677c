// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

#include "chart/ChartPalette.h"
#include "platform/gui/DesktopScheme.h"

class QApplication;

// The colours of the skin by role, light or dark with the desktop, and the style sheet made of them. Screens name
// roles, never colours. Colour never stands alone: every good or bad period also has its word.
struct Theme {
  ChartPalette chart;  // paper, card, line, ink, muted, maroon, saffron, gold, and two for text
  QColor good, goodBack, bad, badBack;
  QColor selection;  // the chosen row, the button under the pointer
  QColor tint;       // every second row of a table
  QColor edge;       // around what is typed into
  bool dark = false;

  // The words on a button of the maroon.
  QColor OnPrimary() const { return dark ? chart.paper : chart.card; }

  static const Theme &Current();
  static Theme Light();  // whatever the desktop has, for paper

  // Dresses the whole program in the scheme; in high contrast rules are as strong as words, and no word is muted.
  // skinFolder: holds the pictures inside controls, a list's arrow and a tick; without it they are plain.
  static void Apply(QApplication &application, const DesktopScheme &scheme, const QString &skinFolder = QString());
  // In the scheme that the application's palette has.
  static void Apply(QApplication &application, const QString &skinFolder = QString());

  QString StyleSheet(const QString &skinFolder) const;
};

// The 8 px grid: distances of the layouts, in device-independent pixels.
namespace Grid {
constexpr int Gap = 8, Margin = 18, CardRadius = 10, CardPadding = 18;
}
