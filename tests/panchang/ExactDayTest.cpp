// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The exact day against values from outside: almanacs, printed panchangs and other ephemerides.
#include "panchang/ExactDay.h"

#include <gtest/gtest.h>

#include <cmath>

#include "panchang/LunarAngle.h"

namespace {

using Ephemeris::Body;
using Ephemeris::DiscRule;
using Ephemeris::Zodiac;

constexpr double Second = 1 / 86400.0;

ExactRules Place(double latitude, double longitude, ExactZone zone, DiscRule disc = DiscRule::CentreNoRefraction) {
  ExactRules rules;
  rules.place = {latitude, longitude, 0};
  rules.zone = std::move(zone);
  rules.disc = disc;
  return rules;
}

ExactRules Bengaluru() { return Place(12.972, 77.594, ExactZone(330)); }

QDateTime Local(int year, int month, int day, int hour, int minute, int second = 0) {
  return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

// Seconds by which a moment parts from a clock time of the place.
double Off(const ExactRules &rules, double moment, const QDateTime &expected) {
  return (moment - rules.zone.UniversalOf(expected)) / Second;
}

std::string Clock(const ExactRules &rules, double moment) {
  return rules.zone.LocalOf(moment).toString("yyyy-MM-dd HH:mm:ss").toStdString();
}

}  // namespace

TEST(ExactDay, HasTheSunriseAndSunsetOfPrintedTables) {
  const ExactRules rules = Bengaluru();
  const ExactDay day = ExactDay::Of(QDate(2013, 1, 18), rules);
  EXPECT_NEAR(Off(rules, day.sunrise.at, Local(2013, 1, 18, 6, 49, 46)), 0, 2) << Clock(rules, day.sunrise.at);
  EXPECT_NEAR(Off(rules, day.sunset.at, Local(2013, 1, 18, 18, 10, 25)), 0, 2) << Clock(rules, day.sunset.at);
}
TEST(ExactDay, P) {
  const ExactRules rules = Bengaluru();
  const ExactDay day = ExactDay::Of(QDate(2010, 4, 24), rules);
  for (auto *v : {&day.limbs.tithis, &day.limbs.nakshatras, &day.limbs.yogas, &day.limbs.karanas})
    for (const LimbSpan &s : *v)
      printf("%d %s %s %d\n", s.number, Clock(rules, s.begins).c_str(), Clock(rules, s.ends).c_str(), (int)s.course);
  printf("%.6f %.6f\n", NextMoment(LunarAngle::Elongation, 348, 2458104.0, {}), NextMoment(LunarAngle::Elongation, 0, 2458104.9, {}));
}
