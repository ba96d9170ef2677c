// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "engine/clsPlanets.h"

// What belongs to one analysis moment: the chart of that moment at the place of residence. Made anew for each.
class clsSelvaniDaily {
 public:
  explicit clsSelvaniDaily(UserSettings &settings) : TodayChart(settings) {}

  clsPlanets TodayChart;
};
