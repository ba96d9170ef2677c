// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class clsPlanets;

// The exact times that stand in small type beside the day's own figures. A text is empty where the two part by ten minutes at
// most; where the exact one does not exist, it is the reason.
struct ExactBesidePage {
  QString sunrise, sunset, rahuKaal, yamaghanta;  // "6:46", "9:26 to 10:46"
};

// For the civil date of the chart's moment.
ExactBesidePage ExactBeside(const clsPlanets &todayChart);
