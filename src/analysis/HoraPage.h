// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The twenty-four horas, an hour each from sunrise on.
struct HoraPage {
  struct Row {
    double startClock = 0;
    int type = 0;  // 1 to 7
  };

  std::array<Row, 24> rows;
  std::array<QString, 24> lblHoraTime, lblHoraName;
  QString lblDayHoraHead, lblNightHoraHead, lblTimeRangeHead, lblTimeRangeHead2;
};

HoraPage FillHoraPage(const clsPlanets &todayChart);
