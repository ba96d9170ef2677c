// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlaceSearch.h"

#include <QHash>
#include <QSet>
#include <QSqlQuery>
#include <algorithm>
#include <cmath>
#include <tuple>

#include "engine/Functions.h"
#include "persons/PersonFields.h"

namespace {

constexpr int NearbyArcMinutes = 120;

// Letters that Unicode does not take apart into a letter and an accent.
QString PlainLetter(QChar letter) {
  switch (letter.unicode()) {
    case u'\u00df': return QStringLiteral("ss");
    case u'\u00e6': return QStringLiteral("ae");
    case u'\u0153': return QStringLiteral("oe");
    case u'\u00f8': return QStringLiteral("o");
    case u'\u0111':
    case u'\u00f0': return QStringLiteral("d");
    case u'\u00fe': return QStringLiteral("th");
    case u'\u0131': return QStringLiteral("i");
    case u'\u0142': return QStringLiteral("l");
    case u'-': return QStringLiteral(" ");
    case u'\'':
    case u'\u2018':
    case u'\u2019':
    case u'\u02bb':
    case u'\u02bc':
    case u'`': return QString();
    default: return letter;
  }
}

// Nothing but letters from A to Z and single blanks between them.
bool IsPlain(const QString &text) {
  QChar before = u' ';
  for (const QChar c : text) {
    const bool isLetter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    if (!isLetter && (c != u' ' || before == u' ')) return false;
    before = c;
  }
  return before != u' ';
}

Place ReadPlace(const Recordset &row) {
  const auto text = [&](const char *column) {
    return row.HasColumn(QLatin1String(column)) ? row.Field(QLatin1String(column)).toString() : QString();
  };
  Place place;
  place.row = row.Field(QStringLiteral("PlaceRow")).toLongLong();
  place.City = text("City");
  place.Country = text("Country");
  place.Lat = text("Lat");
  place.Longy = text("Longy");
  place.NOSO = text("NOSO");
  place.EaWe = text("EaWe");
  place.GMTDIFF = text("GMTDIFF");
  place.Region = text("Region");
  place.Zone = text("Zone");
  place.Known = text("Known");
  place.Population = text("Population").toLongLong();
  return place;
}

// Where a place lies, "27\u00b009'N 78\u00b000'E"; a text that is no angle as it is.
QString Position(const Place &place) {
  const auto angle = [](const QString &stored, const QString &hemisphere) {
    const auto read = PersonFields::ReadDegrees(PersonFields::ShownDegrees(stored));
    const QString size = read ? QStringLiteral("%1\u00b0%2'").arg(QString::number(read->degrees), Functions::Two(read->minutes)) : stored;
    return size + hemisphere;
  };
  return angle(place.Lat, place.NOSO) + QLatin1Char(' ') + angle(place.Longy, place.EaWe);
}

QString WithPosition(const QString &label, const Place &place) { return QStringLiteral("%1 (%2)").arg(label, Position(place)); }

}  // namespace

QString PlaceSearch::Fold(const QString &text) {
  if (IsPlain(text)) return text.toLower();
  const QString lower = text.simplified().toLower();
  QString plain;
  for (const QChar c : lower.normalized(QString::NormalizationForm_D))
    if (c.category() != QChar::Mark_NonSpacing) plain += PlainLetter(c);
  return plain.simplified();
}

QString PlaceSearch::Found::Label() const {
  QStringList parts{place.City};
  if (!place.Region.isEmpty() && Fold(place.Region) != Fold(place.City)) parts << place.Region;
  parts << place.Country;
  const QString label = parts.join(QStringLiteral(", "));
  return isAlone ? label : WithPosition(label, place);
}

PlaceSearch::PlaceSearch(std::shared_ptr<Database> personDb) : db(std::move(personDb)) {
  Recordset listed = db->OpenRecordset(QStringLiteral("SELECT * FROM Country ORDER BY Name"));
  for (; !listed.AtEnd(); listed.MoveNext()) {
    const QString difference = listed.Field(QStringLiteral("GMTDIF")).toString();
    countries.push_back({listed.Field(QStringLiteral("Name")).toString(),
                         difference.isEmpty() ? PersonFields::NoDifference : PersonFields::ShownDifference(difference)});
  }

  // A store from before the wider list has neither population nor other names.
  const QSet<QString> present = db->Columns(QStringLiteral("City"));
  const auto orEmpty = [&](const char *column) {
    return present.contains(QLatin1String(column).toString().toLower()) ? QLatin1String(column).toString() : QStringLiteral("''");
  };

  QSqlQuery query(db->Handle());
  query.setForwardOnly(true);
  if (!query.exec(QStringLiteral("SELECT rowid, City, Country, %1, %2, %3 FROM City")
                      .arg(orEmpty("Population"), orEmpty("Known"), orEmpty("Region"))))
    throw db->Failure(query);
  QHash<QString, int> indexOfCountry, indexOfRegion;
  QStringList foldedRegions;
  while (query.next()) {
    Entry entry;
    entry.row = query.value(0).toLongLong();
    entry.city = query.value(1).toString();
    const QString country = query.value(2).toString();
    auto known = indexOfCountry.find(country);
    if (known == indexOfCountry.end()) {
      known = indexOfCountry.insert(country, static_cast<int>(countryNames.size()));
      countryNames << country;
    }
    entry.country = *known;
    entry.population = std::max<qlonglong>(0, query.value(3).toLongLong());

    const int index = static_cast<int>(entries.size());
    const QString folded = Fold(entry.city);
    if (const QString region = query.value(5).toString(); !region.isEmpty()) {
      auto seen = indexOfRegion.find(region);
      if (seen == indexOfRegion.end()) {
        seen = indexOfRegion.insert(region, static_cast<int>(regionNames.size()));
        regionNames << region;
        foldedRegions << Fold(region);
      }
      if (foldedRegions[*seen] != folded) entry.region = *seen;
    }
    AddKey(folded, index, Key::Kind::Name);
    for (qsizetype blank = folded.indexOf(u' '); blank > 0; blank = folded.indexOf(u' ', blank + 1))
      AddKey(folded.mid(blank + 1), index, Key::Kind::Inside);
    const QString others = query.value(4).toString();
    if (!others.isEmpty())
      for (const QString &other : others.split(u';', Qt::SkipEmptyParts)) AddKey(Fold(other), index, Key::Kind::Known);
    entries.push_back(std::move(entry));
  }
  std::sort(keys.begin(), keys.end(), [this](const Key &a, const Key &b) {
    if (a.start != b.start) return a.start < b.start;
    if (const int order = a.text.compare(b.text); order != 0) return order < 0;
    const Entry &one = EntryOf(a), &other = EntryOf(b);
    return std::tuple(-one.population, one.row) < std::tuple(-other.population, other.row);
  });
}

void PlaceSearch::AddKey(const QString &text, int entry, Key::Kind kind) {
  quint64 start = 0;
  for (qsizetype i = 0; i < 4; ++i) start = start << 16 | (i < text.size() ? text[i].unicode() : 0U);
  keys.push_back({text, start, entry, kind});
}

int PlaceSearch::CountryIndex(const QString &name) const {
  for (int i = 0; i < countryNames.size(); ++i)
    if (countryNames[i].compare(name, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

std::vector<PlaceSearch::Hit> PlaceSearch::Hits(const QString &folded, int country, bool elsewhere, std::size_t limit) const {
  if (folded.isEmpty()) return {};
  std::vector<Hit> hits;
  const auto begin =
      std::lower_bound(keys.begin(), keys.end(), folded, [](const Key &key, const QString &text) { return key.text < text; });
  for (auto key = begin; key != keys.end() && key->text.startsWith(folded); ++key) {
    const bool ofCountry = country < 0 || entries[static_cast<std::size_t>(key->entry)].country == country;
    if (ofCountry != elsewhere)
      hits.push_back({key->entry, key->kind, key->text.size() == folded.size() && key->kind != Key::Kind::Inside});
  }
  const auto rank = [this](const Hit &hit) {
    const Entry &entry = entries[static_cast<std::size_t>(hit.entry)];
    return std::tuple(!hit.exact, hit.kind == Key::Kind::Inside, -entry.population, entry.row, hit.kind);
  };
  const auto before = [&](const Hit &a, const Hit &b) { return rank(a) < rank(b); };
  // A place can be found by several of its names; its best one counts.
  const std::size_t wanted = std::min(hits.size(), limit * 3);
  std::partial_sort(hits.begin(), hits.begin() + static_cast<std::ptrdiff_t>(wanted), hits.end(), before);
  std::vector<Hit> best;
  QSet<int> taken;
  for (std::size_t i = 0; i < wanted && best.size() < limit; ++i) {
    if (taken.contains(hits[i].entry)) continue;
    taken.insert(hits[i].entry);
    best.push_back(hits[i]);
  }
  return best;
}

std::optional<Place> PlaceSearch::Load(Database &personDb, qlonglong row) {
  const Recordset found = personDb.OpenRecordset(QStringLiteral("SELECT rowid AS PlaceRow, * FROM City WHERE rowid = ?"), {row});
  if (found.IsEmpty()) return std::nullopt;
  return ReadPlace(found);
}

PlaceSearch::Found PlaceSearch::LoadHit(const Hit &hit, bool ofCountry) const {
  Found found;
  found.place = Load(entries[static_cast<std::size_t>(hit.entry)].row).value_or(Place());
  found.byStart = hit.kind == Key::Kind::Name;
  found.completes = ofCountry && hit.kind != Key::Kind::Inside;
  found.isAlone = IsAlone(hit.entry);
  return found;
}

bool PlaceSearch::IsAlone(int entry) const {
  const Entry &own = entries[static_cast<std::size_t>(entry)];
  const QString folded = Fold(own.city);
  auto key = std::lower_bound(keys.begin(), keys.end(), folded, [](const Key &k, const QString &text) { return k.text < text; });
  for (; key != keys.end() && key->text == folded; ++key) {
    const Entry &other = EntryOf(*key);
    if (key->entry != entry && key->kind == Key::Kind::Name && other.country == own.country && other.region == own.region) return false;
  }
  return true;
}

std::vector<PlaceSearch::Found> PlaceSearch::Find(const QString &typed, const QString &country, int limit) const {
  const QString folded = Fold(typed);
  const int index = country.trimmed().isEmpty() ? -1 : CountryIndex(country.trimmed());
  const bool isNarrowed = !country.trimmed().isEmpty();
  const auto wanted = static_cast<std::size_t>(std::max(limit, 0));
  std::vector<Found> found;
  if (!isNarrowed || index >= 0)
    for (const Hit &hit : Hits(folded, index, false, wanted)) found.push_back(LoadHit(hit, true));
  if (isNarrowed && found.size() < wanted)
    for (const Hit &hit : index >= 0 ? Hits(folded, index, true, wanted - found.size()) : Hits(folded, -1, false, wanted))
      found.push_back(LoadHit(hit, false));
  return found;
}

std::optional<PlaceSearch::Found> PlaceSearch::First(const QString &typed, const QString &country) const {
  return FirstOf(Find(typed, country, 1));
}

std::optional<PlaceSearch::Found> PlaceSearch::FirstOf(const std::vector<Found> &found) {
  const auto first = std::find_if(found.begin(), found.end(), [](const Found &one) { return one.completes; });
  return first == found.end() ? std::nullopt : std::optional(*first);
}

std::optional<Place> PlaceSearch::At(const QString &city, const QString &country, int arcMinutesNorth, int arcMinutesEast) const {
  const QString folded = Fold(city);
  const int index = CountryIndex(country.trimmed());
  std::vector<Place> named;
  auto key = std::lower_bound(keys.begin(), keys.end(), folded, [](const Key &k, const QString &text) { return k.text < text; });
  for (; key != keys.end() && key->text == folded; ++key)
    if (key->kind != Key::Kind::Inside && EntryOf(*key).country == index) named.push_back(Load(EntryOf(*key).row).value_or(Place()));
  return Nearest(named, arcMinutesNorth, arcMinutesEast);
}

std::optional<Place> PlaceSearch::At(Database &personDb, const QString &city, const QString &country, int arcMinutesNorth,
                                     int arcMinutesEast) {
  // The plus keeps the engine from walking through all places of the country for one name.
  Recordset rows =
      personDb.OpenRecordset(QStringLiteral("SELECT rowid AS PlaceRow, * FROM City WHERE City = ? AND +Country = ?"), {city, country});
  std::vector<Place> named;
  for (; !rows.AtEnd(); rows.MoveNext()) named.push_back(ReadPlace(rows));
  return Nearest(named, arcMinutesNorth, arcMinutesEast);
}

std::optional<Place> PlaceSearch::Nearest(const std::vector<Place> &places, int arcMinutesNorth, int arcMinutesEast) {
  const Place *nearest = nullptr;
  double least = NearbyArcMinutes;
  for (const Place &place : places) {
    const double distance = std::hypot(PersonFields::SignedArcMinutes(place.Lat, place.NOSO) - arcMinutesNorth,
                                       PersonFields::SignedArcMinutes(place.Longy, place.EaWe) - arcMinutesEast);
    if (distance >= least) continue;
    least = distance;
    nearest = &place;
  }
  return nearest ? std::optional(*nearest) : std::nullopt;
}

std::vector<PlaceSearch::Listed> PlaceSearch::CitiesOf(const QString &country) const {
  const int index = country.isEmpty() ? -1 : CountryIndex(country);
  if (!country.isEmpty() && index < 0) return {};
  if (listedCountry == index) return lastListed;
  std::vector<Listed> listed;
  std::vector<const Key *> chosen;
  for (const Key &key : keys)
    if (key.kind == Key::Kind::Name && (index < 0 || EntryOf(key).country == index)) chosen.push_back(&key);
  listed.reserve(chosen.size());
  for (auto begin = chosen.begin(); begin != chosen.end();) {
    const auto end = std::find_if(begin, chosen.end(), [&](const Key *key) { return key->text != (*begin)->text; });
    const QStringList labels = LabelsOf({begin, end}, index < 0);
    for (const QString &label : labels) {
      const Entry &entry = EntryOf(**begin++);
      listed.push_back({entry.city, label, entry.row});
    }
  }
  listedCountry = index;
  lastListed = listed;
  return listed;
}

QStringList PlaceSearch::LabelsOf(std::span<const Key *const> sameName, bool withCountry) const {
  if (sameName.size() == 1) return {EntryOf(*sameName.front()).city};
  QStringList labels;
  QHash<QString, int> times;  // by label without accents
  for (const Key *key : sameName) {
    const Entry &entry = EntryOf(*key);
    QStringList parts{entry.city};
    if (entry.region >= 0) parts << regionNames[entry.region];
    if (withCountry) parts << countryNames[entry.country];
    labels << parts.join(QStringLiteral(", "));
    ++times[Fold(labels.back())];
  }
  for (std::size_t i = 0; i < sameName.size(); ++i) {
    QString &label = labels[static_cast<qsizetype>(i)];
    if (times.value(Fold(label)) < 2) continue;
    if (const auto place = Load(EntryOf(*sameName[i]).row)) label = WithPosition(label, *place);
  }
  return labels;
}

const PlaceSearch::Country *PlaceSearch::FindCountry(const QString &typed) const {
  if (typed.trimmed().isEmpty() || typed.contains(u'[')) return nullptr;
  const QString folded = Fold(typed);
  const Country *first = nullptr;
  for (const Country &country : countries) {
    const QString name = Fold(country.Name);
    if (name == folded) return &country;
    if (!first && name.startsWith(folded)) first = &country;
  }
  return first;
}
