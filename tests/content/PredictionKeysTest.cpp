// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/PredictionKeys.h"

#include <gtest/gtest.h>

using namespace PredictionKeys;

TEST(PredictionKeys, KeysHaveTheFormOfTheDataFile) {
  struct {
    Key key;
    int kind;
    const char *head, *category;
  } const cases[] = {
      {JourneyKey(1, 1), 11, "SUNDAY-FIRE", "JOURNEY"},
      {JourneyKey(7, 4), 11, "SATURDAY-WATER", "JOURNEY"},
      {JourneyKey(0, 5), 11, "-", "JOURNEY"},
      {RashifalaKey("Aries", "Leo"), 11, "Aries-Leo", "RASHIFALA"},
      {FinanceKey(3, "Aries"), 11, "Aries-TUESDAY", "FINANCE"},
      {WeekdayKey(4), 11, "Wednesday", "Day"},
      {NakshatraKey(27), 11, "27", "Nakshatra"},
      {TithiKey(15), 11, "15", "TITHI"},
      {TithiKey(16), 11, "1", "TITHI"},
      {TithiKey(29), 11, "14", "TITHI"},
      {TithiKey(30), 11, "30", "TITHI"},
      {MoonTransitKey(5, 5), 12, "Moon1", ""},
      {MoonTransitKey(1, 12), 12, "Moon12", ""},
      {MoonTransitKey(12, 1), 12, "Moon2", ""},
      {SuryaYogaKey(1).value(), 11, "YogVishKumbha", "SURYAYOGA"},
      {SuryaYogaKey(27).value(), 11, "YogVaridhriti", "SURYAYOGA"},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(c.key.head, QLatin1String(c.head));
    EXPECT_EQ(c.key.kind, c.kind) << c.head;
    EXPECT_EQ(c.key.category, QLatin1String(c.category)) << c.head;
  }
  EXPECT_FALSE(SuryaYogaKey(0) || SuryaYogaKey(28));
}
