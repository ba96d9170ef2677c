// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/OverviewPage.h"

#include <array>

#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

namespace {

constexpr int Yamaghanta = 3;  // kind of evil muhurtha

struct LabelRow {
  const char *element;
  QString OverviewPage::*caption;
  const char *key;  // in "Gen"; none for a value
};

constexpr std::array<LabelRow, 24> Labels{{
    {"lblDayVal", &OverviewPage::lblDayVal, nullptr},
    {"lblTithiVal", &OverviewPage::lblTithiVal, nullptr},
    {"lblNakVal", &OverviewPage::lblNakVal, nullptr},
    {"lblYogaVal", &OverviewPage::lblYogaVal, nullptr},
    {"lblKaranVal", &OverviewPage::lblKaranVal, nullptr},
    {"lblRahuKaalVal", &OverviewPage::lblRahuKaalVal, nullptr},
    {"lblSunriseVal", &OverviewPage::lblSunriseVal, nullptr},
    {"lblSunsetVal", &OverviewPage::lblSunsetVal, nullptr},
    {"lblCurDashaVal", &OverviewPage::lblCurDashaVal, nullptr},
    {"lblBKundali", &OverviewPage::lblBKundali, "BirthKundali"},
    {"lblTransKundali", &OverviewPage::lblTransKundali, "TransitKundali"},
    {"lblTodPanchang", &OverviewPage::lblTodPanchang, "TodayPanchang"},
    {"lblOthFactors", &OverviewPage::lblOthFactors, "OtherFactors"},
    {"lblDayHead", &OverviewPage::lblDayHead, "Day"},
    {"lblTithiHead", &OverviewPage::lblTithiHead, "Tithi"},
    {"lblNakHead", &OverviewPage::lblNakHead, "Nak"},
    {"lblYogaHead", &OverviewPage::lblYogaHead, "Yoga"},
    {"lblKaranHead", &OverviewPage::lblKaranHead, "Karan"},
    {"lblRahuKaalHead", &OverviewPage::lblRahuKaalHead, "Rahukaal"},
    {"lblSunRiseHead", &OverviewPage::lblSunRiseHead, "Sunrise"},
    {"lblSunSetHead", &OverviewPage::lblSunSetHead, "Sunset"},
    {"lblYamGhantaHead", &OverviewPage::lblYamGhantaHead, "Yamaghanta"},
    {"lblCurDashaHead", &OverviewPage::lblCurDashaHead, "CurrentDasha"},
    {"lblYamghantaVal", &OverviewPage::lblYamghantaVal, nullptr},
}};

}  // namespace

std::vector<std::pair<QString, QString>> OverviewPage::Captions() const {
  std::vector<std::pair<QString, QString>> captions;
  for (const LabelRow &row : Labels) captions.emplace_back(QLatin1String(row.element), this->*row.caption);
  return captions;
}

OverviewPage FillOverview(const clsPlanets &birthChart, const clsPlanets &todayChart, const QString &currentDasha) {
  OverviewPage page;
  page.kunBirth = FillBirthKundali(birthChart);
  page.kunTransit = FillTransitKundali(todayChart);
  page.lblDayVal = todayChart.GetHeadValue(1, todayChart.clsPerson().WeekDayOfBirth() - 1, QStringLiteral("Day"));
  double tithi = todayChart.Tithi(), nakshatra = todayChart.Nakshatra();
  page.lblTithiVal = todayChart.GetTithiName(tithi);
  page.lblNakVal = todayChart.GetNakshatraName(nakshatra);
  page.lblYogaVal = todayChart.YogaName();
  page.lblKaranVal = todayChart.KaranName();
  page.lblRahuKaalVal = TimeRangeText(todayChart.GetRahuKaalStartToday(), todayChart.GetRahuKaalSpanToday());
  page.lblSunriseVal = TimeText(todayChart.SunRiseTime());
  page.lblSunsetVal = TimeText(todayChart.SunSetTime());
  page.lblCurDashaVal = currentDasha;
  for (const LabelRow &row : Labels)
    if (row.key) page.*row.caption = todayChart.GetGenText(QLatin1String(row.key));
  page.lblYamghantaVal = TimeRangeText(todayChart.GetEvilMuhurthaStart(Yamaghanta), todayChart.GetMuhurthaLength());
  return page;
}
