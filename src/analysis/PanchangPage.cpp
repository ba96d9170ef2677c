// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/PanchangPage.h"

#include "engine/Functions.h"
#include "engine/clsPlanets.h"

namespace {

constexpr std::array<const char *, PanchangPage::Rows> HeadKeys{"Rashi", "Nak",   "Yoga", "Karan", "HinduMonth",
                                                                "Lagna", "Tithi", "Pada", "Nakl"};

std::array<QString, PanchangPage::Rows> Values(const clsPlanets &chart) {
  double nakshatra = chart.Nakshatra();
  return {
      chart.RashiName(),
      chart.GetNakshatraName(nakshatra),
      chart.YogaName(),
      chart.KaranName(),
      chart.GetVikramiMonth(clsPlanets::VikramiMonth(chart.PlanetLongi(1), chart.clsPerson().GetBirthDate())),
      chart.ConvertRashi(chart.PlanetLongi(0)),
      chart.TithiName(),
      QString::number(clsPlanets::NakPadaNum(chart.PlanetLongi(7))),
      chart.NakLordName(chart.Nakshatra()),
  };
}

}  // namespace

PanchangPage FillPanchangPage(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  PanchangPage page;
  page.lblPanchTodayVal = Values(todayChart);
  page.lblPanchBirthVal = Values(birthChart);
  page.lblBirthPanchang = todayChart.GetGenText(QStringLiteral("BirthPanchaang"));
  page.lblNowPanchang = todayChart.GetGenText(QStringLiteral("NowPanchaang"));
  for (size_t row = 0; row < PanchangPage::Rows; ++row) {
    page.lblPanchTodayHead[row] = todayChart.GetGenText(QLatin1String(HeadKeys[row]));
    page.lblPanchBirthHead[row] = page.lblPanchTodayHead[row];
  }
  return page;
}
