// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The costs of a chart, each beside the least that it could cost in the same run.
#include <benchmark/benchmark.h>
#include <swephexp.h>

#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "Samples.h"
#include "analysis/ScoresPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/Languages.h"

namespace {

// Each round takes another minute, so that the library answers afresh.
struct Clock {
  int minute = 0;
  void Set(clsPerson &person) {
    person.SetDay(1 + minute / 1440 % 28);
    person.SetMonth(7);
    person.SetYear(1980);
    person.SetHour(minute / 60 % 24);
    person.SetMinutes(minute % 60);
    ++minute;
  }
};

void SetAgra(clsPerson &person) {
  person.SetLatDeg(27);
  person.SetLatMT(9);
  person.SetLongDeg(78);
  person.SetGMTDIFF(QStringLiteral("5.5"));
}

// The calls that one chart makes of the library, and nothing else.
double BareCalls(double julianDay) {
  double sum = swe_deltat(julianDay), position[11], cusps[13], angles[10];
  char message[256];
  for (const double day : {julianDay, julianDay + 1 / 24.0}) {
    for (int body = SE_SUN; body <= SE_MEAN_NODE; ++body) {
      swe_calc(day, body, 0, position, message);
      sum += position[0];
    }
  }
  swe_houses(julianDay, 27.15, 78, 'P', cusps, angles);
  for (int query = 0; query < 2; ++query) {
    swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
    sum += swe_get_ayanamsa(julianDay);
  }
  return sum + cusps[1];
}

// In turn, a block of each, so that both meet the same neighbours on the machine. What counts is the middle of many blocks.
void CalculateBesideBareCalls(benchmark::State &state) {
  constexpr int block = 20;
  MemoryUserSettings settings;
  Clock clock;
  int minute = 0;
  Samples bare, whole, ratio;
  for (auto _ : state) {
    std::vector<std::unique_ptr<clsPlanets>> charts;
    for (int n = 0; n < block; ++n) {
      charts.push_back(std::make_unique<clsPlanets>(settings));
      SetAgra(charts.back()->clsPerson());
      clock.Set(charts.back()->clsPerson());
    }
    const double calls = bare.Time([&] {
      for (int n = 0; n < block; ++n) benchmark::DoNotOptimize(BareCalls(2444421.5 + minute++ / 1440.0));
    });
    const double calculations = whole.Time([&] {
      for (const auto &chart : charts) chart->Calculate();
    });
    ratio.Add(calculations / calls);
  }
  state.counters["bare_ms"] = bare.Median() / block;
  state.counters["calculate_ms"] = whole.Median() / block;
  state.counters["ratio"] = ratio.Median();
}
BENCHMARK(CalculateBesideBareCalls)->Unit(benchmark::kMillisecond)->Iterations(500);

void SunRiseTimeOfANewChart(benchmark::State &state) {
  const QTemporaryDir folder;
  FileUserSettings settings(folder.filePath(QStringLiteral("orvani.conf")));  // as the program has them
  Clock clock;
  for (auto _ : state) {
    state.PauseTiming();
    clsPlanets chart(settings);
    SetAgra(chart.clsPerson());
    clock.Set(chart.clsPerson());
    chart.Calculate();
    state.ResumeTiming();
    benchmark::DoNotOptimize(chart.SunRiseTime());
  }
}
BENCHMARK(SunRiseTimeOfANewChart)->Unit(benchmark::kMillisecond);

struct OpenSession {
  OpenSession()
      : paths(QStringLiteral(ORVANI_EPHE "/..")),
        session(settings,
                {OpenLanguageDb(paths, QStringLiteral("ENGLISH")), Database::OpenDatabase(paths.RecosPath(), Database::Mode::ReadOnly),
                 Database::OpenDatabase(paths.DailyPath(), Database::Mode::ReadOnly)}) {
    session.LoadLastPerson({});
  }

  AppPaths paths;
  QTemporaryDir folder;
  FileUserSettings settings{folder.filePath(QStringLiteral("orvani.conf"))};
  SelvaniDailyMod session;
};

void OverviewOfAYear(benchmark::State &state) {
  OpenSession open;
  QDateTime moment(QDate(2026, 1, 1), QTime(9, 0), Qt::UTC);
  for (auto _ : state) {
    for (int day = 0; day < 365; ++day) {
      moment = moment.addDays(1);
      open.session.BuildAnalysis(moment);
      benchmark::DoNotOptimize(open.session.FillMainPage());
    }
  }
}
BENCHMARK(OverviewOfAYear)->Unit(benchmark::kMillisecond);

// A chart a day for the thirty days after the analysis.
void ScoresOfThirtyDays(benchmark::State &state) {
  OpenSession open;
  QDateTime moment(QDate(2026, 11, 21), QTime(9, 0), Qt::UTC);
  for (auto _ : state) {
    moment = moment.addSecs(60);
    open.session.BuildAnalysis(moment);
    benchmark::DoNotOptimize(ScoresAhead(open.session.BirthChart(), open.session.TodayChart()));
  }
}
BENCHMARK(ScoresOfThirtyDays)->Unit(benchmark::kMillisecond);

void OneGetHeadValue(benchmark::State &state) {
  OpenSession open;
  open.session.BuildAnalysis(QDateTime(QDate(2026, 11, 21), QTime(9, 0), Qt::UTC));
  const clsPlanets &chart = open.session.TodayChart();
  int tithi = 0;
  for (auto _ : state) benchmark::DoNotOptimize(chart.GetHeadValue(1, 1 + tithi++ % 30, QStringLiteral("Tithi")));
}
BENCHMARK(OneGetHeadValue);

}  // namespace
