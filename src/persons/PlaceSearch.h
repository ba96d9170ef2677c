// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "persons/Place.h"
#include "platform/Store.h"

// Finds places as their names are typed. Names are compared without accents, case and hyphens, also by the other names that a place is
// known under; of several, those of exactly the typed name come first, and the larger ones before the smaller.
class PlaceSearch {
 public:
  struct Country {
    QString Name;
    QString GMTDIF;  // "+00.00" where the store holds none
  };

  struct Found {
    Place place;
    bool byStart = true;    // the place's own name begins with what was typed
    bool ofCountry = true;  // it lies in the country that was asked for
    // "Springfield, Illinois, United States of America"; with the other name where that was the one found.
    QString Label() const;
  };

  // Reads the names of all places. Throws StoreError.
  explicit PlaceSearch(std::shared_ptr<Database> personDb);

  // country: empty for the whole world. Places of the country come first; where they are few, places elsewhere follow.
  std::vector<Found> Find(const QString &typed, const QString &country, int limit) const;
  // The place that typing completes to: the best one whose name, or other name, begins with what was typed.
  std::optional<Found> First(const QString &typed, const QString &country) const;
  // The place of exactly this name that lies nearest, for its zone. arcMinutesNorth and arcMinutesEast are signed; places more than
  // 2 degrees off are other places of the same name.
  std::optional<Place> At(const QString &city, const QString &country, int arcMinutesNorth, int arcMinutesEast) const;

  struct Listed {
    QString city;
    qlonglong row = 0;
  };
  // A country's places by name, for its list; those of the whole world for an empty text.
  std::vector<Listed> CitiesOf(const QString &country) const;
  // The whole row of a listed place; nothing where it was deleted meanwhile.
  std::optional<Place> Load(qlonglong row) const { return Load(*db, row); }
  static std::optional<Place> Load(Database &personDb, qlonglong row);
  const std::vector<Country> &Countries() const { return countries; }
  const Country *FindCountry(const QString &typed) const;  // the first by name that begins so; null for none and for a text with "["
  int Count() const { return static_cast<int>(entries.size()); }

  // Small letters without accents; hyphens are blanks and apostrophes nothing.
  static QString Fold(const QString &text);

 private:
  struct Entry {
    QString city;
    int country = 0;  // index of countryNames
    qlonglong row = 0;
    qlonglong population = 0;
  };
  struct Key {
    QString text;
    int entry = 0;
    enum class Kind : char { Name, Known, Inside } kind = Kind::Name;  // Inside: from a later word of the name on
  };
  struct Hit {
    int entry;
    Key::Kind kind;
    bool exact;
  };

  std::vector<Hit> Hits(const QString &folded, int country, bool elsewhere, std::size_t limit) const;
  int CountryIndex(const QString &name) const;  // -1 for none
  Found LoadHit(const Hit &hit, bool ofCountry) const;

  std::shared_ptr<Database> db;
  std::vector<Entry> entries;
  std::vector<Key> keys;  // by text
  QStringList countryNames;
  std::vector<Country> countries;
};
