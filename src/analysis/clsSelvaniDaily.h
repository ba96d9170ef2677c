// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "analysis/clsDayGraph.h"
#include "attributes/TrishulNakClass.h"
#include "engine/clsPlanets.h"

// What belongs to one analysis moment: the chart of that moment at the place of residence, and the rating of its day.
// Made anew for each.
class clsSelvaniDaily {
 public:
  explicit clsSelvaniDaily(UserSettings &settings) : TodayChart(settings) {}

  // The class of the distance from one nakshatra to another on the Trishul Chakra, 1 to 3.
  static int GetTrishulNakClass(int nakA, int nakB) { return ::GetTrishulNakClass(nakA, nakB); }

  clsPlanets TodayChart;
  clsDayGraph DayGraph;
};
