// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/PlanetTablePage.h"

#include "engine/clsPlanets.h"

namespace {

void FillPlanetHeads(const clsPlanets &words, PlanetTablePage &page) {
  const auto gen = [&](const char *key) { return words.GetHeadValue(1, QLatin1String(key), QStringLiteral("Gen")); };
  const auto kundlis = [&](const char *key) { return words.GetHeadValue(1, QLatin1String(key), QStringLiteral("Kundlis")); };
  page.lblPlntHead = gen("TPlanets");
  page.lblRashiHead = gen("Rashi");
  page.lblPDegreeHead = gen("Degrees");
  page.lblPNakHead = gen("Nak");
  page.lblPNakLHead = kundlis("Nakl");
  page.lblPadaHead = kundlis("Pada");
  page.lblDirHead = kundlis("Direction");
  page.lblPStateHead = gen("State");
}

}  // namespace

PlanetTablePage FillPlanets(const clsPlanets &chart) {
  PlanetTablePage page;
  for (int planet = 0; planet <= 12; ++planet) {
    PlanetTablePage::Row &row = page.rows[static_cast<size_t>(planet)];
    row.lblPlanets = chart.PlanetNameFull(planet);
    row.lblRashi = chart.ConvertToDegNoVal(chart.PlanetLongi(planet));
    row.lblDegrees = clsPlanets::ConvertValNoDeg(chart.PlanetLongi(planet));
    row.lblNak = chart.NakNamePlanet(planet);
    row.lblNakLord = chart.NakLordName(chart.NakOf(planet));
    const std::optional<int> pada = chart.NakPadaPlanet(planet);
    row.lblPad = pada ? QString::number(*pada) : QString();
    if (planet != 0) row.lblDir = chart.Direction(planet);
    row.lblState = chart.ExaltClass(planet);
  }
  FillPlanetHeads(chart, page);
  return page;
}
