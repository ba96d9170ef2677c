// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <optional>
#include <vector>

#include "engine/Ephemeris.h"
#include "panchang/ExactZone.h"
#include "panchang/Limbs.h"
#include "panchang/LunarMonth.h"
#include "panchang/Periods.h"
#include "panchang/SunAndMoon.h"

// Where, by which clock and by which rules an exact day is told.
struct ExactRules {
  Ephemeris::Observer place;
  ExactZone zone;
  Ephemeris::DiscRule disc = Ephemeris::DiscRule::CentreNoRefraction;
  Ephemeris::Zodiac zodiac;

  bool operator==(const ExactRules &) const = default;
};

// The panchang day from one sunrise to the next as the sky has it: every end by the ephemeris library's own positions. It stands
// beside the chart's day divisions, which keep to this program's own reckoning. Moments are Julian days in universal time.
struct ExactDay {
  QDate date;                   // the civil date of its sunrise
  int weekday = 0;              // that begins at sunrise: 1 Sunday to 7 Saturday
  double begins = 0, ends = 0;  // sunrise, or six o'clock of local mean time where the Sun does not rise

  SkyEvent sunrise, sunset, nextSunrise;
  SkyEvent moonrise, moonset;                  // the first of each between begins and ends
  double sunLongitude = 0, moonLongitude = 0;  // at the beginning, in the zodiac of the rules

  Limbs limbs;
  std::vector<SignChange> signChanges;
  LunarMonth month;
  std::vector<Period> periods;
  std::vector<DayPart> chogadiyas, horas;

  // From sunrise to sunset, and from sunset to the next sunrise; none where the Sun does not do both.
  std::optional<Stretch> Daylight() const;
  std::optional<Stretch> Night() const;

  // What of a day is worked out: the Sun alone takes a sixth of the time, and leaves out the Moon, the limbs, the month and what is
  // cut from them.
  enum class Extent { Whole, Sun };

  static ExactDay Of(const QDate &date, const ExactRules &rules, Extent extent = Extent::Whole);
  // The day that runs at a moment: before sunrise it is still the day before.
  static ExactDay At(double universalDay, const ExactRules &rules, Extent extent = Extent::Whole);
  // Consecutive days, each sunrise searched once.
  static std::vector<ExactDay> Days(const QDate &first, int count, const ExactRules &rules, Extent extent = Extent::Whole);

 private:
  void FindMoonAndLimbs(const SunAndMoon &sky, double dayBefore, const ExactRules &rules);
};
