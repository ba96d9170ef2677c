// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <array>

class clsPlanets;

// What the sky does at the analysis moment, for the small card that stays in sight on every page.
struct NowCardPage {
  QString moon;  // "Pisces 17:44"
  QString nakshatra;
  QString tithi;
  QString nextChange;                   // "Trayodashi 21:14": the tithi or nakshatra that begins next, with its time
  QString rahuKaal;                     // "9:16-10:50"
  std::array<double, 10> longitudes{};  // degrees of the ascendant and planets 1 to 9
  std::array<QString, 10> names;        // their short names
};

NowCardPage FillNowCard(const clsPlanets &todayChart);

// The moment at which the running tithi (step 12 degrees between Moon and Sun) or nakshatra (13 1/3 degrees of the
// Moon) ends, to the minute, by the chart's own positions.
QDateTime EndOfTithi(const clsPlanets &chart);
QDateTime EndOfNakshatra(const clsPlanets &chart);
