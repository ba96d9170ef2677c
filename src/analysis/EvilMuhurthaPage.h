// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "analysis/ExactTimes.h"

class clsPlanets;

// The four periods of the day to keep clear of: Kulik, Kalbela, Yamghant, Kantak.
struct EvilMuhurthaPage {
  struct Row {
    double startClock = 0;
    double length = 0;            // clock arithmetic
    double begins = 0, ends = 0;  // on the axis of the exact day
    QString head, start, end;
  };

  std::optional<ExactFrame> exact;  // none by the house rule

  std::array<Row, 4> rows;
  QString lblKulikadiDesc, lblMuhurthaName, lblStartTime, lblEndTime;
};

EvilMuhurthaPage FillEvilMuhurthaPage(const clsPlanets &todayChart);
