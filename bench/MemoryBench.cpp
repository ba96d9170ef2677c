// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// What the window keeps of long use.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QFile>

#include "OpenWindow.h"
#include "content/contentManager.h"

namespace {

constexpr double MiB = 1024 * 1024;
constexpr int WarmUp = 200, Changes = 1000;

struct Memory {
  double heap, resident;  // MiB in use by the program, MiB of memory that belongs to the process alone
};

Memory Now() {
  malloc_trim(0);
  const struct mallinfo2 heap = mallinfo2();
  double resident = 0;
  QFile rollup(QStringLiteral("/proc/self/smaps_rollup"));
  if (rollup.open(QIODevice::ReadOnly)) {
    for (const QByteArray &line : rollup.readAll().split('\n'))
      if (line.startsWith("Private_Dirty:")) resident = line.simplified().split(' ').value(1).toDouble() / 1024;
  }
  return {static_cast<double>(heap.uordblks + heap.hblkhd) / MiB, resident};
}

void WindowMemory(benchmark::State &state) {
  OpenWindow window;
  const std::vector<int> pages = OpenWindow::AllPages();
  QDateTime moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);
  size_t next = 0;
  const auto switches = [&](int count) {
    for (int n = 0; n < count; ++n) {
      window.Screen().Pages().ShowPage(pages[next++ % pages.size()]);
      window.Paint();
    }
  };
  const auto days = [&](int count) {
    window.Screen().Pages().ShowPage(18);
    for (int n = 0; n < count; ++n) {
      moment = moment.addDays(1);
      window.Screen().ChangeMoment(moment);
      window.Paint();
    }
  };
  switches(WarmUp);
  days(WarmUp);
  const Memory before = Now();
  for (auto _ : state) {
    switches(Changes);
    days(Changes);
  }
  const Memory after = Now();
  state.counters["heap_MiB"] = after.heap;
  state.counters["heap_growth_MiB"] = after.heap - before.heap;
  state.counters["private_MiB"] = after.resident;
  state.counters["private_growth_MiB"] = after.resident - before.resident;
}
BENCHMARK(WindowMemory)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
