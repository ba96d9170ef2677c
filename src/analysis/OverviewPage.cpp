// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/OverviewPage.h"

#include <array>

#include "analysis/ExactSettings.h"
#include "analysis/ExactTimes.h"
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

// Times carry their date where it is not that of the moment: before sunrise the day before still runs.
void SetExactTimes(const clsPlanets &todayChart, OverviewPage &page) {
  const ExactTimes times(todayChart);
  const ExactWords &words = times.words;
  const auto period = [&](Period::Kind kind) {
    for (const Period &found : times.day.periods)
      if (found.kind == kind) return words.Range(found.begins, found.ends, times.date);
    return words.NoDaylight(times.day);
  };
  page.lblDayVal = words.Weekday(times.day.weekday);
  page.lblSunriseVal = words.SunriseToMinute(times.day, times.date);
  page.lblSunsetVal = words.SunsetToMinute(times.day, times.date);
  page.lblRahuKaalVal = period(Period::Kind::RahuKaal);
  page.lblYamghantaVal = period(Period::Kind::Yamaghanta);
  page.lblExactHead = times.Frame().head;
  page.lblExactBrief = words.Brief();
}

void SetHouseTimes(const clsPlanets &todayChart, OverviewPage &page) {
  page.lblDayVal = todayChart.GetHeadValue(1, todayChart.clsPerson().WeekDayOfBirth() - 1, QStringLiteral("Day"));
  page.lblSunriseVal = TimeText(todayChart.SunRiseTime());
  page.lblSunsetVal = TimeText(todayChart.SunSetTime());
  page.lblRahuKaalVal = TimeRangeText(todayChart.GetRahuKaalStartToday(), todayChart.GetRahuKaalSpanToday());
  page.lblYamghantaVal = TimeRangeText(todayChart.GetEvilMuhurthaStart(Yamaghanta), todayChart.GetMuhurthaLength());
}

}  // namespace

std::vector<std::pair<QString, QString>> OverviewPage::Captions() const {
  std::vector<std::pair<QString, QString>> captions;
  for (const LabelRow &row : Labels) captions.emplace_back(QLatin1String(row.element), this->*row.caption);
  if (IsExact()) captions.emplace_back(QStringLiteral("lblExactHead"), lblExactHead);
  return captions;
}

OverviewPage FillOverview(const clsPlanets &birthChart, const clsPlanets &todayChart, const QString &currentDasha) {
  OverviewPage page;
  page.kunBirth = FillBirthKundali(birthChart);
  page.kunTransit = FillTransitKundali(todayChart);
  if (ExactDivisionsChosen(todayChart))
    SetExactTimes(todayChart, page);
  else
    SetHouseTimes(todayChart, page);
  double tithi = todayChart.Tithi(), nakshatra = todayChart.Nakshatra();
  page.lblTithiVal = todayChart.GetTithiName(tithi);
  page.lblNakVal = todayChart.GetNakshatraName(nakshatra);
  page.lblYogaVal = todayChart.YogaName();
  page.lblKaranVal = todayChart.KaranName();
  page.lblCurDashaVal = currentDasha;
  for (const LabelRow &row : Labels)
    if (row.key) page.*row.caption = todayChart.GetGenText(QLatin1String(row.key));
  return page;
}
