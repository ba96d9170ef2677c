// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include "attributes/BareChart.h"
#include "platform/Errors.h"

TEST(Dignity, SpansAreOpenBelowAndClosedAbove) {
  struct {
    int planet;
    double degrees;
    const char *mark;
  } const cases[] = {
      {1, 0, ""},        {1, 0.1, "Exalt"},  {1, 10, "Exalt"}, {1, 10.1, ""},     {1, 140, "Mool"},  {1, 140.1, "Own"},
      {1, 190, ""},      {1, 190.1, "Debi"}, {2, 60, ""},      {2, 60.1, "Own"},  {2, 165, "Exalt"}, {2, 165.1, "Mool"},
      {2, 170.1, "Own"}, {3, 357, "Exalt"},  {3, 357.1, ""},   {4, 0, ""},        {4, 12, "Mool"},   {4, 12.5, ""},
      {4, 18, ""},       {4, 18.5, "Own"},   {4, 240, "Own"},  {5, 250.5, "Own"}, {5, 360, "Own"},   {6, 0, ""},
      {6, 0.1, "Debi"},  {6, 200, "Exalt"},  {6, 270, ""},     {6, 320, "Mool"},  {7, 33, "Exalt"},  {7, 33.1, "Mool"},
      {8, 60, "Exalt"},  {9, 60, "Debi"},    {8, 240.1, ""},   {0, 5, ""},        {10, 5, ""},       {12, 320, ""},
  };
  for (const auto &c : cases) {
    BareChart chart{{c.planet, c.degrees}};
    EXPECT_EQ(chart->ExaltClassEng(c.planet), QLatin1String(c.mark)) << c.planet << " at " << c.degrees;
    EXPECT_EQ(chart->IsMoolTrikona(c.planet), QLatin1String(c.mark) == QLatin1String("Mool")) << c.planet << " at " << c.degrees;
    EXPECT_EQ(chart->ExaltClass(c.planet).startsWith(QLatin1String("CNVT|-|")), *c.mark == 0) << c.planet << " at " << c.degrees;
  }
}

TEST(Dignity, DeepestPointsLieOppositeAndInsideTheirSpans) {
  for (int planet = 1; planet <= 7; ++planet) {
    int exalted = 0, debilitated = 0;
    for (int tenth = 0; tenth <= 3600; ++tenth) {
      const double degrees = tenth / 10.0, across = (tenth + 1800) % 3600 / 10.0;
      BareChart here{{planet, degrees}}, opposite{{planet, across}};
      EXPECT_TRUE(tenth == 3600 || here->CheckHighestExaltDeg(planet) == opposite->CheckHighestDebiDeg(planet)) << planet << " " << degrees;
      exalted += here->CheckHighestExaltDeg(planet);
      debilitated += here->CheckHighestDebiDeg(planet);
      EXPECT_TRUE(!here->CheckHighestExaltDeg(planet) || here->ExaltClassEng(planet) == "Exalt") << planet << " " << degrees;
      EXPECT_TRUE(!here->CheckHighestDebiDeg(planet) || here->Debilitated(planet)) << planet << " " << degrees;
    }
    EXPECT_EQ(exalted, 6) << planet;  // half a degree with both ends
    EXPECT_EQ(debilitated, 6) << planet;
  }
  BareChart ascendant;
  EXPECT_FALSE(ascendant->CheckHighestExaltDeg(0) || ascendant->CheckHighestDebiDeg(0));
}

TEST(Dignity, TheTwoFormsOfOwnSignsPartWhereTheyShould) {
  for (int planet = 0; planet <= 12; ++planet)
    for (int sign = 1; sign <= 12; ++sign) {
      BareChart chart{{planet, sign * 30 - 15.0}};
      const bool parted = (planet == 2 && sign == 6) || (planet >= 10 && clsPlanets::CheckOwnHouse(planet, sign));
      EXPECT_EQ(chart->InOwnHouse(planet), clsPlanets::CheckOwnHouse(planet, sign) && !parted) << planet << " in " << sign;
      // A sign is of one kind at most for a planet; own signs are of no kind but for the exceptions of the lists.
      EXPECT_LE(chart->InFriendHouse(planet) + chart->InEnemyHouse(planet) + chart->InSamaHouse(planet), 1) << planet << " in " << sign;
    }
  EXPECT_FALSE(clsPlanets::CheckOwnHouse(1, 5.5));
}

TEST(Dignity, RelationsAreReadWithTheirOddCells) {
  EXPECT_EQ(clsPlanets::GrahaRelation(3, "P4"), 1);
  EXPECT_EQ(clsPlanets::GrahaRelation(6, "P1"), 2);
  for (int planet = 0; planet <= 10; ++planet)
    for (int other = 0; other <= 10; ++other) {
      const bool listed = planet >= 1 && planet <= 9 && other >= 1 && other <= 9 && planet != other && (planet >= 8 || other <= 7);
      const QString text = QStringLiteral("P%1").arg(other);
      if (listed)
        EXPECT_TRUE(clsPlanets::GrahaRelation(planet, text) >= 1 && clsPlanets::GrahaRelation(planet, text) <= 3);
      else
        EXPECT_THROW(clsPlanets::GrahaRelation(planet, text), SubscriptError) << planet << " " << other;
    }
  for (const char *text : {"", "P", "1", "Q1", "P1 "}) EXPECT_THROW(clsPlanets::GrahaRelation(2, text), SubscriptError) << text;
}

TEST(Dignity, CompoundRelationsNeedBothHalves) {
  // The Sun in Aries: its lord Mars is a natural friend, a temporary one within three signs to either side.
  for (int mars = 1; mars <= 12; ++mars) {
    BareChart chart{{1, 5}, {4, mars * 30 - 15.0}};
    const bool near = mars == 12 || mars == 11 || mars == 10 || mars == 2 || mars == 3 || mars == 4;
    EXPECT_EQ(chart->InAdhiMitraHouse(1), near) << mars;
    EXPECT_FALSE(chart->InAdhiSatruHouse(1)) << mars;
    // In Taurus the lord is Venus, a natural enemy.
    BareChart taurus{{1, 35}, {3, ((mars + 1) % 12) * 30 + 15.0}};
    EXPECT_FALSE(taurus->InAdhiMitraHouse(1)) << mars;
  }
  BareChart enemy{{1, 35}, {3, 45}};
  EXPECT_TRUE(enemy->InAdhiSatruHouse(1));
}

TEST(Dignity, CombustionDoesNotWrapAndTheOrbOfTheSunDoes) {
  BareChart across{{1, 359}, {2, 1}, {15, 2}};
  EXPECT_FALSE(across->Combust(2));
  EXPECT_EQ(across->AstaText(2), "CNVT|False|ASTA");
  EXPECT_TRUE(across->WithinOrbOfSun(2));
  EXPECT_FALSE(across->WithinOrbOfSun(1));
  struct {
    int planet;
    double combust, retrograde, direct;  // the widest distances that still count
  } const orbs[] = {{2, 7, 12, 14}, {3, 7, 8, 10}, {4, 8, 17, 17}, {5, 9, 8, 11}, {6, 9, 15, 15}, {7, 12, 12, 12}};
  for (const auto &orb : orbs)
    for (const double side : {-1.0, 1.0})
      for (int half = 0; half <= 40; ++half) {
        const double distance = half / 2.0, degrees = 100 + side * distance;
        BareChart direct{{1, 100}, {orb.planet, degrees}, {orb.planet + 13, degrees + 0.1}};
        BareChart retrograde{{1, 100}, {orb.planet, degrees}, {orb.planet + 13, degrees - 0.1}};
        EXPECT_EQ(direct->Combust(orb.planet).has_value(), distance <= orb.combust) << orb.planet << " " << distance;
        EXPECT_EQ(direct->AstaText(orb.planet).contains("True"), distance <= orb.direct) << orb.planet << " " << distance;
        EXPECT_EQ(retrograde->AstaText(orb.planet).contains("True"), distance <= orb.retrograde) << orb.planet << " " << distance;
        EXPECT_EQ(direct->WithinOrbOfSun(orb.planet), distance <= 15) << orb.planet << " " << distance;
      }
  for (const int never : {0, 1, 8, 9, 10, 12}) EXPECT_FALSE(clsPlanets::CheckIfCombust(50, never, 50)) << never;
}
