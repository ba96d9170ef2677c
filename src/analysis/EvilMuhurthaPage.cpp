// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/EvilMuhurthaPage.h"

#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

EvilMuhurthaPage FillEvilMuhurthaPage(const clsPlanets &todayChart) {
  constexpr std::array<const char *, 4> heads{"Kulik", "Kalbela", "Yamghant", "Kantak"};
  EvilMuhurthaPage page;
  for (int kind = 1; kind <= 4; ++kind) {
    EvilMuhurthaPage::Row &row = page.rows[static_cast<size_t>(kind - 1)];
    row.startClock = todayChart.GetEvilMuhurthaStart(kind);
    row.length = todayChart.GetMuhurthaLength();
    row.head = todayChart.GetGenText(QLatin1String(heads[static_cast<size_t>(kind - 1)]));
    row.start = TimeText(row.startClock);
    row.end = TimeText(row.startClock + row.length);
  }
  page.lblKulikadiDesc = todayChart.GetGenText(QStringLiteral("KulikDesc"));
  page.lblMuhurthaName = todayChart.GetGenText(QStringLiteral("MuhuName"));
  page.lblStartTime = todayChart.GetGenText(QStringLiteral("Begin"));
  page.lblEndTime = todayChart.GetGenText(QStringLiteral("End"));
  return page;
}
