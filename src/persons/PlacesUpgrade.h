// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class Database;

// Brings the places of a user's store up to the shipped ones: columns that are missing are added, and places that are newer than the
// version that the store has seen. What the user changed, added or deleted stays as it is.
class PlacesUpgrade {
 public:
  struct Outcome {
    int cities = 0, countries = 0;  // rows added
    bool IsNothing() const { return cities == 0 && countries == 0; }
  };

  // placesPath: the shipped places (COMMON/PLACES.DAT); a missing file or a store opened read-only is nothing to do.
  // All or nothing. Throws StoreError.
  static Outcome Apply(Database &personDb, const QString &placesPath);

 private:
  static void AddColumns(Database &personDb);
  static int AddCountries(Database &personDb, Database &shipped, int seen);
  static int AddCities(Database &personDb, Database &shipped, int seen);
};
