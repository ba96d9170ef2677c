// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Lists of persons that come in from other programs: read, saved and written again, they are the same persons.
#include <algorithm>

#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "persons/PersonStore.h"
#include "persons/PersonsFile.h"

namespace {

#ifdef FUZZ_JSON
constexpr auto Tried = PersonsFile::Format::Json;
#else
constexpr auto Tried = PersonsFile::Format::Csv;
#endif

void CheckWrittenAgain(const std::vector<PersonRecord> &persons) {
  for (const auto format : {PersonsFile::Format::Csv, PersonsFile::Format::Json}) {
    const PersonsFile::Contents again = PersonsFile::Read(PersonsFile::Write(persons, format), format);
    Require(again.faults.isEmpty(), "what is written is sound");
    Require(again.persons == persons, "what is written reads back as the same persons");
  }
}

// Every person of the file stands in the store, each name as often as in the file.
void CheckSaved(const std::vector<PersonRecord> &persons) {
  FuzzFolder &folder = FuzzFolder::Only();
  static PersonStore store(Database::OpenDatabase(folder.File("COMMON/RECOS.Dat")), folder.File("COMMON/Daily.dat"));
  static const PersonStore::Removed before = store.Snapshot();
  const std::size_t former = store.All().size();
  const PersonStore::Tally tally = store.SaveAll(persons);
  const std::vector<PersonRecord> all = store.All();
  Require(all.size() == former + static_cast<std::size_t>(tally.added), "each person that was added is one more");
  for (const PersonRecord &person : persons) {
    const bool isThere = std::any_of(all.begin(), all.end(), [&](const PersonRecord &kept) {
      return kept.Name == person.Name && kept.birth == person.birth && kept.Day == person.Day && kept.Month == person.Month &&
             kept.Year == person.Year && kept.Hour == person.Hour && kept.Minutes == person.Minutes && kept.TCorrVal == person.TCorrVal;
    });
    Require(isThere, "each person of the file is in the store");
  }
  Require(store.SaveAll(persons).added == 0, "the same file again adds nobody");
  store.GoBackTo(before, PersonStore::NamesOf(persons));
  Require(store.All().size() == former, "the import is undone");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  try {
    const PersonsFile::Contents contents = PersonsFile::Read(content, Tried);
    for (const QString &fault : contents.faults) Require(fault.startsWith(QLatin1String("Line ")), "a fault names its line");
    // Rows that are told to lie so in a store come in as they are.
    if (!content.toLower().contains("asstored"))
      for (const PersonRecord &person : contents.persons) Require(PersonsFile::FaultOf(person).isEmpty(), "what comes in is sound");
    if (contents.persons.empty()) return 0;
    CheckWrittenAgain(contents.persons);
    CheckSaved(contents.persons);
  } catch (const ConversionError &error) {
    Require(!error.Sentence().isEmpty(), "the fault has a sentence");
  }
  return 0;
}
