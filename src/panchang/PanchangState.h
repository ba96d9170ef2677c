// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// The panchang terms of the chart's moment, written at the end of a calculation.
struct PanchangState {
  double tithi = 0;  // (Moon - Sun) / 12 with its fraction, 0 up to 30
  double pada = 0;   // quarter of the Moon's nakshatra, 1 to 4 (0 or about 13.33 at its very ends)
  double yoga = 0;   // 1 to 27
};

// Sunrise, sunset and night length of the chart's day, kept from the first reading on; 0 means not yet.
struct DayState {
  double sunriseClock = 0;
  double sunsetClock = 0;
  double nightHours = 0;
};
