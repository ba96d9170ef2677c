// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/ExactDay.h"

#include <optional>

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

std::vector<ExactDay> ExactDay::Days(const QDate &first, int count, const ExactRules &rules) {
  using Ephemeris::Body;
  const SunAndMoon sky(rules.place, rules.zone, rules.disc);
  std::vector<ExactDay> days;
  Dawn before = DawnOf(first.addDays(-1), sky), dawn = DawnOf(first, sky);
  SkyEvent sunsetBefore = sky.SunsetWithin(before.begins, dawn.begins);
  for (int n = 0; n < count; ++n) {
    const Dawn next = DawnOf(first.addDays(n + 1), sky);
    ExactDay day;
    day.date = first.addDays(n);
    day.weekday = WeekdayOf(day.date);
    day.begins = dawn.begins;
    day.ends = next.begins;
    day.sunrise = dawn.sunrise;
    day.nextSunrise = next.sunrise;
    day.sunset = sky.SunsetWithin(day.begins, day.ends);
    day.moonrise = sky.MoonWithin(Ephemeris::Crossing::Rise, day.begins, day.ends);
    day.moonset = sky.MoonWithin(Ephemeris::Crossing::Set, day.begins, day.ends);
    day.sunLongitude = Ephemeris::ApparentLongitude(day.begins, Body::Sun, rules.zodiac);
    day.moonLongitude = Ephemeris::ApparentLongitude(day.begins, Body::Moon, rules.zodiac);
    day.limbs = FindLimbs(day.begins, day.ends, before.begins, rules.zodiac);
    day.signChanges = FindSignChanges(day.begins, day.ends, rules.zodiac);
    day.month = FindLunarMonth(day.begins, day.date, rules.zodiac);
    const auto lightDay = Between(day.sunrise, day.sunset), night = Between(day.sunset, day.nextSunrise);
    day.periods =
        Periods::Find(day.weekday, Between(sunsetBefore, day.sunrise), lightDay, night, day.limbs.nakshatras, day.begins, day.ends);
    day.chogadiyas = Periods::Chogadiyas(day.weekday, lightDay, night);
    day.horas = Periods::Horas(day.weekday, lightDay, night);
    days.push_back(std::move(day));
    before = dawn;
    dawn = next;
    sunsetBefore = days.back().sunset;
  }
  return days;
}

ExactDay ExactDay::Of(const QDate &date, const ExactRules &rules) { return Days(date, 1, rules).front(); }

ExactDay ExactDay::At(double universalDay, const ExactRules &rules) {
  const SunAndMoon sky(rules.place, rules.zone, rules.disc);
  const QDate date = rules.zone.LocalOf(universalDay).date();
  return Of(universalDay < DawnOf(date, sky).begins ? date.addDays(-1) : date, rules);
}
