// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <span>
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
    bool completes = true;  // a name of it begins so, and it lies in the country that was asked for: typing may complete to it
    bool isAlone = true;    // no other place shares its name, region and country
    // "Springfield, Illinois, United States of America"; followed by the position where the place is not alone.
    QString Label() const;
  };

  // Reads the names of all places. Throws StoreError.
  explicit PlaceSearch(std::shared_ptr<Database> personDb);

  // country: empty for the whole world. Places of the country come first; where they are few, places elsewhere follow.
  std::vector<Found> Find(const QString &typed, const QString &country, int limit) const;
  // The place that typing completes to: the best one whose name, or other name, begins with what was typed.
  std::optional<Found> First(const QString &typed, const QString &country) const;
  static std::optional<Found> FirstOf(const std::vector<Found> &found);  // the same of an answer of Find
  // The place of exactly this name that lies nearest, for its zone. arcMinutesNorth and arcMinutesEast are signed; places 2 degrees off
  // and more are other places of the same name.
  std::optional<Place> At(const QString &city, const QString &country, int arcMinutesNorth, int arcMinutesEast) const;
  // The same for a chart, which asks for one name and has not read all of them: the place's own name to the letter.
  static std::optional<Place> At(Database &personDb, const QString &city, const QString &country, int arcMinutesNorth, int arcMinutesEast);

  struct Listed {
    QString city;
    QString label;  // the city, with what tells it from others of its name in the list: region, then position
    qlonglong row = 0;
  };
  // A country's places by name, for its list; those of the whole world for an empty text. Of one name, the larger comes first.
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
    int region = -1;  // index of regionNames; -1 where there is none, or where it is called as the city is
    qlonglong row = 0;
    qlonglong population = 0;
  };
  struct Key {
    QString text;
    quint64 start = 0;  // the first four letters, to sort by
    int entry = 0;
    enum class Kind : char { Name, Known, Inside } kind = Kind::Name;  // Inside: from a later word of the name on
  };
  struct Hit {
    int entry;
    Key::Kind kind;
    bool exact;
  };

  void AddKey(const QString &text, int entry, Key::Kind kind);
  std::vector<Hit> Hits(const QString &folded, int country, bool elsewhere, std::size_t limit) const;
  static std::optional<Place> Nearest(const std::vector<Place> &places, int arcMinutesNorth, int arcMinutesEast);
  int CountryIndex(const QString &name) const;  // -1 for none
  Found LoadHit(const Hit &hit, bool ofCountry) const;
  bool IsAlone(int entry) const;
  const Entry &EntryOf(const Key &key) const { return entries[static_cast<std::size_t>(key.entry)]; }
  // The labels of places of one name, each as long as it must be to tell it from the others.
  QStringList LabelsOf(std::span<const Key *const> sameName, bool withCountry) const;

  std::shared_ptr<Database> db;
  std::vector<Entry> entries;
  std::vector<Key> keys;  // by text; of one text, the larger place first
  QStringList countryNames, regionNames;
  std::vector<Country> countries;
  // The list that was asked for last: a screen with two fields asks for it twice.
  mutable std::optional<int> listedCountry;
  mutable std::vector<Listed> lastListed;
};
