// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ExactBeside.h"

#include <algorithm>
#include <cmath>

#include "analysis/ExactSettings.h"
#include "analysis/ExactWords.h"
#include "engine/clsPlanets.h"

namespace {

constexpr int YamaghantaKind = 3;  // of the evil muhurthas
constexpr double NearMinutes = 10, DayMinutes = 24 * 60;

// Minutes between a clock number (hh.mm) and a moment, by the clock alone.
double Apart(double clock, double moment, const ExactZone &zone) {
  const double shown = zone.LocalOf(moment).time().msecsSinceStartOfDay() / 60000.0;
  const double apart = std::fmod(std::abs(clsPlanets::MinToDec(clock) * 60 - shown), DayMinutes);
  return std::min(apart, DayMinutes - apart);
}

}  // namespace

ExactBesidePage ExactBeside(const clsPlanets &todayChart) {
  const ExactRules rules = ExactRulesOf(todayChart);
  const ExactWords words(todayChart, rules);
  const ExactDay day = ExactDay::Of(todayChart.clsPerson().GetBirthDate().date(), rules, ExactDay::Extent::Sun);

  const auto event = [&](const SkyEvent &exact, double clock, const QString &reason) -> QString {
    if (!exact.Happens()) return reason;
    return Apart(clock, exact.at, rules.zone) > NearMinutes ? words.Time(exact.at, day.date) : QString();
  };
  const auto period = [&](Period::Kind kind, double startClock, double span) -> QString {
    for (const Period &exact : day.periods) {
      if (exact.kind != kind) continue;
      const bool near =
          Apart(startClock, exact.begins, rules.zone) <= NearMinutes && Apart(startClock + span, exact.ends, rules.zone) <= NearMinutes;
      return near ? QString() : words.Range(exact.begins, exact.ends, day.date);
    }
    return words.Word("NoDivisions");
  };
  return {event(day.sunrise, todayChart.SunRiseTime(), words.Sunrise(day)), event(day.sunset, todayChart.SunSetTime(), words.Sunset(day)),
          period(Period::Kind::RahuKaal, todayChart.GetRahuKaalStartToday(), todayChart.GetRahuKaalSpanToday()),
          period(Period::Kind::Yamaghanta, todayChart.GetEvilMuhurthaStart(YamaghantaKind), todayChart.GetMuhurthaLength())};
}
