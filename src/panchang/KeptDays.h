// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <map>

#include "panchang/ExactDay.h"

// The exact days found last, all of one place, clock and rule: several pages tell of the same day, and a month of them is the
// longest calculation of the program. A day depends on its date and the rules alone.
class KeptDays {
 public:
  // Days of other rules are forgotten.
  void Use(const ExactRules &wanted);

  const ExactDay *Find(const QDate &date) const;  // nothing where the day is not kept
  void Keep(const ExactDay &day);

 private:
  static constexpr size_t Most = 100;  // three months and some

  ExactRules rules;
  std::map<QDate, ExactDay> days;
};
