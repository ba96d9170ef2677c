// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/UpagrahasPage.h"

#include "analysis/StudyWords.h"

namespace {

constexpr int Sun = 1;
constexpr int AtEnd = 1, AtBeginning = 2;

}  // namespace

std::array<double, UpagrahasPage::Points> UpagrahasInMode(const clsPlanets &chart, int mode) {
  std::array<double, UpagrahasPage::Points> degrees{};
  const auto read = [&degrees](const clsPlanets &from) {
    for (int number = 1; number <= UpagrahasPage::Points; ++number) degrees[static_cast<size_t>(number - 1)] = from.UpagrahaLongi(number);
  };
  if ((chart.UpagrahaMode() == AtEnd) == (mode == AtEnd)) {
    read(chart);
    return degrees;
  }
  // The points need the moment, the place and the Sun, so that nothing of the chart is calculated again.
  OverlaySettings otherMode(chart.Settings());
  otherMode.SetIntValue(SettingKeys::UpagrahaMode, mode);
  clsPlanets other(otherMode);
  other.SetclsPerson(std::make_shared<clsPerson>(chart.clsPerson()));
  other.SetPlanetLongi(Sun, chart.PlanetLongi(Sun));
  read(other);
  return degrees;
}

UpagrahasPage FillUpagrahas(const clsPlanets &chart) {
  UpagrahasPage page;
  for (const int mode : {AtEnd, AtBeginning}) {
    UpagrahasPage::Mode &shown = page.modes[mode == AtEnd ? 0 : 1];
    shown.title = StudyWord(chart, mode == AtEnd ? "UpagrahaEnd" : "UpagrahaBegin");
    shown.chosen = (chart.UpagrahaMode() == AtEnd) == (mode == AtEnd);
    const std::array<double, UpagrahasPage::Points> degrees = UpagrahasInMode(chart, mode);
    for (size_t i = 0; i < degrees.size(); ++i) {
      UpagrahasPage::Row &row = shown.rows[i];
      row.lblUpaName = chart.UpagrahaName(static_cast<int>(i) + 1);
      row.lblUpaRashi = chart.ConvertToDegNoVal(degrees[i]);
      row.lblUpaDegrees = clsPlanets::ConvertValNoDeg(degrees[i]);
      double nakshatra = clsPlanets::NakshatraNum(degrees[i]);
      row.lblUpaNak = chart.GetNakshatraName(nakshatra);
      row.lblUpaPada = QString::number(clsPlanets::NakPadaNum(degrees[i]));
    }
  }
  page.lblNameHead = StudyWord(chart, "Upagraha");
  page.lblRashiHead = chart.GetGenText(QStringLiteral("Rashi"));
  page.lblDegreesHead = chart.GetGenText(QStringLiteral("Degrees"));
  page.lblNakHead = chart.GetGenText(QStringLiteral("Nak"));
  page.lblPadaHead = chart.GetGenText(QStringLiteral("Pada"));
  page.lblJaimini = StudyWord(chart, "JaiminiLine")
                        .arg(chart.PlanetNameFull(chart.AtmaKaraka()), chart.ConvertRashi(chart.AtmaKarakaSign()),
                             chart.ConvertRashi(chart.KarakamsaLagna()), chart.ConvertRashi(chart.FindAroodhaLagna()),
                             chart.ConvertRashi(chart.FindUpaPadaLagna()));
  page.chosenWord = StudyWord(chart, "YourSetting");
  return page;
}
