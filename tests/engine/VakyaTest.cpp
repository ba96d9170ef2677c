// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "engine/Ephemeris.h"
#include "engine/clsPlanets.h"
#include "engine/clsVakya.h"
#include "platform/Errors.h"

namespace {

double Apart(double first, double second) { return std::remainder(first - second, 360); }

struct Worst {
  double distance = 0, sum = 0;
  int count = 0;
  void Take(double apart) {
    distance = std::max(distance, std::abs(apart));
    sum += apart;
    ++count;
  }
};

}  // namespace

// The old method and the modern ephemeris part by what the old one leaves out (the evection for the Moon), never by
// more, and not to one side: a slip in a revolution, an apogee or the day count would show at once.
TEST(Vakya, BodiesStayNearTheModernOnesForTwoCenturies) {
  struct {
    const char *name;
    double (clsVakya::*longitude)() const;
    Ephemeris::Body body;
    double offset, limit, meanLimit;
    Worst worst;
  } bodies[] = {
      {"Sun", &clsVakya::Sun, Ephemeris::Body::Sun, 0, 0.5, 0.1, {}},
      {"Moon", &clsVakya::Moon, Ephemeris::Body::Moon, 0, 4, 0.2, {}},
      {"Jupiter", &clsVakya::Jupiter, Ephemeris::Body::Jupiter, 0, 4, 2, {}},
      {"Saturn", &clsVakya::Saturn, Ephemeris::Body::Saturn, 0, 5, 2.5, {}},
      // Counted from the other side of the circle, the node is the other node.
      {"Rahu", &clsVakya::Rahu, Ephemeris::Body::MeanNode, 180, 1.5, 1, {}},
  };
  for (int year = 1900; year <= 2100; ++year)
    for (int month = 1; month <= 12; ++month)
      for (const int day : {1, 9, 18, 27}) {
        clsVakya vakya;
        vakya.Calculate(day, month, year, 6, 0, 0, 23, 11, 75, 46);  // Ujjain, whose local time is 5.05 hours ahead
        const double julianDay = Ephemeris::JulianDay(year, month, day, 6 - 5.05);
        for (auto &one : bodies)
          one.worst.Take(Apart((vakya.*one.longitude)() + vakya.Ayanamsha() + one.offset, Ephemeris::Longitude(julianDay, one.body)));
        EXPECT_NEAR(Apart(vakya.Ketu(), vakya.Rahu() + 180), 0, 1e-9);
      }
  for (const auto &one : bodies) {
    EXPECT_LT(one.worst.distance, one.limit) << one.name;
    EXPECT_LT(std::abs(one.worst.sum / one.worst.count), one.meanLimit) << one.name;
  }
}

TEST(Vakya, TheDayCountKnowsItsEpochAndItsWeek) {
  clsVakya vakya;
  vakya.SetMoment(23, 7, 1980, 0, 0, 0);
  const double wednesday = vakya.FindKaliDin();
  EXPECT_EQ(wednesday, 1855978);
  for (int later = 0; later < 14; ++later)
    EXPECT_EQ(clsVakya::WeekdayOfDay(wednesday + later + 0.9), (5 + later) % 7) << later;  // Friday 0
  vakya.SetMoment(23, 7, 1980, 6, 30, 30);
  EXPECT_DOUBLE_EQ(vakya.FindKaliDin(), wednesday + (6.5 + 30 / 360.0) / 24);  // seconds at ten times their length
}

// Near the equinox the Sun rises at six and sets at eighteen. (Before sunrise the ascendant runs by the length of the
// Sun's own sign alone, so it is only followed from there on.)
TEST(Vakya, TheSunRisesAndSetsWithTheAscendant) {
  double before = 0;
  for (int minute = 6 * 60; minute <= 24 * 60; minute += 5) {
    clsVakya vakya;
    vakya.Calculate(21, 3, 2021, minute / 60, minute % 60, 0, 27, 9, 78, 0);
    const double step = Apart(vakya.Ascendant(), before);
    EXPECT_TRUE(minute == 360 || (step > 0.5 && step < 2.5)) << minute << " " << step;
    EXPECT_TRUE(minute != 360 || std::abs(Apart(vakya.Ascendant(), vakya.Sun())) < 1.5);
    EXPECT_TRUE(minute != 1080 || std::abs(Apart(vakya.Ascendant(), vakya.Sun() + 180)) < 1.5);
    before = vakya.Ascendant();
  }
  clsVakya polar;
  EXPECT_THROW(polar.Calculate(21, 6, 2021, 12, 0, 0, 75, 0, 20, 0), ArithmeticError);
}

// By this ayanamsha alone the method reaches a chart, through the chart's own clock and without its seconds.
TEST(Vakya, ItsAyanamshaServesAChart) {
  MemoryUserSettings settings;
  settings.SetIntValue(SettingKeys::AyanType, 15);
  clsPlanets chart(settings);
  clsPerson &person = chart.clsPerson();
  person.SetDay(23);
  person.SetMonth(7);
  person.SetYear(1980);
  person.SetHour(10);
  person.SetMinutes(50);
  person.Setseconds(59);
  person.SetLatDeg(75);
  person.SetGMTDIFF(QStringLiteral("5.5"));
  chart.Calculate();
  clsVakya vakya;
  vakya.SetMoment(23, 7, 1980, 10, 50, 0);
  EXPECT_DOUBLE_EQ(chart.PlanetLongi(13), clsVakya::CalcVakyaAyanamsha(vakya.FindKaliDin()));
  const double tropical = Ephemeris::Longitude(Ephemeris::JulianDay(1980, 7, 23, 5 + 20 / 60.0), Ephemeris::Body::Sun);
  EXPECT_NEAR(chart.PlanetLongi(1), tropical - chart.PlanetLongi(13), 1e-9);
}
