// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlaceStore.h"

#include <QSqlQuery>

#include "persons/PersonFields.h"
#include "persons/PlaceSearch.h"
#include "platform/Errors.h"

namespace {

// Farther than this, a row is of another place, and what is known of the old one no longer holds.
constexpr int SamePlaceArcMinutes = 120;

const QString OneCountry = QStringLiteral("rowid = (SELECT rowid FROM Country WHERE Name = ? LIMIT 1)");

}  // namespace

QStringList PlaceStore::Countries() const {
  QStringList names;
  Recordset rows = db->OpenRecordset(QStringLiteral("SELECT Name FROM Country ORDER BY Name"));
  for (; !rows.AtEnd(); rows.MoveNext()) names << rows.Field(QStringLiteral("Name")).toString();
  return names;
}

bool PlaceStore::HasCountry(const QString &name) const {
  return !name.isEmpty() && !db->OpenRecordset(QStringLiteral("SELECT Name FROM Country WHERE Name = ?"), {name}).IsEmpty();
}

QString PlaceStore::CountryDifference(const QString &name) const {
  const Recordset row = db->OpenRecordset(QStringLiteral("SELECT GMTDIF FROM Country WHERE Name = ?"), {name});
  const QString stored = row.IsEmpty() ? QString() : row.Field(QStringLiteral("GMTDIF")).toString();
  return stored.isEmpty() ? PersonFields::NoDifference : PersonFields::ShownDifference(stored);
}

qlonglong PlaceStore::SaveCity(const Place &place) {
  Transaction transaction(*db);
  const qlonglong number = WriteCity(place);
  transaction.Commit();
  return number;
}

std::optional<qlonglong> PlaceStore::SaveCityOver(const Place &place, const std::optional<Place> &seen) {
  Transaction transaction(*db);
  if (place.row != 0 && PlaceSearch::Load(*db, place.row) != seen) return std::nullopt;
  const qlonglong number = WriteCity(place);
  transaction.Commit();
  return number;
}

qlonglong PlaceStore::WriteCity(const Place &place) {
  Recordset row = db->OpenRecordset(QStringLiteral("SELECT * FROM City WHERE rowid = ?"), {place.row});
  const bool isNew = row.IsEmpty();
  if (isNew) {
    row.AddNew();
  } else {
    const auto text = [&](const char *column) { return row.Field(QLatin1String(column)).toString(); };
    const auto isNear = [](const QString &stored, const QString &hemisphere, const QString &other, const QString &otherHemisphere) {
      return qAbs(PersonFields::SignedArcMinutes(stored, hemisphere) - PersonFields::SignedArcMinutes(other, otherHemisphere)) <=
             SamePlaceArcMinutes;
    };
    const bool isSamePlace = text("Country").compare(place.Country, Qt::CaseInsensitive) == 0 &&
                             isNear(text("Lat"), text("NOSO"), place.Lat, place.NOSO) &&
                             isNear(text("Longy"), text("EaWe"), place.Longy, place.EaWe);
    row.Edit();
    for (const char *column : {"Region", "Zone", "Known", "Population"})
      if (!isSamePlace && row.HasColumn(QLatin1String(column))) row.SetField(QLatin1String(column), QVariant());
  }
  const auto set = [&](const char *column, const QString &value) { row.SetField(QLatin1String(column), value); };
  set("City", place.City);
  set("Country", place.Country);
  set("Lat", place.Lat);
  set("Longy", place.Longy);
  set("NOSO", place.NOSO);
  set("EaWe", place.EaWe);
  set("GMTDIFF", place.GMTDIFF);
  row.Update();
  qlonglong number = place.row;
  if (isNew) {
    QSqlQuery last(db->Handle());
    if (!last.exec(QStringLiteral("SELECT last_insert_rowid()")) || !last.next()) throw db->Failure(last);
    number = last.value(0).toLongLong();
  }
  return number;
}

bool PlaceStore::SaveCountryOver(const QString &name, const QString &gmtDifference, const QString &former, const QString &seen) {
  Transaction transaction(*db);
  if (!former.isEmpty() && (!HasCountry(former) || CountryDifference(former) != seen)) return false;
  Recordset row = db->OpenRecordset(QStringLiteral("SELECT * FROM Country WHERE Name = ?"), {former.isEmpty() ? name : former});
  if (row.IsEmpty())
    row.AddNew();
  else
    row.Edit();
  row.SetField(QStringLiteral("Name"), name);
  row.SetField(QStringLiteral("GMTDIF"), gmtDifference);
  row.Update();
  transaction.Commit();
  return true;
}

RowsKept PlaceStore::KeepCity(qlonglong row) const {
  return RowsKept::Copy(*db, QStringLiteral("City"), QStringLiteral("rowid = ?"), {row});
}

RowsKept PlaceStore::KeepCountry(const QString &name) const { return RowsKept::Copy(*db, QStringLiteral("Country"), OneCountry, {name}); }

void PlaceStore::GoBackTo(const RowsKept &kept) {
  Transaction transaction(*db);
  kept.PutInPlace(*db);
  transaction.Commit();
}

RowsKept PlaceStore::DeleteCity(qlonglong row, const QString &name) {
  Transaction transaction(*db);
  RowsKept kept = row != 0 ? RowsKept::Take(*db, QStringLiteral("City"), QStringLiteral("rowid = ?"), {row})
                           : RowsKept::Take(*db, QStringLiteral("City"),
                                            QStringLiteral("rowid = (SELECT rowid FROM City WHERE City = ? LIMIT 1)"), {name});
  transaction.Commit();
  return kept;
}

RowsKept PlaceStore::DeleteCountry(const QString &name) {
  Transaction transaction(*db);
  RowsKept kept = RowsKept::Take(*db, QStringLiteral("Country"), OneCountry, {name});
  transaction.Commit();
  return kept;
}

void PlaceStore::Restore(const RowsKept &kept) {
  Transaction transaction(*db);
  kept.PutBack(*db);
  transaction.Commit();
}
