// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/KeptDays.h"

#include <iterator>

void KeptDays::Use(const ExactRules &wanted) {
  if (rules == wanted) return;
  rules = wanted;
  days.clear();
}

const ExactDay *KeptDays::Find(const QDate &date) const {
  const auto found = days.find(date);
  return found == days.end() ? nullptr : &found->second;
}

void KeptDays::Keep(const ExactDay &day) {
  if (days.size() >= Most && !days.contains(day.date)) {
    // Whoever turns the pages of a calendar comes back to what lies near, so the farther end goes.
    const auto last = std::prev(days.end());
    days.erase(days.begin()->first.daysTo(day.date) > day.date.daysTo(last->first) ? days.begin() : last);
  }
  days.insert_or_assign(day.date, day);
}
