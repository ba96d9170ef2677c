// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Persons and places: 10,000 persons in the store, the whole list of places.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include "persons/PersonStore.h"
#include "persons/PlaceSearch.h"

namespace {

constexpr int Many = 10000;

// Both stores filled once for all benchmarks.
struct Filled {
  Filled() {
    for (const char *name : {"/RECOS.Dat", "/Daily.dat"})
      QFile::copy(QStringLiteral(ORVANI_EPHE "/COMMON") + QLatin1String(name), folder.path() + QLatin1String(name));
    persons = Database::OpenDatabase(folder.path() + QStringLiteral("/RECOS.Dat"));
    store = std::make_unique<PersonStore>(persons, folder.path() + QStringLiteral("/Daily.dat"));
    std::vector<PersonRecord> records(Many);
    for (int i = 0; i < Many; ++i) {
      PersonRecord &record = records[static_cast<std::size_t>(i)];
      record.Name = QStringLiteral("Person %1").arg(i * 7919 % Many);
      record.Day = record.Month = 1;
      record.Year = 1980;
      record.residence.emplace();
    }
    store->SaveAll(records);
  }

  QTemporaryDir folder;
  std::shared_ptr<Database> persons;
  std::unique_ptr<PersonStore> store;
};

Filled &Stores() {
  static Filled filled;
  return filled;
}

void ListOf10000Persons(benchmark::State &state) {
  const PersonStore &store = *Stores().store;
  for (auto _ : state) benchmark::DoNotOptimize(store.Names());
}
BENCHMARK(ListOf10000Persons)->Unit(benchmark::kMillisecond);

void OnePersonOf10000(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(Stores().store->Find(QStringLiteral("person 5000")));
}
BENCHMARK(OnePersonOf10000)->Unit(benchmark::kMicrosecond);

void SaveOnePersonOf10000(benchmark::State &state) {
  PersonRecord record = *Stores().store->Find(QStringLiteral("person 5000"));
  for (auto _ : state) Stores().store->Save(record);
}
BENCHMARK(SaveOnePersonOf10000)->Unit(benchmark::kMillisecond);

void ReadAllPlaces(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(PlaceSearch(Stores().persons).Count());
}
BENCHMARK(ReadAllPlaces)->Unit(benchmark::kMillisecond);

void TypeOneLetterOfAPlace(benchmark::State &state) {
  const PlaceSearch search(Stores().persons);
  for (auto _ : state) benchmark::DoNotOptimize(search.Find(QStringLiteral("s"), QString(), 12));
}
BENCHMARK(TypeOneLetterOfAPlace)->Unit(benchmark::kMillisecond);

}  // namespace
