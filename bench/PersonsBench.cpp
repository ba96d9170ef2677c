// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Persons and places: 10,000 persons in the store, the whole list of places.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>

#include "content/Theme.h"
#include "persons/PersonStore.h"
#include "persons/PlaceSearch.h"
#include "persons/frmManageUsers.h"
#include "persons/frmPeople.h"

namespace {

constexpr int Many = 10000;

// Both stores filled once for all benchmarks.
struct Filled {
  Filled() {
    for (const char *name : {"/RECOS.Dat", "/Daily.dat"})
      QFile::copy(QStringLiteral(ORVANI_EPHE "/COMMON") + QLatin1String(name), folder.path() + QLatin1String(name));
    Theme::Apply(*qApp);
    persons = Database::OpenDatabase(folder.path() + QStringLiteral("/RECOS.Dat"));
    store = std::make_unique<PersonStore>(persons, Daily());
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

  QString Daily() const { return folder.path() + QStringLiteral("/Daily.dat"); }

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

// From the click to the painted list.
void OpenListOf10000Persons(benchmark::State &state) {
  const auto persons = Stores().persons;
  for (auto _ : state) {
    frmPeople people;
    people.Fill(*persons);
    people.SetCurrent(QStringLiteral("Person 7777"));
    people.OpenAt({0, 0});
    people.grab();
  }
}
BENCHMARK(OpenListOf10000Persons)->Unit(benchmark::kMillisecond);

void PressKey(QWidget &field, int key, const QString &text) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(&field, &event);
  }
}

// One key in turn of a name, as it is typed from the first letter on, until all is painted; `look` paints.
template <class Look>
void TypeAndLook(benchmark::State &state, QLineEdit &field, const QString &name, Look look) {
  field.setFocus();
  qsizetype typed = 0;
  for (auto _ : state) {
    if (typed == name.size()) {
      state.PauseTiming();
      field.clear();
      typed = 0;
      state.ResumeTiming();
    }
    PressKey(field, 0, name.mid(typed++, 1));
    QApplication::processEvents();
    look();
  }
}

void TypeOneLetterInListOf10000Persons(benchmark::State &state) {
  frmPeople people;
  people.Fill(*Stores().persons);
  people.OpenAt({0, 0});
  TypeAndLook(state, *people.findChild<QLineEdit *>(QStringLiteral("txtFind")), QStringLiteral("son 55"), [&] { people.grab(); });
}
BENCHMARK(TypeOneLetterInListOf10000Persons)->Unit(benchmark::kMillisecond);

void OpenManagerOf10000Persons(benchmark::State &state) {
  for (auto _ : state) {
    frmManageUsers manager(Stores().persons, Stores().Daily());
    manager.show();
    manager.grab();
  }
}
BENCHMARK(OpenManagerOf10000Persons)->Unit(benchmark::kMillisecond);

void OpenNamesInManagerOf10000Persons(benchmark::State &state) {
  frmManageUsers manager(Stores().persons, Stores().Daily());
  manager.show();
  auto *names = manager.findChild<QComboBox *>(QStringLiteral("cmbPerson"));
  for (auto _ : state) {
    names->showPopup();
    names->view()->grab();
    names->hidePopup();
  }
}
BENCHMARK(OpenNamesInManagerOf10000Persons)->Unit(benchmark::kMillisecond);

void TypeOneLetterInManager(benchmark::State &state, const char *list, const char *text) {
  frmManageUsers manager(Stores().persons, Stores().Daily());
  manager.show();
  QLineEdit &field = *manager.findChild<QComboBox *>(QLatin1String(list))->lineEdit();
  field.clear();
  TypeAndLook(state, field, QString::fromUtf8(text), [&] {
    if (auto *rows = field.completer()->popup(); rows->isVisible()) rows->grab();
  });
}
BENCHMARK_CAPTURE(TypeOneLetterInManager, name_of_10000, "cmbPerson", "son 55")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TypeOneLetterInManager, place_of_29000, "cmbBirthCity", "springf")->Unit(benchmark::kMillisecond);

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
