// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The four periods of the day to keep clear of: Kulik, Kalbela, Yamghant, Kantak.
struct EvilMuhurthaPage {
  struct Row {
    double startClock = 0;
    double length = 0;  // clock arithmetic
    QString head, start, end;
  };

  std::array<Row, 4> rows;
  QString lblKulikadiDesc, lblMuhurthaName, lblStartTime, lblEndTime;
};

EvilMuhurthaPage FillEvilMuhurthaPage(const clsPlanets &todayChart);
