// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ChartPalette.h"

#include <QPalette>

ChartPalette ChartPalette::Light() {
  return {0xFBF7F0, 0xFFFDF9, 0xE4D9C8, 0x2B2320, 0x6F635A, 0x7A1F2B, 0xB9540F, 0xB98A2F, 0x86611C, 0xA34708};
}

ChartPalette ChartPalette::Dark() {
  return {0x1D1817, 0x272120, 0x463B35, 0xF2E9DE, 0xB5A699, 0xE58F9A, 0xF0954A, 0xD9B25F, 0xD9B25F, 0xF0954A};
}

QColor ChartPalette::Mixed(const QColor &ground, const QColor &colour, double share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return QColor(part(ground.red(), colour.red()), part(ground.green(), colour.green()), part(ground.blue(), colour.blue()));
}

ChartPalette ChartPalette::For(const QPalette &desktop) { return desktop.color(QPalette::Window).lightness() < 128 ? Dark() : Light(); }
