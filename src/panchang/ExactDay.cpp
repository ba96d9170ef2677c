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

// What bounds a day and the night before it.
struct Bounds {
  Dawn before, dawn, next;
  SkyEvent sunsetBefore;
};

ExactDay FindDay(const QDate &date, const Bounds &bounds, const SunAndMoon &sky, const ExactRules &rules) {
  using Ephemeris::Body;
  ExactDay day;
  day.date = date;
  day.weekday = WeekdayOf(date);
  day.begins = bounds.dawn.begins;
  day.ends = bounds.next.begins;
  day.sunrise = bounds.dawn.sunrise;
  day.nextSunrise = bounds.next.sunrise;
  day.sunset = sky.SunsetWithin(day.begins, day.ends);
  day.moonrise = sky.MoonWithin(Ephemeris::Crossing::Rise, day.begins, day.ends);
  day.moonset = sky.MoonWithin(Ephemeris::Crossing::Set, day.begins, day.ends);
  day.sunLongitude = Ephemeris::ApparentLongitude(day.begins, Body::Sun, rules.zodiac);
  day.moonLongitude = Ephemeris::ApparentLongitude(day.begins, Body::Moon, rules.zodiac);
  day.limbs = FindLimbs(day.begins, day.ends, bounds.before.begins, rules.zodiac);
  day.signChanges = FindSignChanges(day.begins, day.ends, rules.zodiac);
  day.month = FindLunarMonth(day.begins, date, rules.zodiac);
  const auto lightDay = Between(day.sunrise, day.sunset), night = Between(day.sunset, day.nextSunrise);
  day.periods =
      Periods::Find(day.weekday, Between(bounds.sunsetBefore, day.sunrise), lightDay, night, day.limbs.nakshatras, day.begins, day.ends);
  day.chogadiyas = Periods::Chogadiyas(day.weekday, lightDay, night);
  day.horas = Periods::Horas(day.weekday, lightDay, night);
  return day;
}

}  // namespace

std::vector<ExactDay> ExactDay::Days(const QDate &first, int count, const ExactRules &rules) {
  static KeptDays kept;
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
    days.push_back(FindDay(date, {before, dawn, DawnOf(date.addDays(1), sky), sunsetBefore}, sky, rules));
    kept.Keep(days.back());
  }
  return days;
}

ExactDay ExactDay::Of(const QDate &date, const ExactRules &rules) { return Days(date, 1, rules).front(); }

ExactDay ExactDay::At(double universalDay, const ExactRules &rules) {
  const SunAndMoon sky(rules.place, rules.zone, rules.disc);
  const QDate date = rules.zone.LocalOf(universalDay).date();
  return Of(universalDay < DawnOf(date, sky).begins ? date.addDays(-1) : date, rules);
}
