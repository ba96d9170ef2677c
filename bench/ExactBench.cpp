// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The exact day, a month and a year of it: at most 10 ms, 300 ms and 4 s; and the Sun's part of one day, which pages ask for.
#include <benchmark/benchmark.h>

#include "panchang/ExactDay.h"

namespace {

ExactRules Agra() {
  ExactRules rules;
  rules.place = {27.15, 78, 0};
  rules.zone = ExactZone(QStringLiteral("Asia/Kolkata"), 330);
  return rules;
}

// Each round, also of a later repetition, begins beyond the days and the lunar month that are kept, so that everything is found afresh.
void ExactDays(benchmark::State &state) {
  const ExactRules rules = Agra();
  const int count = static_cast<int>(state.range(0));
  constexpr int beyond = 40;
  static QDate first(1900, 1, 1);
  if (first.year() > 2300) first = QDate(1900, 1, 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(ExactDay::Days(first, count, rules));
    first = first.addDays(count + beyond);
  }
}
BENCHMARK(ExactDays)->Arg(1)->Arg(31)->Arg(366)->Unit(benchmark::kMillisecond);

void ExactSunOfDay(benchmark::State &state) {
  const ExactRules rules = Agra();
  QDate date(1980, 1, 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(ExactDay::Of(date, rules, ExactDay::Extent::Sun));
    date = date.addDays(1);
  }
}
BENCHMARK(ExactSunOfDay)->Unit(benchmark::kMillisecond);

}  // namespace
