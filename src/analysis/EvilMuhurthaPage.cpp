// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/EvilMuhurthaPage.h"

#include "analysis/ExactSettings.h"
#include "analysis/TimeText.h"
#include "engine/clsPlanets.h"

namespace {

void FillHouse(const clsPlanets &todayChart, EvilMuhurthaPage &page) {
  for (int kind = 1; kind <= 4; ++kind) {
    EvilMuhurthaPage::Row &row = page.rows[static_cast<size_t>(kind - 1)];
    row.startClock = todayChart.GetEvilMuhurthaStart(kind);
    row.length = todayChart.GetMuhurthaLength();
    row.start = TimeText(row.startClock);
    row.end = TimeText(row.startClock + row.length);
  }
}

void FillExact(const clsPlanets &todayChart, EvilMuhurthaPage &page) {
  const ExactTimes times(todayChart);
  page.exact = times.Frame();
  const std::optional<Stretch> daylight = times.day.Daylight();
  for (int kind = 1; kind <= 4; ++kind) {
    EvilMuhurthaPage::Row &row = page.rows[static_cast<size_t>(kind - 1)];
    row.start = row.end = page.exact->none[0];
    if (!daylight) continue;
    const Stretch part = Periods::EvilMuhurtha(kind, times.day.weekday, *daylight);
    row.begins = times.At(part.begins);
    row.ends = times.At(part.ends);
    row.start = times.words.Time(part.begins, times.day.date);
    row.end = times.words.Time(part.ends, times.day.date);
  }
}

}  // namespace

EvilMuhurthaPage FillEvilMuhurthaPage(const clsPlanets &todayChart) {
  constexpr std::array<const char *, 4> heads{"Kulik", "Kalbela", "Yamghant", "Kantak"};
  EvilMuhurthaPage page;
  if (ExactDivisionsChosen(todayChart))
    FillExact(todayChart, page);
  else
    FillHouse(todayChart, page);
  for (size_t row = 0; row < heads.size(); ++row) page.rows[row].head = todayChart.GetGenText(QLatin1String(heads[row]));
  page.lblKulikadiDesc = todayChart.GetGenText(QStringLiteral("KulikDesc"));
  page.lblMuhurthaName = todayChart.GetGenText(QStringLiteral("MuhuName"));
  page.lblStartTime = todayChart.GetGenText(QStringLiteral("Begin"));
  page.lblEndTime = todayChart.GetGenText(QStringLiteral("End"));
  return page;
}
