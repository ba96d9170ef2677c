// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "analysis/ExactTimes.h"

class clsPlanets;

// The sixteen chogadiya periods: rows 0 to 7 of the day, 8 to 15 of the night.
struct ChogadiyaPage {
  struct Row {
    double startClock = 0;
    double span = 0;              // clock arithmetic
    int type = 0;                 // 1 Udveg to 7 Rog
    double begins = 0, ends = 0;  // on the axis of the exact day
  };

  std::optional<ExactFrame> exact;  // none by the house rule

  std::array<Row, 16> rows;
  std::array<QString, 16> lblChogTime, lblChogName;
  QString lblDayChogHead, lblNightChogHead, lblTimeHead1, lblTimeHead2, lblChogDesc;
};

ChogadiyaPage FillChogadiyaPage(const clsPlanets &todayChart);
