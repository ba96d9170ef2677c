// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The trident with the 28 nakshatras around it, counted from the Moon's nakshatra of the day.
struct TrishulPage {
  std::array<int, 28> lblTrishulNums{};  // 1 to 28; entry 0 is the day's nakshatra
  QString lblTrishulHead, lblTrishulText;
};

TrishulPage FillTrishulChakra(const clsPlanets &todayChart);
