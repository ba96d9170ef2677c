// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// RECOS.Dat, the births and places: shown by orvani-daily, then opened, listed, searched and saved as the desktop program does.
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "fuzz/Stores.h"
#include "persons/PlaceSearch.h"
#include "persons/PlaceStore.h"
#include "persons/clsPerson.h"

namespace {

void SearchPlaces(const std::shared_ptr<Database> &persons) {
  const PlaceSearch search(persons);
  for (const PlaceSearch::Found &found : search.Find(QStringLiteral("a"), QString(), 20))
    Require(!found.Label().isNull(), "a place has a label");
  search.First(QStringLiteral("De"), QStringLiteral("India"));
  for (const PlaceSearch::Listed &listed : search.CitiesOf(QString())) search.Load(listed.row);
  PlaceStore places(persons);
  for (const QString &country : places.Countries()) places.CountryDifference(country);
  const std::vector<PlaceSearch::Found> some = search.Find(QStringLiteral("A"), QString(), 1);
  if (!some.empty()) places.SaveCity(some.front().place);
}

void GoThrough(const std::shared_ptr<Database> &persons) {
  clsPerson person;
  person.SetDB(persons);
  for (int row = 0; row < person.Count() && row < 5; ++row) {
    person.MoveTo(row);
    try {
      person.GetBirthDate();
      person.AddMinutes(90);
    } catch (const Error &) {
      // No such birth: the next one may be sound.
    }
    person.GetBirthTimeFull();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  TryUserStore("COMMON/RECOS.Dat", content, [&](const std::shared_ptr<Database> &persons) {
    const FuzzFolder &folder = FuzzFolder::Only();
    folder.RunDaily(content);
    GoThrough(persons);
    SaveOnePerson(persons, folder.File("COMMON/Daily.dat"));
    SearchPlaces(persons);
  });
  return 0;
}
