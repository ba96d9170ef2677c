// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <map>

#include "attributes/BareChart.h"
#include "attributes/TrishulNakClass.h"

namespace {

BareChart MoonInNakshatra(int nakshatra) { return BareChart{{7, (nakshatra - 0.5) * 360 / 27}}; }

}  // namespace

// Each class holds nine nakshatras; the yonis are fourteen animals in pairs, but for the mongoose alone.
TEST(Compatibility, ClassesPartTheNakshatras) {
  std::map<int, int> ganas, nadis, yonis;
  std::map<QString, int> rajjus, vihags;
  for (int nakshatra = 1; nakshatra <= 27; ++nakshatra) {
    BareChart chart = MoonInNakshatra(nakshatra);
    int asked = 0;
    ++ganas[chart->Gana(asked).value_or(0)];
    EXPECT_EQ(asked, nakshatra);
    ++nadis[chart->NadiNo().value_or(0)];
    ++yonis[chart->YoniNo().value_or(0)];
    ++rajjus[chart->RajjuType()];
    ++vihags[chart->Vihag()];
    EXPECT_EQ(chart->Rajju(), QStringLiteral("CNVT|%1H|Rajju").arg(nakshatra));
  }
  EXPECT_EQ(ganas, (std::map<int, int>{{1, 9}, {2, 9}, {3, 9}}));
  EXPECT_EQ(nadis, (std::map<int, int>{{1, 9}, {2, 9}, {3, 9}}));
  EXPECT_EQ(yonis,
            (std::map<int, int>{
                {1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 2}, {6, 2}, {7, 2}, {8, 2}, {9, 2}, {10, 2}, {11, 2}, {12, 1}, {13, 2}, {14, 2}}));
  EXPECT_EQ(rajjus, (std::map<QString, int>{{"B", 6}, {"F", 6}, {"H", 3}, {"T", 6}, {"W", 6}}));
  EXPECT_EQ(vihags[QString()], 2);
  EXPECT_EQ(vihags.size(), 6u);
}

TEST(Compatibility, VarnaGoesByItsMode) {
  for (int sign = 1; sign <= 12; ++sign) {
    BareChart chart{{7, sign * 30 - 15.0}};
    const int byElement = std::array{3, 2, 1, 4}[static_cast<size_t>((sign - 1) % 4)];
    EXPECT_EQ(chart->VarnaNo(), byElement) << sign;
    EXPECT_EQ(chart->Varna(), QStringLiteral("CNVT|%1|VARNA").arg(5 - byElement)) << sign;
    chart->SetCalcModVarna(2);
    const std::optional<int> second = chart->VarnaNo();
    EXPECT_EQ(chart->Varna(), QStringLiteral("CNVT|%1|VARNA").arg(5 - second.value_or(0))) << sign;
    chart->SetCalcModVarna(3);
    EXPECT_EQ(chart->VarnaNo(), second) << sign;
    EXPECT_TRUE(chart->Varna().isEmpty()) << sign;
  }
}

TEST(Compatibility, PayaAndNadiPadaRunThroughTheirCycles) {
  for (int ascendant = 1; ascendant <= 12; ++ascendant) {
    QString keys;
    for (int distance = 0; distance <= 11; ++distance) {
      BareChart chart{{0, ascendant * 30 - 15.0}, {7, (ascendant + distance - 1) % 12 * 30 + 15.0}};
      keys += chart->Paya().at(5);
    }
    EXPECT_EQ(keys, "123421342314") << ascendant;
  }
  QString pada;
  for (int navamsha = 0; navamsha < 24; ++navamsha) pada += BareChart {
      { 7, (navamsha + 0.5) * 10 / 3 }
      } -> NadiPada().at(5);
  EXPECT_EQ(pada, "123321123321123321123321");
}

// The points of the trident: the distance is counted with both ends and goes around 27.
TEST(Compatibility, TrishulClassGoesByTheDistanceAlone) {
  for (int from = 1; from <= 27; ++from)
    for (int to = 1; to <= 27; ++to)
      EXPECT_EQ(GetTrishulNakClass(from, to), GetTrishulNakClass(1, (to - from + 27) % 27 + 1)) << from << " " << to;
  QString classes;
  for (int to = 1; to <= 27; ++to) classes += QString::number(GetTrishulNakClass(1, to));
  EXPECT_EQ(classes, "332112333211233321123332112");
}
