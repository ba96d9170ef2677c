// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ChogadiyaPage.h"

#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

ChogadiyaPage FillChogadiyaPage(const clsPlanets &todayChart) {
  ChogadiyaPage page;
  const int weekday = todayChart.clsPerson().WeekDayOfBirth();
  for (int period = 1; period <= 16; ++period) {
    const size_t i = static_cast<size_t>(period - 1);
    ChogadiyaPage::Row &row = page.rows[i];
    row = {todayChart.GetChogadiyaStart(period), todayChart.GetChogadiyaSpan(period), clsPlanets::GetChogadiyaType(period, weekday)};
    page.lblChogTime[i] = TimeRangeText(row.startClock, row.span);
    page.lblChogName[i] = todayChart.GetChowGadiyaName(row.type);
  }
  const auto head = [&](const char *key, const char *category) {
    return todayChart.GetHeadValue(1, QLatin1String(key), QLatin1String(category));
  };
  page.lblDayChogHead = head("DayChog", "Chogadiya");
  page.lblNightChogHead = head("NightChog", "Chogadiya");
  page.lblTimeHead1 = page.lblTimeHead2 = head("TimeRange", "Gen");
  page.lblChogDesc = head("Description", "Chogadiya");
  return page;
}
