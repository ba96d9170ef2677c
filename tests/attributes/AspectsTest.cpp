// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "attributes/BareChart.h"

namespace {

double Middle(int sign) { return ((sign - 1) % 12) * 30 + 15.0; }

}  // namespace

TEST(Aspects, EachPlanetLooksOnItsOwnSigns) {
  const std::map<int, std::vector<int>> offsets{{0, {}},        {1, {6}}, {2, {6}}, {3, {6}}, {4, {3, 6, 7}}, {5, {4, 6, 8}},
                                                {6, {2, 6, 9}}, {7, {6}}, {8, {6}}, {9, {6}}, {10, {}}};
  for (const auto &[planet, list] : offsets)
    for (int from = 1; from <= 12; ++from)
      for (int offset = 0; offset <= 11; ++offset) {
        const int seen = planet == 11 ? 12 : 11;
        BareChart chart{{planet, Middle(from)}, {seen, Middle(from + offset)}};
        const bool looks = std::find(list.begin(), list.end(), offset) != list.end();
        EXPECT_EQ(chart->IfPlanetAspects(seen, planet), looks) << planet << " from " << from << " over " << offset;
        EXPECT_EQ(chart->CheckIfPlanetAspects(seen, planet), looks && planet <= 7) << planet << " from " << from << " over " << offset;
      }
}

TEST(Aspects, MarsAndSaturnLookElsewhereWhenRetrograde) {
  struct {
    int planet;
    bool retrograde;
    std::vector<int> signs;  // seen from Aries
  } const cases[] = {{4, false, {5, 8, 9}}, {4, true, {4, 7, 8}}, {6, false, {4, 8, 10}}, {6, true, {3, 7, 10}}};
  for (const auto &c : cases) {
    BareChart chart{{c.planet, 15}, {c.planet + 13, c.retrograde ? 14.9 : 15.1}};
    for (int sign = 1; sign <= 12; ++sign)
      EXPECT_EQ(chart->CheckMaleficAspects(c.planet, sign), std::find(c.signs.begin(), c.signs.end(), sign) != c.signs.end())
          << c.planet << " " << c.retrograde << " " << sign;
    EXPECT_FALSE(chart->CheckMaleficAspects(1, 7));
  }
}

TEST(Aspects, NaturalBeneficsAndMaleficsAreAskedByThePlanetsOwnLook) {
  BareChart saturn{{6, Middle(1)}, {5, Middle(3)}, {1, Middle(5)}, {2, Middle(5)}, {3, Middle(5)}, {7, Middle(5)}, {4, Middle(5)}};
  EXPECT_TRUE(saturn->PlanetAspectedByNatBenefic(6));  // Saturn looks two signs on, where Jupiter stands
  EXPECT_FALSE(saturn->PlanetAspectedByNatMalefic(6));
  BareChart rahu{{8, Middle(1)}, {1, Middle(7)}, {5, Middle(7)}};
  EXPECT_FALSE(rahu->PlanetAspectedByNatBenefic(8) || rahu->PlanetAspectedByNatMalefic(8));
  EXPECT_TRUE(rahu->AspectedByEnemy(1).value_or(false));  // Rahu, an enemy of the Sun, six signs away
  EXPECT_FALSE(rahu->AspectedByEnemy(5).has_value());
}

TEST(Aspects, DegreesPassByBothDistances) {
  struct {
    double first, second, orb;
    int code;
  } const cases[] = {
      {0, 0, 0, 1},       {0, 13.5, 13.5, 1}, {0, 14.4, 13.5, 0}, {10, 355, 15, 1}, {0, 90, 0, 2},   {0, 89, 0, 0},
      {0, 91, 0, 0},      {0, 91, 1, 2},      {0, 120, 0, 4},     {240, 120, 2, 4}, {0, 60, 0, 5},   {0, 180, 0, 3},
      {0, 179.5, 0.5, 3}, {0, 181, 0, 0},     {0, 105, 15, 4},    {0, 150, 0, 0},   {350, 50, 3, 5}, {5, 275, 4, 2},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(clsPlanets::DegreeAspectOf(c.first, c.second, c.orb), c.code) << c.first << " " << c.second << " " << c.orb;
    EXPECT_EQ(clsPlanets::DegreeAspectOf(c.second, c.first, c.orb), c.code) << c.second << " " << c.first << " " << c.orb;
  }
  BareChart chart{{1, 0}, {7, 14.4}, {2, 100}, {15, 99}, {6, 200}};
  EXPECT_EQ(chart->PlanetDegAspect(1, 7), 0);
  EXPECT_DOUBLE_EQ(chart->PlanetMutOrb(2, 6), 7.5);
  chart->SetPlanetLongi(15, 101);
  EXPECT_DOUBLE_EQ(chart->PlanetMutOrb(2, 6), 8.0);
}

TEST(Aspects, WesternCodesMirrorAtTheHalfCircle) {
  for (int hundredth = 0; hundredth <= 18000; ++hundredth) {
    const double degrees = hundredth / 100.0;
    const QString code = clsPlanets::FindRelation(degrees);
    ASSERT_EQ(code, clsPlanets::FindRelation(-degrees)) << degrees;
    ASSERT_EQ(code, clsPlanets::FindRelation((36000 - hundredth) / 100.0)) << degrees;
  }
  EXPECT_EQ(clsPlanets::FindRelation(147.34), "QNC");
  EXPECT_EQ(clsPlanets::FindRelation(20), "");
  EXPECT_EQ(clsPlanets::FindRelation(360.01), "");
}
