// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "analysis/ExactTimes.h"

class clsPlanets;

// The twenty-four horas: by the house rule an hour each from sunrise on, by exact times twelfths of daylight and night.
struct HoraPage {
  struct Row {
    double startClock = 0;
    int type = 0;                 // 1 to 7
    double begins = 0, ends = 0;  // on the axis of the exact day
  };

  std::optional<ExactFrame> exact;  // none by the house rule

  std::array<Row, 24> rows;
  std::array<QString, 24> lblHoraTime, lblHoraName;
  QString lblDayHoraHead, lblNightHoraHead, lblTimeRangeHead, lblTimeRangeHead2;
};

HoraPage FillHoraPage(const clsPlanets &todayChart);
