// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/DailyYogas.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace DailyYogas;

// How many cells of weekday by nakshatra, tithi or type hold; out of range none.
TEST(DailyYogas, WeekdayTestsHoldInTheirCellsAlone) {
  struct {
    const char *name;
    bool (*holds)(int weekday, int number);
    int cells;
  } const tests[] = {{"amrit siddhi", IsAmritSiddhi, 7},
                     {"yamghant", IsYamghant, 7},
                     {"dagdha nakshatra", IsDagdhaNakshatra, 7},
                     {"utpaat", IsUtpaat, 7},
                     {"mrityu", IsMrityuNak, 7},
                     {"kaan", IsKaan, 7},
                     {"siddhi", IsSiddhi, 7},
                     {"krakach", IsKrakach, 14},
                     {"hutashan", IsHutashan, 14},
                     {"adham", IsAdham, 15},
                     {"visha", IsVisha, 14},
                     {"samvartak", IsSamvartak, 2},
                     {"dagdha", IsDagdha, 14},
                     {"mrityu tithi", IsMrityuTithi, 7},
                     {"siddhi tithi", IsSiddhiTithi, 5}};
  for (const auto &test : tests) {
    int cells = 0;
    for (int weekday = -1; weekday <= 9; ++weekday)
      for (int number = -1; number <= 70; ++number) {
        cells += test.holds(weekday, number);
        EXPECT_FALSE((weekday < 1 || weekday > 7 || number < 1) && test.holds(weekday, number)) << test.name << weekday << " " << number;
      }
    EXPECT_EQ(cells, test.cells) << test.name;
  }
  for (int weekday = 1; weekday <= 7; ++weekday)
    for (int number = 1; number <= 30; ++number) {
      // Krakach is the day whose weekday and tithi add up to 13; Amrit Siddhi with its own tithi makes Vajra.
      EXPECT_EQ(IsKrakach(weekday, number), weekday + (number - 1) % 15 + 1 == 13) << weekday << " " << number;
      EXPECT_FALSE(IsKaan(2, number) && number <= 27) << number;
      EXPECT_TRUE(!IsUtpaat(weekday, number) || IsMrityuNak(weekday, number % 27 + 1)) << weekday;
    }
}

TEST(DailyYogas, CellsThatPartFromTheirPattern) {
  EXPECT_TRUE(IsAdham(7, 6));
  EXPECT_FALSE(IsAdham(7, 21));
  EXPECT_FALSE(IsAdham(7, 22));
  EXPECT_TRUE(IsAdham(1, 22));
  EXPECT_TRUE(IsDagdhaLagna(1, 7));
  EXPECT_FALSE(IsDagdhaLagna(16, 7));
  EXPECT_FALSE(IsTithiNakshatropann(16, 21));
  EXPECT_TRUE(IsTithiNakshatropann(17, 17));
  for (const int month : {-1, 0, 13})
    for (int number = -1; number <= 31; ++number)
      EXPECT_FALSE(IsShunyaTithi(number, month) || IsShunyaNakshatra(number, month) || IsShunyaRashi(month, number)) << month << number;
  std::set<int> rashis;
  for (int month = 1; month <= 12; ++month)
    for (int sign = 1; sign <= 12; ++sign)
      if (IsShunyaRashi(month, sign)) rashis.insert(sign);
  EXPECT_EQ(rashis.size(), 12u);
}

TEST(DailyYogas, ThreefoldTestsNeedAllThree) {
  int vajra = 0, twice = 0, thrice = 0;
  for (int weekday = 0; weekday <= 8; ++weekday)
    for (int tithi = 0; tithi <= 31; ++tithi)
      for (int nakshatra = 0; nakshatra <= 28; ++nakshatra) {
        vajra += IsVajra(weekday, tithi, nakshatra);
        twice += IsDwipushkar(weekday, tithi, nakshatra);
        thrice += IsTripushkar(weekday, tithi, nakshatra);
        EXPECT_TRUE(!IsVajra(weekday, tithi, nakshatra) || IsAmritSiddhi(weekday, nakshatra)) << weekday << " " << tithi;
        EXPECT_FALSE(IsDwipushkar(weekday, tithi, nakshatra) && IsTripushkar(weekday, tithi, nakshatra));
      }
  EXPECT_EQ(vajra, 14);
  EXPECT_EQ(twice, 6);
  EXPECT_EQ(thrice, 12);
}

TEST(DailyYogas, DistancesFromTheMoonWrapOnce) {
  for (int sun = 1; sun <= 27; ++sun)
    for (int moon = 1; moon <= 27; ++moon) {
      const int distance = (sun - moon + 27) % 27;
      EXPECT_EQ(IsVidal(sun, moon), distance % 7 == 3 || distance % 7 == 6) << sun << " " << moon;
      EXPECT_EQ(IsRavi(sun, moon), std::set<int>({4, 6, 9, 10, 13, 20}).count(distance) == 1) << sun << " " << moon;
    }
}

TEST(DailyYogas, GandMoolHoldsForTheThreeThatEndAGroup) {
  for (int nakshatra = 1; nakshatra <= 27; ++nakshatra) {
    const double end = 360.0 / 27 * nakshatra;
    for (const double inside : {0.01, 6.5, 13.3}) EXPECT_EQ(IsGandMool(nakshatra, end - inside), nakshatra % 9 == 0) << nakshatra;
    EXPECT_EQ(IsGandMool(nakshatra, 0), nakshatra % 9 == 1) << nakshatra;
  }
  EXPECT_FALSE(IsBhumiSupt(true) || IsBhumiSupt(false));
}

TEST(DailyYogas, RunningTithiIsNeverZero) {
  const std::map<double, int> cases{{0.0, 30}, {0.001, 1}, {1.0, 1}, {1.5, 2}, {29.999, 30}, {30.0, 30}};
  for (const auto &[term, tithi] : cases) EXPECT_EQ(RunningTithi(term), tithi) << term;
}

TEST(DailyYogas, HeadsComeInTheOrderOfThePageAndCanRepeat) {
  Inputs sunday;
  sunday.weekday = 1;
  sunday.tithi = 12;
  EXPECT_EQ(HeadsThatHold(sunday), (std::vector<QString>{"KRAKACH YOGA", "Hutashan Yoga", "Adham Yoga", "Dagdha"}));
  Inputs both;
  both.weekday = 1;
  both.tithiType = 1;
  both.nakshatra = 17;
  EXPECT_EQ(HeadsThatHold(both), (std::vector<QString>{"Mrityu Yoga", "AMRIT TITHI", "Mrityu Yoga"}));
  EXPECT_TRUE(HeadsThatHold(Inputs()).empty());
  for (size_t i = 0; i < All().size(); ++i) EXPECT_EQ(All()[i].number, static_cast<int>(i) + 1);
  EXPECT_EQ(All().size(), 30u);
}
