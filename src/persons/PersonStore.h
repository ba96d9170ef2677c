// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

#include "persons/PersonRecord.h"
#include "persons/RowsKept.h"
#include "platform/Store.h"

// The persons with their residences, which lie in two files. Every change is one transaction over both: after a fault, a full disk or
// the end of the program in the middle of it, both hold the old person or both hold the new one.
class PersonStore {
  Q_DECLARE_TR_FUNCTIONS(PersonStore)

 public:
  // personDb: the open store of persons; dailyPath: the file of residences, which is attached for as long as this object lives.
  // Throws StoreError.
  PersonStore(std::shared_ptr<Database> personDb, const QString &dailyPath);
  ~PersonStore();
  PersonStore(const PersonStore &) = delete;
  PersonStore &operator=(const PersonStore &) = delete;

  // All names in order; two persons of one name are two entries.
  QStringList Names() const { return NamesIn(*db); }
  static QStringList NamesIn(const Database &personDb);
  // The person at a place of that list, 0-based; nothing outside it. Two persons of one name share the first residence.
  std::optional<PersonRecord> At(int position) const;
  std::optional<PersonRecord> Find(const QString &name) const;  // the first of that name
  bool Has(const QString &name) const;
  // Whether the store takes two names for one: A to Z fold, other letters do not, and blanks around a name do not count.
  static bool IsSameName(const QString &one, const QString &other);
  // Whole rows, by name. A residence knows its person by the name alone: of several persons of one name, the first has the first
  // residence of that name.
  std::vector<PersonRecord> All() const;

  // Whether the name was new.
  enum class Outcome { Added, Changed };
  // Writes the first person of the name, or a new one, with the residence. The name is kept without blanks around it; a stored person's
  // sex and time correction stay.
  // Throws StoreError; nothing is changed then. Throws UsageError for a name that is empty or blank.
  Outcome Save(const PersonRecord &record);
  // The same where nobody has changed the person since `seen` was read, which is nothing for a new name; nothing otherwise, and the store
  // is as it was.
  std::optional<Outcome> SaveOver(const PersonRecord &record, const std::optional<PersonRecord> &seen);

  struct Tally {
    int added = 0, changed = 0;
  };
  // Writes whole records, sex, time correction and odd values too; all of them or, on a fault, none. The second person of one name
  // among the records is the second of that name in the store, and so is the second residence.
  Tally SaveAll(const std::vector<PersonRecord> &records);

  // A person's rows as they lay in both files, to be put back.
  struct Removed {
    QString name;
    RowsKept persons, residences;
    bool IsEmpty() const { return persons.IsEmpty() && residences.IsEmpty(); }
  };
  // Deletes every person and residence of the name; without one, nothing happens.
  Removed Delete(const QString &name);
  void Restore(const Removed &removed);

  // Everything as it lies now, to go back to after a list of persons came in; or what is of one name, after that was saved.
  Removed Snapshot() const;
  Removed SnapshotOf(const QString &name) const;
  // Only these names go back: what another program has saved of others since stays.
  void GoBackTo(const Removed &snapshot, const QVariantList &names);
  // The names under which records are written, those of their residences too.
  static QVariantList NamesOf(const std::vector<PersonRecord> &records);

  // Differs from an earlier answer when another program has changed one of the files since.
  std::pair<qlonglong, qlonglong> DataVersion() const { return {db->DataVersion(), db->DataVersion(schema)}; }

 private:
  QString Residences() const { return schema + QStringLiteral(".PERSON"); }
  PersonRecord Read(const Recordset &row) const;
  std::vector<PersonRecord> AllOf(const QString &name) const;
  std::optional<PersonRecord> WithResidence(const Recordset &person) const;
  static void ReadResidence(PersonRecord &record, const Recordset &row);
  enum class Extent { Screen, Whole };
  // How many of each name were written.
  struct Seen {
    QHash<QString, int> persons, residences;
  };
  static bool Open(Recordset &ofName, int position);
  Outcome Write(const PersonRecord &record, Extent extent, Seen &seen);

  std::shared_ptr<Database> db;
  QString schema;
};
