// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PersonStore.h"

#include <QSet>
#include <QSqlQuery>
#include <algorithm>
#include <utility>

#include "platform/Errors.h"

namespace {

const QString ByName = QStringLiteral(" ORDER BY Name, rowid");

const QString OfResidence = QStringLiteral("Res");

QString Text(const Recordset &row, const char *column) { return row.Field(QLatin1String(column)).toString(); }
int Whole(const Recordset &row, const char *column) { return row.Field(QLatin1String(column)).toInt(); }

using Values = std::vector<std::pair<QString, QVariant>>;  // by column

void AddPlace(Values &values, const PlaceRecord &place) {
  const auto add = [&](const char *column, const QVariant &value) { values.emplace_back(QLatin1String(column), value); };
  add("Country", place.Country);
  add("City", place.City);
  add("GMTDIFF", place.GMTDIFF);
  add("LatDeg", place.LatDeg);
  add("LatMT", place.LatMT);
  add("TextNS", place.TextNS);
  add("LongDeg", place.LongDeg);
  add("LongMT", place.LongMT);
  add("TextEW", place.TextEW);
}

Values PersonValues(const PersonRecord &record) {
  Values values;
  const auto add = [&](const char *column, const QVariant &value) { values.emplace_back(QLatin1String(column), value); };
  add("Name", record.Name.trimmed());
  add("Sex", record.Sex);
  add("Day", record.Day);
  add("Month", record.Month);
  add("Year", record.Year);
  add("Hour", record.Hour);
  add("Minutes", record.Minutes);
  add("seconds", record.seconds);
  add("AMPM", record.AMPM);
  AddPlace(values, record.birth);
  add("TCorrVal", record.TCorrVal.isEmpty() ? QVariant() : QVariant(record.TCorrVal));
  add("Tcorrinde", record.Tcorrinde ? QVariant(*record.Tcorrinde) : QVariant());
  return values;
}

Values ResidenceValues(const PlaceRecord &place, const QVariant &name) {
  Values values{{QStringLiteral("Name"), name}};
  AddPlace(values, place);
  return values;
}

bool IsSame(const QVariant &stored, const QVariant &value) {
  if (stored.isNull() || value.isNull()) return stored.isNull() && value.isNull();
  if (value.typeId() == QMetaType::Int) return stored.typeId() == QMetaType::LongLong && stored.toLongLong() == value.toLongLong();
  return stored.typeId() == value.typeId() && stored == value;
}

QVariant OrNull(const QVariant &stored) { return stored.isNull() ? QVariant() : stored; }

void KeepOdd(PersonRecord &record, const Recordset &row, const Values &values, const QString &prefix) {
  for (const auto &[column, value] : values) {
    const QVariant stored = row.Field(column);
    if (!IsSame(stored, value)) record.odd.insert(prefix + column, OrNull(stored));
  }
}

QVariant StoredName(const PersonRecord &record) { return record.odd.value(QStringLiteral("Name"), record.Name.trimmed()); }

// Names that the store takes for one have one key: it folds the letters A to Z, and no others.
QString KeyOf(const QVariant &name) {
  if (name.isNull()) return {};
  QString key = name.toString();
  for (QChar &letter : key)
    if (letter >= u'A' && letter <= u'Z') letter = QChar(letter.unicode() + (u'a' - u'A'));
  return u'=' + key;
}

}  // namespace

bool PersonStore::IsSameName(const QString &one, const QString &other) { return KeyOf(one.trimmed()) == KeyOf(other.trimmed()); }

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

QStringList PersonStore::NamesIn(const Database &personDb) {
  QSqlQuery query(personDb.Handle());
  query.setForwardOnly(true);
  if (!query.exec(QStringLiteral("SELECT Name FROM main.Person") + ByName)) throw personDb.Failure(query);
  QStringList names;
  while (query.next()) names << query.value(0).toString();
  return names;
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
  record.birth = ReadPlaceRecord(row);
  record.TCorrVal = Text(row, "TCorrVal");
  if (!row.Field(QStringLiteral("Tcorrinde")).isNull()) record.Tcorrinde = Whole(row, "Tcorrinde");
  KeepOdd(record, row, PersonValues(record), QString());
  if (record.Name.trimmed().isEmpty()) record.odd.insert(QStringLiteral("Name"), OrNull(row.Field(QStringLiteral("Name"))));
  return record;
}

void PersonStore::ReadResidence(PersonRecord &record, const Recordset &row) {
  record.residence = ReadPlaceRecord(row);
  KeepOdd(record, row, ResidenceValues(*record.residence, StoredName(record)), OfResidence);
}

// Nothing where there is no row; of several residences of the name, the first.
std::optional<PersonRecord> PersonStore::WithResidence(const Recordset &person) const {
  if (person.IsEmpty()) return std::nullopt;
  PersonRecord record = Read(person);
  const Recordset place =
      db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" WHERE Name = ?"), {record.Name});
  if (!place.IsEmpty()) ReadResidence(record, place);
  return record;
}

std::optional<PersonRecord> PersonStore::At(int position) const {
  if (position < 0) return std::nullopt;
  const Recordset person =
      db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person") + ByName + QStringLiteral(" LIMIT 1 OFFSET ?"), {position});
  return WithResidence(person);
}

std::optional<PersonRecord> PersonStore::Find(const QString &name) const {
  return WithResidence(db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person WHERE Name = ?"), {name}));
}

bool PersonStore::Has(const QString &name) const {
  return !db->OpenRecordset(QStringLiteral("SELECT Name FROM main.Person WHERE Name = ? LIMIT 1"), {name.trimmed()}).IsEmpty();
}

std::vector<PersonRecord> PersonStore::All() const {
  Recordset residence = db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + QStringLiteral(" ORDER BY rowid"));
  QHash<QString, QList<int>> rowsOfName;
  for (int row = 0; row < residence.RecordCount(); ++row, residence.MoveNext())
    rowsOfName[KeyOf(residence.Field(QStringLiteral("Name")))] << row;

  std::vector<PersonRecord> all;
  Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person") + ByName);
  all.reserve(static_cast<std::size_t>(person.RecordCount()));
  for (; !person.AtEnd(); person.MoveNext()) {
    PersonRecord record = Read(person);
    const auto found = rowsOfName.find(KeyOf(person.Field(QStringLiteral("Name"))));
    if (found != rowsOfName.end() && !found->isEmpty()) {
      residence.MoveFirst();
      residence.Move(found->takeFirst());
      ReadResidence(record, residence);
    }
    all.push_back(std::move(record));
  }
  return all;
}

// Opens the row for it: the one of the name that stands at `position` among those of that name, a new one where there are fewer.
bool PersonStore::Open(Recordset &ofName, int position) {
  const bool isNew = ofName.RecordCount() <= position;
  if (isNew) {
    ofName.AddNew();
  } else {
    ofName.Move(position);
    ofName.Edit();
  }
  return isNew;
}

PersonStore::Outcome PersonStore::Write(const PersonRecord &record, Extent extent, Seen &seen) {
  const bool isWhole = extent == Extent::Whole;
  const QVariant name = isWhole ? StoredName(record) : QVariant(record.Name.trimmed());
  if (name.toString().trimmed().isEmpty() && !(isWhole && record.odd.contains(QStringLiteral("Name"))))
    throw UsageError(tr("Please enter a name."));
  const auto oddOr = [&](const QString &column, const QVariant &value) { return isWhole ? record.odd.value(column, value) : value; };

  const QString ofName = QStringLiteral(" WHERE Name IS ? ORDER BY rowid");
  Recordset person = db->OpenRecordset(QStringLiteral("SELECT * FROM main.Person") + ofName, {name});
  const bool isNew = Open(person, seen.persons[KeyOf(name)]++);
  for (const auto &[column, value] : PersonValues(record)) {
    const bool isOfTheWhole = column == QLatin1String("TCorrVal") || column == QLatin1String("Tcorrinde");
    if (isWhole || (!isOfTheWhole && (isNew || column != QLatin1String("Sex")))) person.SetField(column, oddOr(column, value));
  }
  person.Update();

  if (record.residence) {
    const QVariant nameOfResidence = oddOr(OfResidence + QStringLiteral("Name"), name);
    Recordset place = db->OpenRecordset(QStringLiteral("SELECT * FROM ") + Residences() + ofName, {nameOfResidence});
    Open(place, seen.residences[KeyOf(nameOfResidence)]++);
    for (const auto &[column, value] : ResidenceValues(*record.residence, name)) place.SetField(column, oddOr(OfResidence + column, value));
    place.Update();
  }
  return isNew ? Outcome::Added : Outcome::Changed;
}

PersonStore::Outcome PersonStore::Save(const PersonRecord &record) {
  Seen seen;
  Transaction transaction(*db);
  const Outcome outcome = Write(record, Extent::Screen, seen);
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
    if (!place.IsEmpty()) ReadResidence(all.back(), place);
  }
  return all;
}

std::optional<PersonStore::Outcome> PersonStore::SaveOver(const PersonRecord &record, const std::optional<PersonRecord> &seen) {
  Transaction transaction(*db);
  const std::vector<PersonRecord> stored = AllOf(seen ? seen->Name : record.Name.trimmed());
  const bool isAsSeen = seen ? std::find(stored.begin(), stored.end(), *seen) != stored.end() : stored.empty();
  if (!isAsSeen) return std::nullopt;
  Seen first;
  const Outcome outcome = Write(record, Extent::Screen, first);
  transaction.Commit();
  return outcome;
}

PersonStore::Tally PersonStore::SaveAll(const std::vector<PersonRecord> &records) {
  Tally tally;
  Seen seen;
  Transaction transaction(*db);
  for (const PersonRecord &record : records) ++(Write(record, Extent::Whole, seen) == Outcome::Added ? tally.added : tally.changed);
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

PersonStore::Removed PersonStore::SnapshotOf(const QString &name) const {
  return {name, RowsKept::Copy(*db, QStringLiteral("main.Person"), QStringLiteral("Name IS ?"), {name}),
          RowsKept::Copy(*db, Residences(), QStringLiteral("Name IS ?"), {name})};
}

QVariantList PersonStore::NamesOf(const std::vector<PersonRecord> &records) {
  QVariantList names;
  for (const PersonRecord &record : records) {
    names << StoredName(record);
    if (const auto other = record.odd.find(OfResidence + QStringLiteral("Name")); other != record.odd.end()) names << *other;
  }
  return names;
}

void PersonStore::GoBackTo(const Removed &snapshot, const QVariantList &names) {
  QSet<QString> keys;
  for (const QVariant &name : names) keys << KeyOf(name);
  const auto isNamed = [&](const QVariant &name) { return keys.contains(KeyOf(name)); };
  Transaction transaction(*db);
  for (const QVariant &name : names) {
    db->Execute(QStringLiteral("DELETE FROM main.Person WHERE Name IS ?"), {name});
    db->Execute(QStringLiteral("DELETE FROM %1 WHERE Name IS ?").arg(Residences()), {name});
  }
  snapshot.persons.Of(QStringLiteral("Name"), isNamed).PutBack(*db);
  snapshot.residences.Of(QStringLiteral("Name"), isNamed).PutBack(*db);
  transaction.Commit();
}
