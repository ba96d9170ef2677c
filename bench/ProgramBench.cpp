// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Whole programs, from the start of the process to its end.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "OpenWindow.h"
#include "Samples.h"

namespace {

// From the start of the process to the window that is painted and takes keys. This program plays the window's part.
void StartToUsableWindow(benchmark::State &state) {
  const QTemporaryDir home;  // of the settings: the wizard of the first start has been answered
  QDir(home.path()).mkpath(QStringLiteral("orvani"));
  FileUserSettings(home.filePath(QStringLiteral("orvani/orvani.conf"))).SetBoolValue(SettingKeys::DoneSetup, true);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
  Samples starts;
  for (auto _ : state) {
    QProcess process;
    process.setProcessEnvironment(environment);
    starts.Time([&] {
      process.start(QCoreApplication::applicationFilePath(), {OpenWindow::Option(), OpenWindow::DataFolder()});
      process.waitForReadyRead();
    });
    if (!process.readAllStandardOutput().startsWith("open")) state.SkipWithError("the window did not open");
    process.waitForFinished();
  }
  state.counters["median_ms"] = starts.Median();
}
BENCHMARK(StartToUsableWindow)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(12);

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
