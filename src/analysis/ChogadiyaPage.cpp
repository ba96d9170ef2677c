// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ChogadiyaPage.h"

#include "analysis/ExactSettings.h"
#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

namespace {

void FillHouse(const clsPlanets &todayChart, ChogadiyaPage &page) {
  const int weekday = todayChart.clsPerson().WeekDayOfBirth();
  for (int period = 1; period <= 16; ++period) {
    const size_t i = static_cast<size_t>(period - 1);
    ChogadiyaPage::Row &row = page.rows[i];
    row = {todayChart.GetChogadiyaStart(period), todayChart.GetChogadiyaSpan(period), clsPlanets::GetChogadiyaType(period, weekday)};
    page.lblChogTime[i] = TimeRangeText(row.startClock, row.span);
    page.lblChogName[i] = todayChart.GetChowGadiyaName(row.type);
  }
}

void FillExact(const clsPlanets &todayChart, ChogadiyaPage &page) {
  const ExactTimes times(todayChart);
  page.exact = times.Frame();
  for (size_t i = 0; i < page.rows.size(); ++i) {
    page.rows[i].type = clsPlanets::GetChogadiyaType(static_cast<int>(i) + 1, times.day.weekday);
    page.lblChogName[i] = times.words.Chogadiya(page.rows[i].type);
  }
  times.SetParts(times.day.chogadiyas, page.rows, page.lblChogTime);
}

}  // namespace

ChogadiyaPage FillChogadiyaPage(const clsPlanets &todayChart) {
  ChogadiyaPage page;
  if (ExactDivisionsChosen(todayChart))
    FillExact(todayChart, page);
  else
    FillHouse(todayChart, page);
  const auto head = [&](const char *key, const char *category) {
    return todayChart.GetHeadValue(1, QLatin1String(key), QLatin1String(category));
  };
  page.lblDayChogHead = head("DayChog", "Chogadiya");
  page.lblNightChogHead = head("NightChog", "Chogadiya");
  page.lblTimeHead1 = page.lblTimeHead2 = head("TimeRange", "Gen");
  page.lblChogDesc = head("Description", "Chogadiya");
  return page;
}
