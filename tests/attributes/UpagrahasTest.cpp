// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "attributes/BareChart.h"
#include "engine/Functions.h"
#include "platform/Errors.h"

namespace {

void CalculateAgra(clsPlanets &chart, int day, int hour) {  // of July 1980; the 20th was a Sunday
  clsPerson &person = chart.clsPerson();
  person.SetDay(day);
  person.SetMonth(7);
  person.SetYear(1980);
  person.SetHour(hour);
  person.SetLatDeg(27);
  person.SetLatMT(9);
  person.SetLongDeg(78);
  person.SetGMTDIFF(QStringLiteral("5.5"));
  chart.Calculate();
}

}  // namespace

// Upaketu stands a sign behind the Sun: a chain that went wrong anywhere would miss it.
TEST(Upagrahas, TheArcsCloseAtTheSun) {
  for (int sun = 0; sun < 360; sun += 7) {
    BareChart chart{{1, static_cast<double>(sun)}};
    EXPECT_NEAR(std::remainder(chart->UpaketuLongi() + 30 - sun, 360), 0, 1e-9) << sun;
    EXPECT_NEAR(std::remainder(chart->DhumaLongi() + chart->VyatipataLongi(), 360), 0, 1e-9) << sun;
    EXPECT_NEAR(std::remainder(chart->PariveshaLongi() + chart->IndraChapaLongi(), 360), 0, 1e-9) << sun;
    EXPECT_NEAR(std::remainder(chart->DhwajaLongi() - sun - 80 - 40 - 200.0 / 3 - 80, 360), 0, 1e-9) << sun;
  }
}

TEST(Upagrahas, NumbersOutsideTheTableAreRefused) {
  BareChart chart;
  for (const int number : {-1, 0, 18}) EXPECT_THROW(chart->UpagrahaLongi(number), SubscriptError) << number;
  for (int number = -1; number <= 18; ++number) EXPECT_EQ(clsPlanets::UpagrahaLord(number) != 0, number >= 1 && number <= 5) << number;
}

TEST(Upagrahas, EachWeekdayStepsBackOneEighth) {
  // Gulika rises by day at the end of the seventh eighth on Sunday, of the sixth on Monday, of the first on Saturday.
  for (int day = 20; day <= 26; ++day) {
    BareChart chart;
    CalculateAgra(chart.chart, day, 12);
    ASSERT_TRUE(chart->DayBirth()) << day;
    const int part = 7 - (day - 20);
    const double hours = chart->DayDuration() / 8 * part + clsPlanets::MinToDec(chart->SunRiseTime());
    BareChart risen;
    chart->CopySettingTo(risen.chart);
    risen->clsPerson().SetHour(Functions::Fix(hours));
    risen->clsPerson().SetMinutes((hours - Functions::Fix(hours)) * 60);
    risen->Calculate();
    EXPECT_DOUBLE_EQ(chart->GulikaLong(), risen->PlanetLongi(0)) << day;
  }
}

TEST(Upagrahas, ANewModeClearsWhatWasKept) {
  BareChart chart;
  CalculateAgra(chart.chart, 20, 12);
  const double end = chart->GulikaLong(), mandi = chart->MandiLong(), dhuma = chart->DhumaLongi();
  chart->SetPlanetLongi(1, 0);
  EXPECT_DOUBLE_EQ(chart->DhumaLongi(), dhuma);  // kept
  chart->SetUpagrahaMode(2);
  EXPECT_NE(chart->DhumaLongi(), dhuma);
  EXPECT_LT(chart->GulikaLong(), end);           // the beginning of the part rises before its end
  EXPECT_DOUBLE_EQ(chart->KalaBelaLong(), end);  // part 0 counts as the seventh
  EXPECT_DOUBLE_EQ(chart->MandiLong(), mandi);
  chart->SetUpagrahaMode(1);
  EXPECT_DOUBLE_EQ(chart->GulikaLong(), end);
}

TEST(Upagrahas, ArudhaNeverFallsIntoItsHouseOrTheSeventh) {
  for (int ascendant = 1; ascendant <= 12; ++ascendant)
    for (int planets = 1; planets <= 12; ++planets) {
      BareChart chart{{0, ascendant * 30 - 15.0}};
      for (int planet = 1; planet <= 7; ++planet) chart->SetPlanetLongi(planet, planets * 30 - 15.0 + planet / 10.0);
      const int arudha = chart->FindAroodhaLagna(), upapada = chart->FindUpaPadaLagna();
      EXPECT_NE((arudha - ascendant + 12) % 6, 0) << ascendant << " " << planets;
      EXPECT_NE((upapada - ascendant + 13) % 6, 0) << ascendant << " " << planets;
      EXPECT_EQ(chart->AtmaKaraka(), 7);
      EXPECT_EQ(chart->AtmaKarakaSign(), planets);
      chart->FillVargaTable();
      // The atmakaraka stands 15.7 degrees inside its sign, in the fifth ninth: counted from the sign itself in movable
      // signs, from the ninth in fixed ones and from the fifth in dual ones.
      const int first = planets % 3 == 1 ? planets : planets % 3 == 2 ? planets + 8 : planets + 4;
      EXPECT_EQ(chart->KarakamsaLagna(), (first + 4 - 1) % 12 + 1) << planets;
    }
}
