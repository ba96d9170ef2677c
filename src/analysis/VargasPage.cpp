// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/VargasPage.h"

#include "analysis/StudyWords.h"

namespace {

constexpr int Ascendant = 0;

}  // namespace

VargasPage FillVargas(const clsPlanets &chart) {
  VargasPage page;
  const SignNames signs = SignNames::Of(chart);
  page.signName = signs.full;
  page.narrowSign = signs.narrow;
  page.vargottamaWord = StudyWord(chart, "Vargottama");
  QStringList vargottama;
  for (int planet = 0; planet < VargasPage::Points; ++planet) {
    VargasPage::Point &point = page.points[static_cast<size_t>(planet)];
    point.name = chart.PlanetNameFull(planet);
    point.narrowName = chart.PlanetNameSmall(planet);
    point.degrees = clsPlanets::ConvertValNoDeg(chart.PlanetLongi(planet));
    point.vargottama = chart.PlanetVargottama(planet);
    point.sameSign = chart.PlanetGopuramsa(planet);
    if (point.vargottama) vargottama << point.name;
  }
  for (int number = 1; number <= VargasPage::Vargas; ++number) {
    VargasPage::Varga &varga = page.vargas[static_cast<size_t>(number - 1)];
    varga.name = StudyWord(chart, "Varga", number);
    for (int planet = 0; planet < VargasPage::Points; ++planet) {
      // A longitude of exactly 360 counts as a thirteenth sign, for which a chart has no house.
      const int sign = chart.PrediVarga(planet, number).value_or(0);
      if (sign < 1 || sign > 12) continue;
      varga.sign[static_cast<size_t>(planet)] = sign;
      varga.chart.planets.push_back({sign, chart.PlanetName(planet), page.points[static_cast<size_t>(planet)].name});
    }
    varga.chart.signName = page.signName;
    varga.chart.houseNumber = varga.sign[Ascendant] == 0 ? 1 : varga.sign[Ascendant];
  }
  page.lblPointHead = chart.GetGenText(QStringLiteral("TPlanets"));
  page.lblRashiHead = chart.GetGenText(QStringLiteral("Rashi"));
  page.lblDegreesHead = chart.GetGenText(QStringLiteral("Degrees"));
  page.lblVargaHead = StudyWord(chart, "VargaSign");
  page.lblVargottamaHead = StudyWord(chart, "Standing");
  page.lblSameSign = StudyWord(chart, "SameSign");
  page.lblVargottama = vargottama.isEmpty() ? StudyWord(chart, "NoVargottama")
                                            : StudyWord(chart, "VargottamaLine").arg(vargottama.join(QStringLiteral(", ")));
  return page;
}
