// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Whole programs, and the main of the benchmarks.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

void DailyJsonAsAProcess(benchmark::State &state) {
  for (auto _ : state) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral(ORVANI_DAILY), {QStringLiteral("--json")});
    process.waitForFinished();
    if (process.exitCode() != 0) state.SkipWithError("orvani-daily failed");
  }
  rusage children{};
  getrusage(RUSAGE_CHILDREN, &children);
  state.counters["peak_MiB"] = static_cast<double>(children.ru_maxrss) / 1024;
}
BENCHMARK(DailyJsonAsAProcess)->Unit(benchmark::kMillisecond)->UseRealTime();

void DailyPdfAsAProcess(benchmark::State &state) {
  const QTemporaryDir folder;
  for (auto _ : state) {
    if (QProcess::execute(QStringLiteral(ORVANI_DAILY), {QStringLiteral("--pdf"), folder.filePath(QStringLiteral("day.pdf"))}) != 0)
      state.SkipWithError("orvani-daily failed");
  }
}
BENCHMARK(DailyPdfAsAProcess)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
