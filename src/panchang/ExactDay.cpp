// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/ExactDay.h"

#include <optional>

#include "panchang/KeptDays.h"

namespace {

struct Dawn {
  SkyEvent sunrise;
  double begins;
};

Dawn DawnOf(const QDate &date, const SunAndMoon &sky) {
  const SkyEvent sunrise = sky.SunriseOf(date);
  return {sunrise, sky.DayBegins(date, sunrise)};
}

std::optional<Stretch> Between(const SkyEvent &first, const SkyEvent &second) {
  if (!first.Happens() || !second.Happens()) return std::nullopt;
  return Stretch{first.at, second.at};
}

int WeekdayOf(const QDate &date) { return date.dayOfWeek() % 7 + 1; }

}  // namespace

void ExactDay::FindMoonAndLimbs(const SunAndMoon &sky, double dayBefore, const ExactRules &rules) {
  using Ephemeris::Body;
  moonrise = sky.MoonWithin(Ephemeris::Crossing::Rise, begins, ends);
  moonset = sky.MoonWithin(Ephemeris::Crossing::Set, begins, ends);
  sunLongitude = Ephemeris::ApparentLongitude(begins, Body::Sun, rules.zodiac);
  moonLongitude = Ephemeris::ApparentLongitude(begins, Body::Moon, rules.zodiac);
  limbs = FindLimbs(begins, ends, dayBefore, rules.zodiac);
  signChanges = FindSignChanges(begins, ends, rules.zodiac);
  month = FindLunarMonth(begins, date, rules.zodiac);
}

std::vector<ExactDay> ExactDay::Days(const QDate &first, int count, const ExactRules &rules, Extent extent) {
  static KeptDays kept;  // whole days alone
  kept.Use(rules);
  const SunAndMoon sky(rules.place, rules.zone, rules.disc);
  std::vector<ExactDay> days;
  for (int n = 0; n < count; ++n) {
    const QDate date = first.addDays(n);
    if (const ExactDay *known = kept.Find(date)) {
      days.push_back(*known);
      continue;
    }
    // The day before it in the list, or kept, knows three of the four events around the day already.
    const ExactDay *former = days.empty() ? kept.Find(date.addDays(-1)) : &days.back();
    const Dawn before = former ? Dawn{former->sunrise, former->begins} : DawnOf(date.addDays(-1), sky);
    const Dawn dawn = former ? Dawn{former->nextSunrise, former->ends} : DawnOf(date, sky);
    const SkyEvent sunsetBefore = former ? former->sunset : sky.SunsetWithin(before.begins, dawn.begins);
    const Dawn next = DawnOf(date.addDays(1), sky);
    ExactDay day;
    day.date = date;
    day.weekday = WeekdayOf(date);
    day.begins = dawn.begins;
    day.ends = next.begins;
    day.sunrise = dawn.sunrise;
    day.nextSunrise = next.sunrise;
    day.sunset = sky.SunsetWithin(day.begins, day.ends);
    if (extent == Extent::Whole) day.FindMoonAndLimbs(sky, before.begins, rules);
    const auto lightDay = day.Daylight(), night = day.Night();
    day.periods =
        Periods::Find(day.weekday, Between(sunsetBefore, day.sunrise), lightDay, night, day.limbs.nakshatras, day.begins, day.ends);
    day.chogadiyas = Periods::Chogadiyas(day.weekday, lightDay, night);
    day.horas = Periods::Horas(day.weekday, lightDay, night);
    if (extent == Extent::Whole) kept.Keep(day);
    days.push_back(std::move(day));
  }
  return days;
}

std::optional<Stretch> ExactDay::Daylight() const { return Between(sunrise, sunset); }
std::optional<Stretch> ExactDay::Night() const { return Between(sunset, nextSunrise); }

ExactDay ExactDay::Of(const QDate &date, const ExactRules &rules, Extent extent) { return Days(date, 1, rules, extent).front(); }

ExactDay ExactDay::At(double universalDay, const ExactRules &rules, Extent extent) {
  const SunAndMoon sky(rules.place, rules.zone, rules.disc);
  const QDate date = rules.zone.LocalOf(universalDay).date();
  return Of(universalDay < DawnOf(date, sky).begins ? date.addDays(-1) : date, rules, extent);
}
