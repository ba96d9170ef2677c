// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The main screen: how long a user waits for it.
#include <benchmark/benchmark.h>

#include <map>

#include "OpenWindow.h"
#include "Samples.h"
#include "content/contentManager.h"

namespace {

const QDateTime FirstMoment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);

void PersonChangeToPaintedPage(benchmark::State &state) {
  OpenWindow window;
  for (auto _ : state) {
    window.Screen().ChangePerson(QStringLiteral("Anvik Telvar"));
    window.Paint();
  }
}
BENCHMARK(PersonChangeToPaintedPage)->Unit(benchmark::kMillisecond);

void DateChangeToPaintedPage(benchmark::State &state) {
  OpenWindow window;
  QDateTime moment = FirstMoment;
  for (auto _ : state) {
    moment = moment.addDays(1);
    window.Screen().ChangeMoment(moment);
    window.Paint();
  }
}
BENCHMARK(DateChangeToPaintedPage)->Unit(benchmark::kMillisecond);

void Tell(benchmark::State &state, const char *which, const std::map<int, Samples> &pages) {
  double worst = 0;
  for (const auto &[page, samples] : pages) {
    const double median = samples.Median();
    state.counters["page" + std::to_string(page) + which] = median;
    worst = std::max(worst, median);
  }
  state.counters[std::string("worst") + which] = worst;
}

// Every page in turn, each round in another month: first as the day's first visit, for which all figures are worked out anew,
// then again. A switch has ended when the page is painted.
void PageSwitchToPainted(benchmark::State &state) {
  OpenWindow window;
  std::map<int, Samples> first, again;
  constexpr int daysApart = 40;
  QDateTime moment = FirstMoment;
  const auto visit = [&](std::map<int, Samples> &times) {
    for (const int page : OpenWindow::AllPages()) {
      times[page].Time([&] {
        window.Screen().Pages().ShowPage(page);
        window.Paint();
      });
    }
  };
  visit(first);  // a page's own first showing lays it out for good
  first.clear();
  for (auto _ : state) {
    moment = moment.addDays(daysApart);
    window.Screen().ChangeMoment(moment);
    window.Paint();
    visit(first);
    visit(again);
  }
  Tell(state, "First", first);
  Tell(state, "Again", again);
}
BENCHMARK(PageSwitchToPainted)->Unit(benchmark::kMillisecond)->Iterations(15);

}  // namespace
