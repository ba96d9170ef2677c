// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PaintInks.h"

#include "content/Theme.h"

namespace {

PaintInks From(const Theme &theme) {
  const ChartPalette &chart = theme.chart;
  PaintInks inks;
  inks.card = chart.card;
  inks.line = chart.line;
  inks.ink = chart.ink;
  inks.muted = chart.muted;
  inks.maroon = chart.maroon;
  inks.saffron = chart.saffron;
  inks.gold = chart.gold;
  inks.accent = chart.accent;
  inks.good = theme.good;
  inks.goodBack = theme.goodBack;
  inks.bad = theme.bad;
  inks.badBack = theme.badBack;
  // The night is darker than the card, on a dark ground too.
  const bool dark = chart.card.lightness() < 128;
  inks.day = ChartPalette::Mixed(chart.card, chart.gold, dark ? 0.16 : 0.11);
  inks.night = dark ? ChartPalette::Mixed(chart.card, Qt::black, 0.4) : ChartPalette::Mixed(chart.card, chart.ink, 0.07);
  return inks;
}

}  // namespace

PaintInks PaintInks::Screen() { return From(Theme::Current()); }

PaintInks PaintInks::Paper() {
  PaintInks inks = From(Theme::Light());
  inks.card = Qt::white;
  return inks;
}
