// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <map>

#include "attributes/BareChart.h"
#include "platform/Errors.h"

namespace {

int RowSum(const clsPlanets &chart, int body) {
  int sum = 0;
  for (int sign = 1; sign <= 12; ++sign) sum += chart.AshVarga(body, sign);
  return sum;
}

}  // namespace

// The sums by body are those of the classical tables, wherever the planets stand; the seven planets give 337.
TEST(Ashtakavarga, EveryBodyHasItsClassicalSum) {
  const std::map<int, int> sums{{0, 49}, {1, 48}, {2, 54}, {3, 52}, {4, 39}, {5, 56}, {6, 39}, {7, 49}, {8, 44}, {9, 0}, {10, 0}};
  for (int turn = 0; turn < 12; ++turn) {
    BareChart chart(
        {{0, turn * 30.0}, {1, 355}, {2, turn * 60 % 360 + 1.0}, {3, 90}, {4, 359.9}, {5, 200}, {6, turn * 90 % 360 + 29.0}, {7, 360}});
    chart->AshTable();
    int total = 0;
    for (const auto &[body, sum] : sums) EXPECT_EQ(RowSum(chart.chart, body), sum) << body << " at turn " << turn;
    for (int sign = 1; sign <= 12; ++sign) total += chart->AshTotal(sign);
    EXPECT_EQ(total, 337 + 44) << turn;  // Rahu's row counts, the ascendant's does not
    EXPECT_EQ(chart->AshTotal(0) + chart->AshTotal(13), 0);
  }
}

TEST(Ashtakavarga, ASecondRunDoublesTheTotalsAlone) {
  BareChart chart{{1, 100}, {7, 200}};
  chart->AshTable();
  const int row = chart->AshVarga(1, 5), total = chart->AshTotal(5);
  chart->AshTable();
  EXPECT_EQ(chart->AshVarga(1, 5), row);
  EXPECT_EQ(chart->AshTotal(5), 2 * total);
}

TEST(Ashtakavarga, PointsWrapAtPiscesAndCountOnlyFlagsOfOne) {
  BareChart chart;
  chart->AshComp({0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}, 12);
  for (int sign = 0; sign <= 12; ++sign) EXPECT_EQ(chart->Ashtak(sign), sign == 1) << sign;
  EXPECT_THROW(chart->Ashtak(13), SubscriptError);
  EXPECT_THROW(chart->AshVarga(11, 1), SubscriptError);
  EXPECT_THROW(chart->AshVarga(1, 14), SubscriptError);
  EXPECT_THROW(chart->SetAshTotal(-1, 1), SubscriptError);
}
