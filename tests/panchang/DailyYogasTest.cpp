// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/DailyYogas.h"

#include <gtest/gtest.h>

#include <QFile>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>

using namespace DailyYogas;

namespace {

struct TableTest {
  const char *name;
  std::function<bool(int, int, int)> holds;
  int arguments;
};

std::vector<TableTest> TableTests() {
  const auto two = [](const char *name, bool (*test)(int, int)) {
    return TableTest{name, [test](int a, int b, int) { return test(a, b); }, 2};
  };
  const auto three = [](const char *name, bool (*test)(int, int, int)) { return TableTest{name, test, 3}; };
  return {two("IsAmritSiddhi", IsAmritSiddhi),
          two("IsYamghant", IsYamghant),
          two("IsDagdhaNakshatra", IsDagdhaNakshatra),
          two("IsUtpaat", IsUtpaat),
          two("IsMrityuNak", IsMrityuNak),
          two("IsKaan", IsKaan),
          two("IsSiddhi", IsSiddhi),
          two("IsKrakach", IsKrakach),
          two("IsHutashan", IsHutashan),
          two("IsAdham", IsAdham),
          two("IsVisha", IsVisha),
          two("IsSamvartak", IsSamvartak),
          two("IsDagdha", IsDagdha),
          two("IsShunyaTithi", IsShunyaTithi),
          two("IsShunyaNakshatra", IsShunyaNakshatra),
          two("IsMrityuTithi", IsMrityuTithi),
          two("IsAmritTithi", IsAmritTithi),
          two("IsSiddhiTithi", IsSiddhiTithi),
          three("IsVajra", IsVajra),
          three("IsDwipushkar", IsDwipushkar),
          three("IsTripushkar", IsTripushkar),
          two("IsTithiNakshatropann", IsTithiNakshatropann),
          two("IsShunyaRashi", IsShunyaRashi),
          two("IsDagdhaLagna", IsDagdhaLagna)};
}

}  // namespace

// Each test over its whole domain and beyond: it holds for the listed arguments and for nothing else.
TEST(DailyYogas, HoldForTheListedArgumentsAlone) {
  QFile file(QStringLiteral(AUTHORITIES "/yogas.tsv"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  std::map<std::string, std::set<std::array<int, 3>>> listed;
  for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
    if (line.startsWith('#')) continue;
    const QStringList columns = line.split('\t');
    listed[columns[0].toStdString()].insert({columns[1].toInt(), columns[2].toInt(), columns.value(3).toInt()});
  }
  const std::vector<TableTest> tests = TableTests();
  EXPECT_EQ(listed.size(), tests.size());
  for (const TableTest &test : tests) {
    std::set<std::array<int, 3>> holding;
    const int thirdLow = test.arguments == 3 ? -1 : 0, thirdHigh = test.arguments == 3 ? 29 : 0;
    for (int a = -1; a <= 32; ++a)
      for (int b = -1; b <= 32; ++b)
        for (int c = thirdLow; c <= thirdHigh; ++c)
          if (test.holds(a, b, c)) holding.insert({a, b, c});
    EXPECT_EQ(holding, listed[test.name]) << test.name;
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
