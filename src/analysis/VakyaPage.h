// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The siddhantic positions beside the modern ones. Where the Sun does not rise on the day the method has no answer: its
// columns hold a dash and the note tells why.
struct VakyaPage {
  static constexpr int Bodies = 10, Rows = Bodies + 1;  // the ayanamsha is the last row

  struct Row {
    QString lblBody, lblVakyaRashi, lblVakyaDegrees, lblModernRashi, lblModernDegrees;
    QString lblDifference;  // siddhantic less modern, the shorter way round
  };

  std::array<Row, Rows> rows;  // ascendant, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, ayanamsha
  QString lblBodyHead, lblVakyaHead, lblModernHead, lblDegreesHead, lblDifferenceHead;
  QString lblNodeNote;   // on the opposite nodes
  QString lblPlaceNote;  // for a southern place; empty otherwise
  QString lblFailure;    // why there are no siddhantic positions; empty otherwise
};

VakyaPage FillVakya(const clsPlanets &chart);

// Degrees by planet index 0 to 9, and the ayanamsha at 10. Throws ArithmeticError where the Sun does not rise.
std::array<double, VakyaPage::Rows> VakyaPositionsOf(const clsPlanets &chart);

// The first less the second as degrees above -180 up to 180.
double ArcBetween(double first, double second);
