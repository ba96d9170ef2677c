// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The limbs of the panchang of today and of the birth, side by side.
struct PanchangPage {
  static constexpr size_t Rows = 9;

  std::array<QString, Rows> lblPanchTodayHead, lblPanchTodayVal;
  std::array<QString, Rows> lblPanchBirthHead, lblPanchBirthVal;
  QString lblBirthPanchang, lblNowPanchang;
};

PanchangPage FillPanchangPage(const clsPlanets &birthChart, const clsPlanets &todayChart);
