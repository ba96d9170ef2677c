// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PersonStore.h"

#include <QHash>
#include <QSqlQuery>
#include <algorithm>

#include "platform/Errors.h"

namespace {

const QString ByName = QStringLiteral(" ORDER BY Name, rowid");

QString Text(const Recordset &row, const char *column) { return row.Field(QLatin1String(column)).toString(); }
int Whole(const Recordset &row, const char *column) { return row.Field(QLatin1String(column)).toInt(); }

}  // namespace

PersonStore::PersonStore(std::shared_ptr<Database> personDb, const QString &dailyPath) : db(std::move(personDb)) {
  static int attached = 0;
  schema = QStringLiteral("residences%1").arg(++attached);
  db->Attach(dailyPath, schema);
}

PersonStore::~PersonStore() {
  try {
    db->Detach(schema);
  } catch (const StoreError &) {
    // The file stays attached until the store is closed, which harms nothing.
  }
}

QStringList PersonStore::Names() const {
  QSqlQuery query(db->Handle());
  query.setForwardOnly(true);
  if (!query.exec(QStringLiteral("SELECT Name FROM main.Person") + ByName)) throw db->Failure(query);
  QStringList names;
  while (query.next()) names << query.value(0).toString();
  return names;
}

PersonPlace PersonStore::ReadPlace(const Recordset &row) {
  return {Text(row, "City"),   Text(row, "Country"),  Text(row, "GMTDIFF"), Whole(row, "LatDeg"), Whole(row, "LatMT"),
          Text(row, "TextNS"), Whole(row, "LongDeg"), Whole(row, "LongMT"), Text(row, "TextEW")};
}

PersonRecord PersonStore::Read(const Recordset &row) const {
  PersonRecord record;
  record.Name = Text(row, "Name");
  record.Sex = Whole(row, "Sex");
  record.Day = Whole(row, "Day");
  record.Month = Whole(row, "Month");
  record.Year = Whole(row, "Year");
  record.Hour = Whole(row, "Hour");
  record.Minutes = Whole(row, "Minutes");
  record.seconds = Whole(row, "seconds");
  record.AMPM = Whole(row, "AMPM");
  record.birth = ReadPlace(row);
  record.TCorrVal = Text(row, "TCorrVal");
  record.Tcorrinde = Whole(row, "Tcorrinde");
  return record;
}

std::optional<PersonRecord> PersonStore::At(int position) const {
  if (position < 0) return std::nullopt;
  const Recordset person =
      db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person") + ByName + QStringLiteral(" LIMIT 1 OFFSET ?"), {position});
  if (person.IsEmpty()) return std::nullopt;
  PersonRecord record = Read(person);
  const Recordset place =
      db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" WHERE Name = ?"), {record.Name});
  if (!place.IsEmpty()) record.residence = ReadPlace(place);
  return record;
}

std::optional<PersonRecord> PersonStore::Find(const QString &name) const {
  const Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person WHERE Name = ?"), {name});
  if (person.IsEmpty()) return std::nullopt;
  PersonRecord record = Read(person);
  const Recordset place =
      db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" WHERE Name = ?"), {record.Name});
  if (!place.IsEmpty()) record.residence = ReadPlace(place);
  return record;
}

bool PersonStore::Has(const QString &name) const {
  return !db->OpenRecordset(QStringLiteral("SELECT Name FROM main.Person WHERE Name = ? LIMIT 1"), {name.trimmed()}).IsEmpty();
}

std::vector<PersonRecord> PersonStore::All() const {
  QHash<QString, QList<PersonPlace>> places;  // by lower-case name, in their order
  Recordset residence = db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" ORDER BY rowid"));
  for (; !residence.AtEnd(); residence.MoveNext()) places[Text(residence, "Name").toLower()] << ReadPlace(residence);

  std::vector<PersonRecord> all;
  Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person") + ByName);
  all.reserve(static_cast<std::size_t>(person.RecordCount()));
  for (; !person.AtEnd(); person.MoveNext()) {
    PersonRecord record = Read(person);
    const auto found = places.find(record.Name.toLower());
    if (found != places.end() && !found->isEmpty()) record.residence = found->takeFirst();
    all.push_back(std::move(record));
  }
  return all;
}

void PersonStore::WritePlace(Recordset &row, const PersonPlace &place) {
  const auto set = [&](const char *column, const QVariant &value) { row.SetField(QLatin1String(column), value); };
  set("Country", place.Country);
  set("City", place.City);
  set("GMTDIFF", place.GMTDIFF);
  set("LatDeg", place.LatDeg);
  set("LatMT", place.LatMT);
  set("TextNS", place.TextNS);
  set("LongDeg", place.LongDeg);
  set("LongMT", place.LongMT);
  set("TextEW", place.TextEW);
}

PersonStore::Outcome PersonStore::Write(const PersonRecord &record, Extent extent, int occurrence) {
  const QString name = record.Name.trimmed();
  if (name.isEmpty()) throw UsageError(QStringLiteral("Please enter a name."));

  Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person WHERE Name = ? ORDER BY rowid"), {name});
  const bool isNew = person.RecordCount() <= occurrence;
  if (isNew) {
    person.AddNew();
  } else {
    person.Move(occurrence);
    person.Edit();
  }
  const auto set = [&](const char *column, const QVariant &value) { person.SetField(QLatin1String(column), value); };
  set("Name", name);
  set("Day", record.Day);
  set("Month", record.Month);
  set("Year", record.Year);
  set("Hour", record.Hour);
  set("Minutes", record.Minutes);
  set("seconds", record.seconds);
  set("AMPM", record.AMPM);
  WritePlace(person, record.birth);
  if (isNew || extent == Extent::Whole) set("Sex", record.Sex);
  if (extent == Extent::Whole) {
    set("TCorrVal", record.TCorrVal.isEmpty() ? QVariant() : QVariant(record.TCorrVal));
    set("Tcorrinde", record.Tcorrinde);
  }
  person.Update();

  if (record.residence) {
    Recordset place =
        db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" WHERE Name = ? ORDER BY rowid"), {name});
    if (place.RecordCount() <= occurrence) {
      place.AddNew();
    } else {
      place.Move(occurrence);
      place.Edit();
    }
    place.SetField(QStringLiteral("Name"), name);
    WritePlace(place, *record.residence);
    place.Update();
  }
  return isNew ? Outcome::Added : Outcome::Changed;
}

PersonStore::Outcome PersonStore::Save(const PersonRecord &record) {
  Transaction transaction(*db);
  const Outcome outcome = Write(record, Extent::Screen, 0);
  transaction.Commit();
  return outcome;
}

// Each with the first residence, as At gives them.
std::vector<PersonRecord> PersonStore::AllOf(const QString &name) const {
  std::vector<PersonRecord> all;
  const Recordset place = db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" WHERE Name = ?"), {name});
  Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person WHERE Name = ?"), {name});
  for (; !person.AtEnd(); person.MoveNext()) {
    all.push_back(Read(person));
    if (!place.IsEmpty()) all.back().residence = ReadPlace(place);
  }
  return all;
}

std::optional<PersonStore::Outcome> PersonStore::SaveOver(const PersonRecord &record, const std::optional<PersonRecord> &seen) {
  Transaction transaction(*db);
  const std::vector<PersonRecord> stored = AllOf(record.Name.trimmed());
  const bool isAsSeen = seen ? std::find(stored.begin(), stored.end(), *seen) != stored.end() : stored.empty();
  if (!isAsSeen) return std::nullopt;
  const Outcome outcome = Write(record, Extent::Screen, 0);
  transaction.Commit();
  return outcome;
}

PersonStore::Tally PersonStore::SaveAll(const std::vector<PersonRecord> &records) {
  Tally tally;
  QHash<QString, int> seen;
  Transaction transaction(*db);
  for (const PersonRecord &record : records) {
    const int occurrence = seen[record.Name.trimmed().toLower()]++;
    ++(Write(record, Extent::Whole, occurrence) == Outcome::Added ? tally.added : tally.changed);
  }
  transaction.Commit();
  return tally;
}

PersonStore::Removed PersonStore::Delete(const QString &name) {
  Removed removed;
  removed.name = name;
  Transaction transaction(*db);
  removed.persons = RowsKept::Take(*db, QStringLiteral("main.Person"), QStringLiteral("Name = ?"), {name});
  removed.residences = RowsKept::Take(*db, Residences(), QStringLiteral("Name = ?"), {name});
  transaction.Commit();
  return removed;
}

void PersonStore::Restore(const Removed &removed) {
  Transaction transaction(*db);
  removed.persons.PutBack(*db);
  removed.residences.PutBack(*db);
  transaction.Commit();
}

PersonStore::Removed PersonStore::Snapshot() const {
  return {QString(), RowsKept::Copy(*db, QStringLiteral("main.Person"), QStringLiteral("1"), {}),
          RowsKept::Copy(*db, Residences(), QStringLiteral("1"), {})};
}

void PersonStore::GoBackTo(const Removed &snapshot, const QStringList &names) {
  const QString name = QStringLiteral("Name");
  Transaction transaction(*db);
  for (const QString &one : names) {
    db->Execute(QStringLiteral("DELETE FROM main.Person WHERE Name = ?"), {one});
    db->Execute(QStringLiteral("DELETE FROM %1 WHERE Name = ?").arg(Residences()), {one});
  }
  snapshot.persons.Of(name, names).PutBack(*db);
  snapshot.residences.Of(name, names).PutBack(*db);
  transaction.Commit();
}
