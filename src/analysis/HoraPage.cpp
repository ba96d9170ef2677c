// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/HoraPage.h"

#include "analysis/ExactSettings.h"
#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

namespace {

void FillHouse(const clsPlanets &todayChart, HoraPage &page) {
  const int weekday = todayChart.clsPerson().WeekDayOfBirth();
  for (int hora = 1; hora <= 24; ++hora) {
    const size_t i = static_cast<size_t>(hora - 1);
    page.rows[i] = {todayChart.GetHoraStart(hora), clsPlanets::GetHoraType(hora, weekday)};
    page.lblHoraTime[i] = TimeText(page.rows[i].startClock);
    page.lblHoraName[i] = todayChart.GetHoraName(page.rows[i].type);
  }
}

void FillExact(const clsPlanets &todayChart, HoraPage &page) {
  const ExactTimes times(todayChart);
  page.exact = times.Frame();
  for (size_t i = 0; i < page.rows.size(); ++i) {
    page.rows[i].type = clsPlanets::GetHoraType(static_cast<int>(i) + 1, times.day.weekday);
    page.lblHoraName[i] = times.words.HoraLord(page.rows[i].type);
  }
  times.SetParts(times.day.horas, page.rows, page.lblHoraTime);
}

}  // namespace

HoraPage FillHoraPage(const clsPlanets &todayChart) {
  HoraPage page;
  if (ExactDivisionsChosen(todayChart))
    FillExact(todayChart, page);
  else
    FillHouse(todayChart, page);
  page.lblDayHoraHead = todayChart.GetHeadValue(1, QStringLiteral("DayHora"), QStringLiteral("Hora"));
  page.lblNightHoraHead = todayChart.GetHeadValue(1, QStringLiteral("NightHora"), QStringLiteral("Hora"));
  page.lblTimeRangeHead = page.lblTimeRangeHead2 = todayChart.GetHeadValue(1, QStringLiteral("TimeRange"), QStringLiteral("Gen"));
  return page;
}
