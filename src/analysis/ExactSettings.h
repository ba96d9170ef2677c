// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "panchang/ExactDay.h"

class clsPlanets;

// The rules of the exact day for a chart's place, clock and ayanamsha, and the user's choice of sunrise.
// The clock is the time zone of the place with its daylight saving, where the list of places knows the place and the chart's own
// time difference is one of that zone; otherwise the chart's difference holds the whole day.
// Lahiri, Raman, Krishnamurti and no ayanamsha are the library's; any other one is the chart's own, held through the day.
ExactRules ExactRulesOf(const clsPlanets &chart);

// Whether the settings ask for exact times of day in place of the house rule's.
bool ExactDivisionsChosen(const clsPlanets &chart);

// The chart's moment as a Julian day in universal time.
double UniversalMoment(const clsPlanets &chart, const ExactRules &rules);
