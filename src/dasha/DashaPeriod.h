// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <array>

// One period of the Vimshottari cycle at any level.
struct DashaPeriod {
  int Lord = 0;       // planet index
  double Length = 0;  // years
  QDateTime Start;
  int Position = 0;  // in the cycle, 1 to 9
};

using DashaLevel = std::array<DashaPeriod, 9>;
