// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The exact day against values from outside: almanacs, printed panchangs and other ephemerides.
#include "panchang/ExactDay.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

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
  EXPECT_EQ(day.weekday, 6);

  // By the upper limb in seen air, to the minute, as newspapers print them; summer time is in the clock.
  struct Almanac {
    const char *name;
    double latitude, longitude;
    const char *zone;
    QDateTime sunrise, sunset;
  };
  const Almanac almanacs[] = {
      {"New York", 40.713, -74.006, "America/New_York", Local(2024, 6, 20, 5, 25), Local(2024, 6, 20, 20, 31)},
      {"New York winter", 40.713, -74.006, "America/New_York", Local(2024, 12, 21, 7, 17), Local(2024, 12, 21, 16, 32)},
      {"Sydney", -33.868, 151.207, "Australia/Sydney", Local(2024, 12, 21, 5, 41), Local(2024, 12, 21, 20, 5)},
      {"London", 51.507, -0.128, "Europe/London", Local(2024, 6, 20, 4, 43), Local(2024, 6, 20, 21, 21)},
      {"Quito", -0.180, -78.467, "America/Guayaquil", Local(2024, 3, 20, 6, 18), Local(2024, 3, 20, 18, 24)},
  };
  for (const Almanac &a : almanacs) {
    const ExactRules place = Place(a.latitude, a.longitude, ExactZone(a.zone, 0), DiscRule::UpperLimbRefraction);
    const ExactDay there = ExactDay::Of(a.sunrise.date(), place);
    EXPECT_NEAR(Off(place, there.sunrise.at, a.sunrise), 0, 60) << a.name << " " << Clock(place, there.sunrise.at);
    EXPECT_NEAR(Off(place, there.sunset.at, a.sunset), 0, 60) << a.name << " " << Clock(place, there.sunset.at);
  }
}

TEST(ExactDay, EndsItsTithisAsPrintedPanchangsDo) {
  const ExactRules rules = Bengaluru();
  const ExactDay day = ExactDay::Of(QDate(2010, 4, 24), rules);
  ASSERT_EQ(day.limbs.tithis.size(), 3u);
  const LimbSpan &tenth = day.limbs.tithis[0], &eleventh = day.limbs.tithis[1];
  EXPECT_EQ(tenth.number, 10);
  EXPECT_NEAR(Off(rules, tenth.ends, Local(2010, 4, 24, 6, 9, 29)), 0, 2);
  EXPECT_EQ(eleventh.number, 11);
  EXPECT_NEAR(Off(rules, eleventh.ends, Local(2010, 4, 25, 3, 33, 58)), 0, 2);
  EXPECT_EQ(eleventh.course, LimbSpan::Course::Skipped);

  EXPECT_NEAR((NextMoment(LunarAngle::Elongation, 348, 2458104.0, {}) - 2458104.66637) / Second, 0, 2);
  EXPECT_NEAR((NextMoment(LunarAngle::Elongation, 0, 2458105.0, {}) - 2458105.77113) / Second, 0, 2);
  EXPECT_NEAR((LastMoment(LunarAngle::Elongation, 348, 2458105.0, {}) - 2458104.66637) / Second, 0, 2);
}

TEST(ExactDay, FindsTheRoundThatIsMeantInEveryAgeAndZodiac) {
  using Kind = Ephemeris::Zodiac::Kind;
  const std::pair<LunarAngle, double> rounds[] = {
      {LunarAngle::Elongation, 29.53}, {LunarAngle::Moon, 27.32}, {LunarAngle::Sum, 25.42}, {LunarAngle::Sun, 365.25}};
  for (const Ephemeris::Zodiac &zodiac : {Ephemeris::Zodiac{Kind::Tropical, 0}, {Kind::Lahiri, 0}, {Kind::Fixed, 200}, {Kind::Fixed, 0}})
    for (const double day : {1721500.3, 2299160.9, 2451545.2, 2461366.7, 2816400.3})  // the years 1, 1582, 2000, 2026 and 2998
      for (const auto &[angle, length] : rounds)
        for (const double ahead : {-100.0, -2.0, 0.5, 115.0}) {
          const double now = AngleAt(angle, day, zodiac), target = std::fmod(now + ahead + 360, 360);
          const double found = MomentNear(angle, target, day, zodiac);
          EXPECT_NEAR(std::remainder(AngleAt(angle, found, zodiac) - target, 360), 0, 1e-5) << day << " " << ahead;
          EXPECT_NEAR(found - day, ahead / 360 * length, length / 12) << day << " " << ahead << " " << int(angle);
        }
}

TEST(ExactDay, HasTheLibrarysSiderealPositions) {
  const double moment = ExactZone(0).UniversalOf(Local(2026, 7, 20, 14, 0));
  const auto degrees = [](int sign, int d, int m, int s) { return (sign - 1) * 30 + d + m / 60.0 + s / 3600.0; };
  const std::pair<Body, double> expected[] = {{Body::Sun, degrees(4, 3, 39, 9)},
                                              {Body::Moon, degrees(6, 23, 30, 38)},
                                              {Body::Mercury, degrees(3, 22, 35, 57)},
                                              {Body::MeanNode, degrees(11, 7, 19, 11)}};
  for (const auto &[body, longitude] : expected)
    EXPECT_NEAR((Ephemeris::ApparentLongitude(moment, body, {}) - longitude) * 3600, 0, 2) << static_cast<int>(body);
  // The zodiacs part by their ayanamshas, and a fixed one by what it is told.
  const auto sun = [&](Zodiac zodiac) { return Ephemeris::ApparentLongitude(moment, Body::Sun, zodiac); };
  const double tropical = sun({Zodiac::Kind::Tropical, 0});
  EXPECT_NEAR(tropical - sun({Zodiac::Kind::Fixed, 24.25}), 24.25, 1e-9);
  EXPECT_NEAR(tropical - sun({Zodiac::Kind::Lahiri, 0}), 24.23, 0.02);
  EXPECT_NEAR(tropical - sun({Zodiac::Kind::Krishnamurti, 0}), 24.13, 0.03);
  EXPECT_NEAR(tropical - sun({Zodiac::Kind::Raman, 0}), 22.78, 0.03);
}

TEST(ExactDay, NamesLunarMonthsInBothReckonings) {
  struct Case {
    QDate date;
    int amanta;
    bool adhika;
    int kshaya, purnimanta, vikrama;
  };
  const Case cases[] = {
      {QDate(2012, 8, 18), 6, true, 0, 6, 2069},  // adhika Bhadrapada
      {QDate(2023, 7, 25), 5, true, 0, 5, 2080},  // adhika Shravana, both halves
      {QDate(2023, 8, 10), 5, true, 0, 5, 2080},
      {QDate(2023, 7, 10), 4, false, 0, 5, 2080},   // the dark half before it is Shravana from full Moon to full Moon
      {QDate(2026, 6, 1), 3, true, 0, 3, 2083},     // adhika Jyeshtha
      {QDate(2026, 3, 18), 12, false, 0, 1, 2082},  // the last day of the old year
      {QDate(2026, 3, 20), 1, false, 0, 1, 2083},
      {QDate(1983, 1, 20), 10, false, 11, 10, 2039},  // Magha is left out between two added months
      {QDate(1983, 2, 20), 12, true, 0, 12, 2039},
      {QDate(1982, 10, 1), 7, true, 0, 7, 2039},
  };
  for (const Case &c : cases) {
    const LunarMonth month = ExactDay::Of(c.date, Place(23.18, 75.77, ExactZone(330))).month;
    const std::string date = c.date.toString(Qt::ISODate).toStdString();
    EXPECT_EQ(month.amanta, c.amanta) << date;
    EXPECT_EQ(month.adhika, c.adhika) << date;
    EXPECT_EQ(month.kshaya, c.kshaya) << date;
    EXPECT_EQ(month.purnimanta, c.purnimanta) << date;
    EXPECT_EQ(month.vikrama, c.vikrama) << date;
    EXPECT_EQ(month.shaka, c.vikrama - 135) << date;
  }
}

// Where the Sun does not rise or set, the day says so, has its limbs all the same and no parts of a daylight that is not there.
TEST(ExactDay, TellsOfPolarDays) {
  using State = SkyEvent::State;
  const ExactRules murmansk = Place(68.97, 33.08, ExactZone("Europe/Moscow", 180));
  const ExactDay winter = ExactDay::Of(QDate(2025, 1, 1), murmansk), summer = ExactDay::Of(QDate(2025, 6, 15), murmansk);
  EXPECT_EQ(winter.sunrise.state, State::StaysBelow);
  EXPECT_EQ(winter.sunset.state, State::StaysBelow);
  EXPECT_EQ(summer.sunrise.state, State::StaysAbove);
  EXPECT_EQ(summer.sunset.state, State::StaysAbove);
  for (const ExactDay *day : {&winter, &summer}) {
    EXPECT_EQ(Clock(murmansk, day->begins).substr(11, 4), "06:4") << "six of local mean time by Moscow's clock";
    EXPECT_NEAR(day->ends - day->begins, 1, 1e-9);
    EXPECT_FALSE(day->limbs.tithis.empty());
    EXPECT_TRUE(day->chogadiyas.empty() && day->horas.empty());
    for (const Period &period : day->periods) EXPECT_TRUE(period.kind == Period::Kind::Varjyam || period.kind == Period::Kind::Amrita);
  }
}

// Through a year at places of both hemispheres: the days and their limbs follow each other without a gap, a tithi is skipped or
// repeated exactly where the sunrises say so, and Sun and Moon stand on the horizon when they are said to rise.
TEST(ExactDay, FollowsTheDayBefore) {
  for (const ExactRules &rules :
       {Bengaluru(), Place(-33.868, 151.207, ExactZone("Australia/Sydney", 600)), Place(51.507, -0.128, ExactZone("Europe/London", 0)),
        Place(-0.18, -78.467, ExactZone(-300)), Place(62, -150, ExactZone("America/Anchorage", -540))}) {
    const std::vector<ExactDay> days = ExactDay::Days(QDate(2026, 1, 1), 366, rules);
    int skipped = 0, repeated = 0, withoutMoonrise = 0;
    for (size_t n = 0; n < days.size(); ++n) {
      const ExactDay &day = days[n];
      ASSERT_TRUE(day.sunrise.Happens() && day.sunset.Happens());
      EXPECT_NEAR(Ephemeris::TrueAltitude(day.sunrise.at, Body::Sun, rules.place), 0.0024, 0.001);
      EXPECT_EQ(rules.zone.LocalOf(day.sunrise.at).date(), day.date);
      withoutMoonrise += !day.moonrise.Happens();
      for (const SkyEvent &event : {day.moonrise, day.moonset}) {
        if (!event.Happens()) continue;
        // Seen from the place it is on the horizon, so from the earth's middle by its parallax above it.
        EXPECT_NEAR(Ephemeris::TrueAltitude(event.at, Body::Moon, rules.place), 0.957, 0.07) << Clock(rules, event.at);
        EXPECT_TRUE(event.at >= day.begins && event.at < day.ends);
      }
      for (const auto *spans : {&day.limbs.tithis, &day.limbs.nakshatras, &day.limbs.yogas, &day.limbs.karanas}) {
        EXPECT_LE(spans->front().begins, day.begins);
        EXPECT_GE(spans->back().ends, day.ends);
        for (size_t k = 1; k < spans->size(); ++k) EXPECT_EQ((*spans)[k].begins, (*spans)[k - 1].ends);
      }
      int step = 1;
      for (const LimbSpan &tithi : day.limbs.tithis) {
        step += tithi.course == LimbSpan::Course::Skipped;
        skipped += tithi.course == LimbSpan::Course::Skipped;
      }
      repeated += day.limbs.tithis.front().course == LimbSpan::Course::Repeated;
      if (n + 1 == days.size()) continue;
      const ExactDay &next = days[n + 1];
      EXPECT_EQ(day.ends, next.begins);
      const bool again = next.limbs.tithis.front().course == LimbSpan::Course::Again;
      EXPECT_EQ(day.limbs.tithis.front().course == LimbSpan::Course::Repeated, again);
      EXPECT_EQ((day.limbs.tithis.front().number + step - again - 1) % 30 + 1, next.limbs.tithis.front().number);
      EXPECT_NEAR(day.limbs.tithis.back().ends - day.limbs.tithis.back().begins, 0.98, 0.15);
    }
    EXPECT_GE(skipped, 6);
    EXPECT_GE(repeated, 2);
    EXPECT_GE(withoutMoonrise, 11);
  }
}

TEST(ExactDay, DividesTrueDaylightAndNight) {
  const ExactRules rules = Bengaluru();
  using Kind = Period::Kind;
  const auto find = [](const ExactDay &day, Kind kind) {
    std::vector<Period> found;
    for (const Period &period : day.periods)
      if (period.kind == kind) found.push_back(period);
    return found;
  };
  // Saturday to Friday: the eighths of Rahu Kaal, Yamaghanta and Gulika, and the fifteenths of Dur Muhurta; above 100 of the night.
  struct Row {
    int rahu, yama, gulika;
    std::vector<int> dur;
  };
  const Row rows[] = {{3, 6, 1, {1, 2}}, {8, 5, 7, {14}},    {2, 4, 6, {9, 12}}, {7, 3, 5, {4, 107}},
                      {5, 2, 4, {8}},    {6, 1, 3, {6, 12}}, {4, 7, 2, {4, 9}}};
  for (int n = 0; n < 7; ++n) {
    const ExactDay day = ExactDay::Of(QDate(2026, 11, 21).addDays(n), rules);
    const double light = day.sunset.at - day.sunrise.at, dark = day.nextSunrise.at - day.sunset.at;
    const auto eighth = [&](Kind kind) { return (find(day, kind).at(0).ends - day.sunrise.at) / light * 8; };
    EXPECT_NEAR(eighth(Kind::RahuKaal), rows[n].rahu, 1e-6) << n;
    EXPECT_NEAR(eighth(Kind::Yamaghanta), rows[n].yama, 1e-6) << n;
    EXPECT_NEAR(eighth(Kind::Gulika), rows[n].gulika, 1e-6) << n;
    std::vector<int> dur;
    for (const Period &period : find(day, Kind::DurMuhurta)) {
      const bool ofNight = period.begins > day.sunset.at;
      const double part = ofNight ? 100 + (period.ends - day.sunset.at) / dark * 15 : (period.ends - day.sunrise.at) / light * 15;
      dur.push_back(static_cast<int>(std::lround(part)));
    }
    EXPECT_EQ(dur, rows[n].dur) << n;
    const Period abhijit = find(day, Kind::Abhijit).at(0);
    EXPECT_NEAR((abhijit.begins + abhijit.ends) / 2, (day.sunrise.at + day.sunset.at) / 2, 1e-9);
    EXPECT_EQ(abhijit.setAside, day.weekday == 4);
    const auto brahma = find(day, Kind::BrahmaMuhurta);
    ASSERT_EQ(brahma.size(), 2u);
    EXPECT_LT(brahma[0].ends, day.sunrise.at);
    EXPECT_NEAR(day.nextSunrise.at - brahma[1].begins, dark * 2 / 15, 1e-9);
    for (const auto *parts : {&day.chogadiyas, &day.horas}) {
      EXPECT_EQ(parts->front().begins, day.sunrise.at);
      EXPECT_NEAR(parts->back().ends, day.nextSunrise.at, 1e-9);
      for (size_t k = 1; k < parts->size(); ++k) EXPECT_NEAR((*parts)[k].begins, (*parts)[k - 1].ends, 1e-9);
    }
    // The day's first hora is its own lord's, and so is the next day's after twenty-four.
    constexpr int lordOfDay[] = {0, 1, 4, 7, 3, 6, 2, 5};
    EXPECT_EQ(day.horas.front().type, lordOfDay[day.weekday]);
    for (const Kind kind : {Kind::Varjyam, Kind::Amrita}) {
      for (const Period &period : find(day, kind)) {
        bool inside = false;
        for (const LimbSpan &nakshatra : day.limbs.nakshatras)
          inside |= period.begins >= nakshatra.begins && period.ends <= nakshatra.ends + 1e-8 &&
                    std::abs((period.ends - period.begins) * 15 - (nakshatra.ends - nakshatra.begins)) < 1e-7;
        EXPECT_TRUE(inside) << n;
      }
    }
  }
  EXPECT_EQ(KaranaOfHalf(0), 11);
  for (const auto &[half, karana] : {std::pair{1, 1}, {7, 7}, {8, 1}, {56, 7}, {57, 8}, {58, 9}, {59, 10}})
    EXPECT_EQ(KaranaOfHalf(half), karana);
}

// The verses on the poison ghatis in the Muhurta Chintamani give them by number words, a group of nakshatras to each; here as
// the numbers are read. Ardra's and Mula's are those of the southern lists, which part from the verses' 21 and single 56.
TEST(ExactDay, KeepsToTheGhatisOfTheVerses) {
  const std::map<int, std::vector<int>> verses{{30, {27, 7, 3, 10}},
                                               {40, {4}},
                                               {32, {9}},
                                               {50, {1}},
                                               {18, {12, 24}},
                                               {20, {11, 14, 21, 8, 19}},
                                               {14, {16, 15, 5, 18}},
                                               {21, {13}},
                                               {16, {25}},
                                               {24, {26, 20, 2}},
                                               {10, {17, 23, 22}},
                                               {11, {6}},
                                               {56, {19}}};
  std::map<int, std::set<int>> varjyam, amrita, wanted;
  for (const auto &[ghati, nakshatras] : verses)
    for (const int nakshatra : nakshatras) wanted[nakshatra].insert(ghati);
  for (const ExactDay &day : ExactDay::Days(QDate(2026, 1, 1), 60, Bengaluru())) {
    for (const Period &period : day.periods) {
      if (period.kind != Period::Kind::Varjyam && period.kind != Period::Kind::Amrita) continue;
      for (const LimbSpan &nakshatra : day.limbs.nakshatras) {
        const double ghati = (period.begins - nakshatra.begins) / (nakshatra.ends - nakshatra.begins) * 60;
        if (ghati < 0 || ghati >= 60) continue;
        (period.kind == Period::Kind::Varjyam ? varjyam : amrita)[nakshatra.number].insert(static_cast<int>(std::lround(ghati)));
      }
    }
  }
  EXPECT_EQ(varjyam, wanted);
  for (const auto &[nakshatra, ghatis] : varjyam) EXPECT_EQ(amrita[nakshatra].size(), 1u) << nakshatra;
}

// The clocks of New York are put on at 2 o'clock of March 8: the day is told by the new time from then on.
TEST(ExactDay, KeepsToTheClocksOfThePlace) {
  const ExactZone zone("America/New_York", -300);
  const double before = zone.UniversalOf(Local(2026, 3, 8, 1, 59)), after = zone.UniversalOf(Local(2026, 3, 8, 3, 0));
  EXPECT_NEAR((after - before) / Second, 60, 1e-3);
  EXPECT_EQ(zone.LocalOf(before), Local(2026, 3, 8, 1, 59));
  EXPECT_FALSE(zone.HasDaylightSaving(before));
  EXPECT_TRUE(zone.HasDaylightSaving(after));
  EXPECT_NEAR(zone.StartOf(QDate(2026, 3, 9)) - zone.StartOf(QDate(2026, 3, 8)), 23 / 24.0, 1e-9);
  EXPECT_EQ(ExactZone("No/Where", 345).SecondsEastAt(before), 345 * 60);
  EXPECT_EQ(ExactZone::OffsetText(345 * 60), "UTC+5:45");
  EXPECT_EQ(ExactZone::OffsetText(-210 * 60), "UTC-3:30");
  // Before sunrise it is still the day before.
  const ExactRules rules = Bengaluru();
  EXPECT_EQ(ExactDay::At(rules.zone.UniversalOf(Local(2026, 11, 21, 3, 0)), rules).date, QDate(2026, 11, 20));
  EXPECT_EQ(ExactDay::At(rules.zone.UniversalOf(Local(2026, 11, 21, 8, 0)), rules).date, QDate(2026, 11, 21));
}
