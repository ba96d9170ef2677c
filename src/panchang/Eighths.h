// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

// The eighths of the daylight, counted from 1, that belong to Rahu and to the four evil muhurthas on each weekday.
// B. V. Raman, Muhurtha (Electional Astrology), gives Rahu Kaal, Yamaghanta and Gulika for a day of 6 to 18 o'clock. But for Rahu,
// who has a row of his own, each row goes one eighth back from day to day: it is its planet's part, counted from the day's lord.
namespace Eighths {

using ByWeekday = std::array<int, 7>;

//                               Sun Mon Tue Wed Thu Fri Sat
constexpr ByWeekday RahuKaal{8, 2, 7, 5, 6, 4, 3};
constexpr std::array<ByWeekday, 4> EvilMuhurthas{{
    {7, 6, 5, 4, 3, 2, 1},  // Kulik, of Saturn; the south calls it Gulika
    {4, 3, 2, 1, 7, 6, 5},  // Kalbela, of Mercury
    {5, 4, 3, 2, 1, 7, 6},  // Yamghant, of Jupiter
    {3, 2, 1, 7, 6, 5, 4},  // Kantak, of Mars
}};
enum EvilMuhurtha { Kulik = 1, Kalbela, Yamghant, Kantak };

// weekday: 1 Sunday to 7 Saturday; any other has no eighth: 0.
constexpr int Of(const ByWeekday &row, int weekday) { return weekday < 1 || weekday > 7 ? 0 : row[static_cast<size_t>(weekday - 1)]; }

}  // namespace Eighths
