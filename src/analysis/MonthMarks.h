// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "analysis/ExactWords.h"
#include "panchang/ExactDay.h"

// What makes a day stand out in a month: the fast of Ekadashi, full and new Moon, a sign or a lunar month that begins, a tithi
// skipped or repeated.
struct MonthMark {
  QString text;
  double at = 0;  // its moment; 0 where it is of the whole day
};

// before: the lunar month of the day before.
std::vector<MonthMark> MarksOf(const ExactDay &day, const LunarMonth &before, const ExactWords &words);
