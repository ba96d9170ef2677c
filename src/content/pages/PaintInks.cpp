// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PaintInks.h"

#include "content/Theme.h"

namespace {

PaintInks From(const ChartPalette &chart) {
  PaintInks inks;
  inks.card = chart.card;
  inks.line = chart.line;
  inks.ink = chart.ink;
  inks.muted = chart.muted;
  inks.maroon = chart.maroon;
  inks.saffron = chart.saffron;
  inks.accent = chart.accent;
  inks.gold = chart.gold;
  inks.accent = chart.accent;
  // The night is darker than the card, on a dark ground too.
  const bool dark = chart.card.lightness() < 128;
  inks.day = ChartPalette::Mixed(chart.card, chart.gold, dark ? 0.16 : 0.11);
  inks.night = dark ? ChartPalette::Mixed(chart.card, Qt::black, 0.4) : ChartPalette::Mixed(chart.card, chart.ink, 0.07);
  return inks;
}

}  // namespace

PaintInks PaintInks::Screen() {
  const Theme &theme = Theme::Current();
  PaintInks inks = From(theme.chart);
  inks.good = theme.good;
  inks.goodBack = theme.goodBack;
  inks.bad = theme.bad;
  inks.badBack = theme.badBack;
  return inks;
}

PaintInks PaintInks::Paper() {
  PaintInks inks = From(ChartPalette::Light());
  inks.card = Qt::white;
  inks.good = QColor(0x3F, 0x6B, 0x46);
  inks.goodBack = QColor(0xE3, 0xEF, 0xE2);
  inks.bad = QColor(0x9C, 0x3A, 0x34);
  inks.badBack = QColor(0xF8, 0xE4, 0xE1);
  return inks;
}
