// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlacesUpgrade.h"

#include <QFileInfo>
#include <QHash>
#include <QSqlQuery>

#include "persons/PersonFields.h"
#include "platform/Store.h"

namespace {

// A row of the user's within this of a shipped one is the same place, its point mended by hand.
constexpr int SamePlaceArcMinutes = 60;

// A store without a mark has had the first list (0); one without any place has had none.
constexpr int FirstList = 0, NoList = -1;

constexpr const char *AddedColumns[][2] = {{"Region", "TEXT"}, {"Population", "INTEGER"}, {"Zone", "TEXT"}, {"Known", "TEXT"}};

int Number(Database &db, const QString &sql, int fallback) {
  const Recordset rows = db.OpenRecordset(sql);
  const QVariant value = rows.IsEmpty() ? QVariant() : rows.Field(QStringLiteral("Answer"));
  return value.isNull() ? fallback : value.toInt();
}

bool HasTable(Database &db, const char *name) {
  return !db.OpenRecordset(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE"),
                           {QLatin1String(name)})
              .IsEmpty();
}

int SeenVersion(Database &personDb) {
  if (HasTable(personDb, "PlacesApplied"))
    return Number(personDb, QStringLiteral("SELECT MAX(Version) AS Answer FROM PlacesApplied"), FirstList);
  return Number(personDb, QStringLiteral("SELECT COUNT(*) AS Answer FROM City"), 0) == 0 ? NoList : FirstList;
}

struct Point {
  qlonglong row = 0;
  int north = 0, east = 0;  // arc minutes
  bool isBare = false;      // has no zone yet

  bool IsSamePlace(const Point &other) const {
    return qAbs(north - other.north) <= SamePlaceArcMinutes && qAbs(east - other.east) <= SamePlaceArcMinutes;
  }
};

QString KeyOf(const QString &city, const QString &country) { return city.toLower() + u'\n' + country.toLower(); }

constexpr const char *PlaceColumns = "rowid, City, Country, Lat, NOSO, Longy, EaWe";

Point ReadPoint(const QSqlQuery &row) {
  return {row.value(0).toLongLong(), PersonFields::SignedArcMinutes(row.value(3).toString(), row.value(4).toString()),
          PersonFields::SignedArcMinutes(row.value(5).toString(), row.value(6).toString()), false};
}

void Run(QSqlQuery &query, const Database &db) {
  if (!query.exec()) throw db.Failure(query);
}

}  // namespace

PlacesUpgrade::Outcome PlacesUpgrade::Apply(Database &personDb, const QString &placesPath) {
  if (personDb.OpenMode() == Database::Mode::ReadOnly || !QFileInfo::exists(placesPath)) return {};
  // Every start asks for the version, and only an upgrade reads the rest.
  const auto shipped = Database::OpenDatabase(placesPath, Database::Mode::ReadOnly, Database::Check::HeadOnly);
  const int version = Number(*shipped, QStringLiteral("SELECT MAX(Version) AS Answer FROM PlacesVersion"), FirstList);
  const int seen = SeenVersion(personDb);
  if (seen >= version && HasTable(personDb, "PlacesApplied")) return {};

  shipped->CheckEveryPage();
  Transaction transaction(personDb);
  AddColumns(personDb);
  Outcome outcome;
  outcome.countries = AddCountries(personDb, *shipped, seen);
  outcome.cities = AddCities(personDb, *shipped, seen);
  personDb.Execute(QStringLiteral("CREATE TABLE IF NOT EXISTS PlacesApplied (Version INTEGER)"));
  personDb.Execute(QStringLiteral("DELETE FROM PlacesApplied"));
  personDb.Execute(QStringLiteral("INSERT INTO PlacesApplied (Version) VALUES (?)"), {version});
  transaction.Commit();
  return outcome;
}

void PlacesUpgrade::AddColumns(Database &personDb) {
  const QSet<QString> present = personDb.Columns(QStringLiteral("City"));
  for (const auto &[name, type] : AddedColumns) {
    if (present.contains(QLatin1String(name).toString().toLower())) continue;
    personDb.Execute(QStringLiteral("ALTER TABLE City ADD COLUMN %1 %2").arg(QLatin1String(name), QLatin1String(type)));
  }
}

int PlacesUpgrade::AddCountries(Database &personDb, Database &shipped, int seen) {
  int added = 0;
  Recordset fresh = shipped.OpenRecordset(QStringLiteral("SELECT Name, GMTDIF FROM Country WHERE Since > ? ORDER BY Name"), {seen});
  for (; !fresh.AtEnd(); fresh.MoveNext())
    if (const QVariant name = fresh.Field(QStringLiteral("Name"));
        personDb.OpenRecordset(QStringLiteral("SELECT Name FROM Country WHERE Name = ?"), {name}).IsEmpty())
      added += personDb.Execute(QStringLiteral("INSERT INTO Country (Name, GMTDIF) VALUES (?, ?)"),
                                {name, fresh.Field(QStringLiteral("GMTDIF"))});
  return added;
}

int PlacesUpgrade::AddCities(Database &personDb, Database &shipped, int seen) {
  QHash<QString, std::vector<Point>> present;
  QSqlQuery own(personDb.Handle());
  own.setForwardOnly(true);
  own.prepare(QStringLiteral("SELECT %1, Zone FROM City").arg(QLatin1String(PlaceColumns)));
  Run(own, personDb);
  while (own.next()) {
    Point point = ReadPoint(own);
    point.isBare = own.value(7).isNull();
    present[KeyOf(own.value(1).toString(), own.value(2).toString())].push_back(point);
  }
  own.finish();

  QSqlQuery insert(personDb.Handle()), complete(personDb.Handle());
  insert.prepare(QStringLiteral(
      "INSERT INTO City (City, Country, Lat, NOSO, Longy, EaWe, GMTDIFF, Region, Population, Zone, Known) VALUES (?,?,?,?,?,?,?,?,?,?,?)"));
  complete.prepare(QStringLiteral("UPDATE City SET Region = ?, Population = ?, Zone = ?, Known = ? WHERE rowid = ?"));
  QSqlQuery fresh(shipped.Handle());
  fresh.setForwardOnly(true);
  fresh.prepare(QStringLiteral("SELECT %1, GMTDIFF, Region, Population, Zone, Known, Since FROM City ORDER BY Population DESC")
                    .arg(QLatin1String(PlaceColumns)));
  Run(fresh, shipped);
  int added = 0;
  while (fresh.next()) {
    const Point point = ReadPoint(fresh);
    const auto known = present.find(KeyOf(fresh.value(1).toString(), fresh.value(2).toString()));
    bool isThere = false;
    if (known != present.end()) {
      for (Point &one : *known) {
        if (!one.IsSamePlace(point)) continue;
        isThere = true;
        if (!one.isBare) continue;
        // Only what the row never had is filled in.
        for (int column = 8; column <= 11; ++column) complete.addBindValue(fresh.value(column));
        complete.addBindValue(one.row);
        Run(complete, personDb);
        one.isBare = false;
        break;
      }
    }
    if (isThere || fresh.value(12).toInt() <= seen) continue;
    for (int column = 1; column <= 11; ++column) insert.addBindValue(fresh.value(column));
    Run(insert, personDb);
    ++added;
  }
  return added;
}
