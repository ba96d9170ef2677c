// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The main screen: how long a user waits for it.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "app/MessageBoxes.h"
#include "app/frmMain.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/contentManager.h"

namespace {

void CopyFolder(const QString &from, const QString &to) {
  QDir().mkpath(to);
  for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
    const QString target = to + QLatin1Char('/') + entry.fileName();
    if (entry.isDir())
      CopyFolder(entry.filePath(), target);
    else
      QFile::copy(entry.filePath(), target);
  }
}

// A copy of the data, so that a run changes nothing.
struct Folder {
  Folder() { CopyFolder(QStringLiteral(ORVANI_EPHE), dir.path() + QStringLiteral("/EPHE")); }
  QTemporaryDir dir;
};

struct Program {
  Program() {
    static const Folder folder;
    const AppPaths paths(folder.dir.path());
    Theme::Apply(*qApp);
    Skin::SetFolder(paths.Ephe(QStringLiteral("SKIN")));
    screen = std::make_unique<frmMain>(paths, settings, boxes);
    screen->resize(1280, 800);
    screen->show();
    screen->Load();
    Paint();
  }
  void Paint() { screen->grab(); }

  MemoryUserSettings settings;
  MessageBoxes boxes;
  std::unique_ptr<frmMain> screen;
};

void StartToPaintedOverview(benchmark::State &state) {
  for (auto _ : state) Program program;
}
BENCHMARK(StartToPaintedOverview)->Unit(benchmark::kMillisecond);

void PersonChangeToPaintedPage(benchmark::State &state) {
  Program program;
  for (auto _ : state) {
    program.screen->ChangePerson(QStringLiteral("Anvik Telvar"));
    program.Paint();
  }
}
BENCHMARK(PersonChangeToPaintedPage)->Unit(benchmark::kMillisecond);

void DateChangeToPaintedPage(benchmark::State &state) {
  Program program;
  QDateTime moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);
  for (auto _ : state) {
    moment = moment.addDays(1);
    program.screen->ChangeMoment(moment);
    program.Paint();
  }
}
BENCHMARK(DateChangeToPaintedPage)->Unit(benchmark::kMillisecond);

void PageSwitchToPainted(benchmark::State &state) {
  Program program;
  const auto &table = contentManager::Table();
  size_t next = 0;
  for (auto _ : state) {
    program.screen->Pages().ShowPage(table[next++ % table.size()].page);
    program.Paint();
  }
}
BENCHMARK(PageSwitchToPainted)->Unit(benchmark::kMillisecond);

}  // namespace
