// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/KeptDays.h"

#include <gtest/gtest.h>

namespace {

// All that was found about a day, for a comparison to the last digit.
std::vector<double> FiguresOf(const ExactDay &day) {
  std::vector<double> figures{day.begins, day.ends, day.sunLongitude, day.moonLongitude, day.month.begins, day.month.ends};
  figures.push_back(day.month.amanta);
  figures.push_back(static_cast<double>(day.date.toJulianDay()));
  for (const SkyEvent &event : {day.sunrise, day.sunset, day.nextSunrise, day.moonrise, day.moonset}) {
    figures.push_back(static_cast<double>(event.state));
    figures.push_back(event.at);
  }
  for (const auto &spans : {day.limbs.tithis, day.limbs.nakshatras, day.limbs.yogas, day.limbs.karanas})
    for (const LimbSpan &span : spans)
      figures.insert(figures.end(), {double(span.number), span.begins, span.ends, static_cast<double>(span.course)});
  for (const SignChange &change : day.signChanges) figures.push_back(change.at);
  for (const Period &period : day.periods) figures.insert(figures.end(), {static_cast<double>(period.kind), period.begins, period.ends});
  for (const auto &parts : {day.chogadiyas, day.horas})
    for (const DayPart &part : parts) figures.insert(figures.end(), {double(part.type), part.begins, part.ends});
  return figures;
}

ExactRules At(double latitude, double longitude, const char *zone, Ephemeris::Zodiac::Kind kind) {
  ExactRules rules;
  rules.place = {latitude, longitude, 0};
  rules.zone = ExactZone(QLatin1String(zone), 330);
  rules.zodiac.kind = kind;
  return rules;
}

// A day of other rules makes all kept days forgotten.
ExactDay Afresh(const QDate &date, const ExactRules &rules) {
  ExactDay::Of(date, At(-33.9, 151.2, "Australia/Sydney", Ephemeris::Zodiac::Kind::Raman));
  return ExactDay::Of(date, rules);
}

TEST(KeptDays, ADayIsTheSameWhateverWasFoundBefore) {
  using Kind = Ephemeris::Zodiac::Kind;
  // Agra; New York over the end of summer time; Murmansk, where the Sun stops rising within these days.
  const std::pair<ExactRules, QDate> places[] = {{At(27.15, 78, "Asia/Kolkata", Kind::Lahiri), QDate(2026, 10, 25)},
                                                 {At(40.713, -74.006, "America/New_York", Kind::Krishnamurti), QDate(2026, 10, 25)},
                                                 {At(68.97, 33.08, "Europe/Moscow", Kind::Tropical), QDate(2026, 11, 22)}};
  constexpr int count = 14;
  for (const auto &[rules, first] : places) {
    std::vector<std::vector<double>> afresh;
    for (int n = 0; n < count; ++n) afresh.push_back(FiguresOf(Afresh(first.addDays(n), rules)));
    // What lies beside a day is kept from the last one alone here; then nothing, each third day, all.
    const auto compare = [&](const char *how) {
      const std::vector<ExactDay> days = ExactDay::Days(first, count, rules);
      for (int n = 0; n < count; ++n)
        EXPECT_EQ(FiguresOf(days[static_cast<size_t>(n)]), afresh[static_cast<size_t>(n)])
            << how << ", " << days[static_cast<size_t>(n)].date.toString(Qt::ISODate).toStdString() << " at " << rules.place.latitude;
    };
    compare("after the last day");
    Afresh(first.addDays(400), rules);
    compare("in one go");
    Afresh(first, rules);
    for (int n = 0; n < count; n += 3) ExactDay::Of(first.addDays(n), rules);
    compare("between days");
    compare("all kept");
  }
}

TEST(KeptDays, KeepsTheNearDaysAndOfOneSetOfRulesAlone) {
  KeptDays kept;
  const ExactRules agra = At(27.15, 78, "Asia/Kolkata", Ephemeris::Zodiac::Kind::Lahiri);
  kept.Use(agra);
  const QDate first(2026, 1, 1);
  constexpr int many = 150;
  for (int n = 0; n < many; ++n) {
    ExactDay day;
    day.date = first.addDays(n);
    day.weekday = n;
    kept.Keep(day);
  }
  const auto isKept = [&](int n) { return kept.Find(first.addDays(n)) != nullptr; };
  int found = 0;
  for (int n = 0; n < many; ++n) found += isKept(n);
  EXPECT_GE(found, 62) << "a month and its neighbours";
  EXPECT_LT(found, many) << "it may not grow without end";
  ASSERT_TRUE(isKept(many - 1));
  EXPECT_EQ(kept.Find(first.addDays(many - 1))->weekday, many - 1);
  EXPECT_FALSE(isKept(0)) << "the farthest day goes first";

  kept.Use(agra);
  EXPECT_TRUE(isKept(many - 1));
  ExactRules upperLimb = agra;
  upperLimb.disc = Ephemeris::DiscRule::UpperLimbRefraction;
  kept.Use(upperLimb);
  EXPECT_FALSE(isKept(many - 1)) << "the day of another sunrise";
}

}  // namespace
