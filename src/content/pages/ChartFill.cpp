// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ChartFill.h"

#include "analysis/KundaliPage.h"
#include "chart/Kundali.h"
#include "platform/UserSettings.h"

void FillChart(Kundali &chart, const KundaliPage &page, const UserSettings &settings) {
  chart.Clear();
  chart.SetChartStyle(settings.IntValue(SettingKeys::KundStyle));
  chart.SetHouseNumber(page.houseNumber);
  KundaliModel::SpokenNames names;
  names.signs.assign(page.signName.begin() + 1, page.signName.end());
  for (const KundaliPage::Placed &placed : page.planets) names.planets.insert(placed.name, placed.fullName);
  chart.SetSpokenNames(std::move(names));
  if (!page.planets.empty()) chart.SetAscendantName(page.planets.front().name);
  for (const KundaliPage::Placed &placed : page.planets) chart.PlanetPlace(placed.sign, placed.name);
}
