// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The planet table: a row for the ascendant and each of the twelve planets.
struct PlanetTablePage {
  struct Row {
    QString lblPlanets, lblRashi, lblDegrees, lblNak, lblNakLord, lblPad, lblDir, lblState;
  };

  std::array<Row, 13> rows;  // the ascendant's row has no motion
  QString lblPlntHead, lblRashiHead, lblPDegreeHead, lblPNakHead, lblPNakLHead, lblPadaHead, lblDirHead, lblPStateHead;
};

// Of the birth chart (FillBirthPlanets) or of today's (FillTodayPlanets), with its heads (FillPlanetHeads).
PlanetTablePage FillPlanets(const clsPlanets &chart);
