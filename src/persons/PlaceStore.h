// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStringList>
#include <memory>
#include <optional>

#include "persons/Place.h"
#include "persons/RowsKept.h"
#include "platform/Store.h"

// Adds, changes and deletes the places and countries of the list, each change in one transaction.
class PlaceStore {
 public:
  explicit PlaceStore(std::shared_ptr<Database> personDb) : db(std::move(personDb)) {}

  QStringList Countries() const;  // by name
  bool HasCountry(const QString &name) const;
  QString CountryDifference(const QString &name) const;  // "+00.00" where there is none

  // place.row 0 adds a row, another number changes that row; the row number of the result. Region and zone of a changed row stay as
  // long as it is about the same point of the same country. Throws StoreError.
  qlonglong SaveCity(const Place &place);
  // The same where the row is still as it was when `seen` was read; nothing otherwise, and the store is as it was. A new place has nothing
  // to be seen. Row numbers of deleted places come to be used again, so that a row may be another place by now.
  std::optional<qlonglong> SaveCityOver(const Place &place, const std::optional<Place> &seen);
  // former: the name of the row to change; empty to add one. A country that is in the list by that name already is changed. `seen` is the
  // former's difference as it was read: where it is another by now, or the row is gone, false, and the store is as it was.
  [[nodiscard]] bool SaveCountryOver(const QString &name, const QString &gmtDifference, const QString &former, const QString &seen);

  // A row as it lies before a save, to go back to; nothing in it where there is no such row.
  RowsKept KeepCity(qlonglong row) const;
  RowsKept KeepCountry(const QString &name) const;
  void GoBackTo(const RowsKept &kept);

  // One city: by row number, or with 0 the first of the name. Cities of a deleted country stay.
  RowsKept DeleteCity(qlonglong row, const QString &name);
  RowsKept DeleteCountry(const QString &name);
  void Restore(const RowsKept &kept);

 private:
  qlonglong WriteCity(const Place &place);

  std::shared_ptr<Database> db;
};
