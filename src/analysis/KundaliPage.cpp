// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/KundaliPage.h"

#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Notices.h"

namespace {

constexpr int FirstDivision = 1;

bool IsSign(int sign) { return sign >= 1 && sign <= 12; }

KundaliPage Fill(const clsPlanets &chart, int houseNumber, const clsPlanets &words) {
  KundaliPage page;
  for (int sign = 1; sign <= 12; ++sign) page.signName[static_cast<size_t>(sign)] = words.ConvertRashi(sign);
  page.houseNumber = IsSign(houseNumber) ? houseNumber : 1;
  for (int planet = 0; planet <= 12; ++planet) {
    const int sign = chart.PrediVarga(planet, FirstDivision).value_or(0);
    const QString name = words.PlanetName(planet);
    if (IsSign(sign)) {
      page.planets.push_back({sign, name, words.PlanetNameFull(planet)});
    } else {
      // A longitude of exactly 360 counts as a thirteenth sign, for which a chart has no house.
      Notices::Show({Notice::Kind::Warning, QString(),
                     QStringLiteral("%1 stands exactly at the end of the zodiac and is left out of the chart.").arg(name)});
    }
  }
  return page;
}

void SetToSunrise(const clsPlanets &todayChart, clsPlanets &chart) {
  todayChart.CopySettingTo(chart);
  const double sunriseHours = clsPlanets::MinToDec(todayChart.SunRiseTime());
  chart.clsPerson().SetHour(Functions::Int(sunriseHours));
  chart.clsPerson().SetMinutes(Functions::FracVar(sunriseHours) * 60);
}

}  // namespace

KundaliPage FillBirthKundali(const clsPlanets &birthChart) {
  return Fill(birthChart, birthChart.PrediVarga(0, FirstDivision).value_or(0), birthChart);
}

KundaliPage FillTransitKundali(const clsPlanets &todayChart) { return Fill(todayChart, static_cast<int>(todayChart.Sign(0)), todayChart); }

KundaliPage FillSunriseKundali(const clsPlanets &todayChart) {
  clsPlanets chart(todayChart.Settings());
  SetToSunrise(todayChart, chart);
  chart.Calculate();
  return Fill(chart, chart.PrediVarga(0, FirstDivision).value_or(0), todayChart);
}

QDateTime SunriseMoment(const clsPlanets &todayChart) {
  clsPlanets chart(todayChart.Settings());
  SetToSunrise(todayChart, chart);
  return chart.clsPerson().GetBirthDate();
}
