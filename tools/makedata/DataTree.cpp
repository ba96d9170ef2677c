// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "DataTree.h"

#include "FileWriter.h"
#include "SourceError.h"
#include "StoreFile.h"
#include "TableSource.h"
#include "TextSource.h"
#include "WaitAnimation.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <vector>

namespace {

using Column = TableSource::Column;
using Kind = TableSource::Column::Kind;

// Raised when a store is made otherwise from the same sources, so that present trees are remade.
constexpr char DataVersion[] = "2";

constexpr char GendatStart[] =
    "; Settings of the program. Lines that begin with a semicolon are comments.\n"
    "[Orvani]\n";

// Files that only have to be there.
constexpr const char *PresenceFiles[] = {"CONYEAR.DAT", "SADESAT.Dat", "SCGRAHA.DAT", "SCRASI.DAT", "SCYONI.DAT"};

const std::vector<Column> LanguageColumns{
    {"Name"},
    {"Directory"},
    {"HeaderSize", Kind::Whole, 6, 72},
    {"NormalSize", Kind::Whole, 6, 72},
    {"HeadBold", Kind::Flag},
    {"SubHeadSize", Kind::Whole, 6, 72},
    {"SubHeadBold", Kind::Flag},
    {"KundliSize", Kind::Whole, 6, 72},
    {"EngSize", Kind::Whole, 6, 72},
    {"SmallSize", Kind::Whole, 6, 72},
    {"TextSize", Kind::Whole, 6, 72},
    {"TextHeadSize", Kind::Whole, 6, 72},
};

const std::vector<Column> PersonColumns{
    {"Name"},
    {"Sex", Kind::Whole, 1, 2},
    {"Day", Kind::Whole, 1, 31},
    {"Month", Kind::Whole, 1, 12},
    {"Year", Kind::Whole, 1, 9999},
    {"Hour", Kind::Whole, 0, 23},
    {"Minutes", Kind::Whole, 0, 59},
    {"seconds", Kind::Whole, 0, 59},
    {"AMPM", Kind::Whole, 1, 2},
    {"City"},
    {"Country"},
    {"LatDeg", Kind::Whole, 0, 90},
    {"LatMT", Kind::Whole, 0, 59},
    {"TextNS", Kind::Letter, 0, 0, "NS"},
    {"LongDeg", Kind::Whole, 0, 180},
    {"LongMT", Kind::Whole, 0, 59},
    {"TextEW", Kind::Letter, 0, 0, "EW"},
    {"GMTDIFF", Kind::ZoneTime},
    {"TCorrVal"},
    {"Tcorrinde", Kind::Whole, 0, 99},
};

const std::vector<Column> ResidenceColumns{
    {"Name"},
    {"City"},
    {"Country"},
    {"GMTDIFF", Kind::ZoneTime},
    {"LatDeg", Kind::Whole, 0, 90},
    {"LatMT", Kind::Whole, 0, 59},
    {"LongDeg", Kind::Whole, 0, 180},
    {"LongMT", Kind::Whole, 0, 59},
    {"TextNS", Kind::Letter, 0, 0, "NS"},
    {"TextEW", Kind::Letter, 0, 0, "EW"},
};

// `Since` is the version of the lists that first held a row: a store that knows an older version gets only what is newer, so that
// a place that the user deleted does not come back.
const std::vector<Column> CountryColumns{{"Name"}, {"GMTDIF", Kind::ZoneTime}, {"Since", Kind::Whole, 0, 9999}};

const std::vector<Column> CityColumns{
    {"City"},
    {"Country"},
    {"Lat", Kind::DegMin, 0, 90},
    {"Longy", Kind::DegMin, 0, 180},
    {"NOSO", Kind::Letter, 0, 0, "NS"},
    {"EaWe", Kind::Letter, 0, 0, "EW"},
    {"GMTDIFF", Kind::ZoneTime},
    {"Region", Kind::Free},
    {"Population", Kind::Whole, 0, 99999999},
    {"Zone"},
    {"Known", Kind::Free},
    {"Since", Kind::Whole, 0, 9999},
};

// One language: its row of the list and its words.
struct Language {
  QVariantList row;
  QString directory;
  bool hasTexts = false;
  QString hash;
  TextSource texts;
};

QString HashOf(const QStringList &paths) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArray(DataVersion));
  for (const QString &path : paths) {
    const QByteArray content = FileWriter::Read(path);
    hash.addData(QFileInfo(path).fileName().toUtf8() + '\n' + QByteArray::number(content.size()) + '\n' + content);
  }
  return QString::fromLatin1(hash.result().toHex());
}

// The text files of a folder in a fixed order, so that one set of sources makes one store on every machine.
QStringList TextFilesIn(const QString &folder) {
  QStringList names = QDir(folder).entryList({"*.txt"}, QDir::Files);
  std::sort(names.begin(), names.end());
  for (QString &name : names) name.prepend(folder + "/");
  return names;
}

// Every file below a folder, in a fixed order.
QStringList AllFilesIn(const QString &folder) {
  QStringList paths;
  QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) paths << files.next();
  std::sort(paths.begin(), paths.end());
  return paths;
}

Language ReadLanguage(const QString &sourceDir, const QVariantList &row) {
  Language language;
  language.row = row;
  language.directory = row[1].toString();
  const QStringList files = TextFilesIn(sourceDir + "/" + language.directory.toLower());
  language.hasTexts = !files.isEmpty();
  for (const QString &file : files) language.texts.AddFile(file);
  language.hash = HashOf(files);
  return language;
}

// The SQL type of a column; names are found without regard to case.
QString Declaration(const Column &column) {
  static const QStringList caseless{"Name", "City", "Country", "Directory"};
  const bool isNumber = column.kind == Kind::Whole || column.kind == Kind::Flag;
  return column.name + (isNumber ? " INTEGER" : caseless.contains(column.name) ? " TEXT COLLATE NOCASE" : " TEXT");
}

void MakeTable(StoreFile::Maker &maker, const QString &table, const std::vector<Column> &columns, qsizetype count = -1) {
  QStringList declarations;
  for (const Column &column : columns) declarations << Declaration(column);
  declarations = declarations.mid(0, count);
  maker.Run("CREATE TABLE " + table + " (" + declarations.join(", ") + ")");
}

void FillTable(StoreFile::Maker &maker, const QString &table, const TableSource &source, qsizetype count = -1) {
  for (const QVariantList &row : source.Rows()) maker.Insert(table, source.ColumnNames().mid(0, count), row.mid(0, count));
}

int NewestVersion(const TableSource &source) {
  int newest = 0;
  for (const QVariantList &row : source.Rows()) newest = std::max(newest, row.last().toInt());
  return newest;
}

void MakeTexts(StoreFile::Maker &maker, const TextSource &texts) {
  for (const QString &table : TextSource::Tables()) {
    maker.Run("CREATE TABLE " + table + " (Head TEXT COLLATE NOCASE, Category TEXT COLLATE NOCASE, Val TEXT)");
    for (const TextSource::Row &row : texts.Rows())
      if (row.table == table) maker.Insert(table, {"Head", "Category", "Val"}, {row.head, row.category, row.val});
    maker.Run("CREATE INDEX " + table + "HeadCategory ON " + table + " (Head, Category)");
  }
}

void MakeLanguageList(StoreFile::Maker &maker, const std::vector<Language> &languages) {
  std::vector<Column> columns = LanguageColumns;
  columns.push_back({"Include", Kind::Flag});
  MakeTable(maker, "Language", columns);
  QStringList names;
  for (const Column &column : columns) names << column.name;
  for (const Language &language : languages) maker.Insert("Language", names, language.row + QVariantList{language.hasTexts ? 1 : 0});
}

void MakePersons(StoreFile::Maker &maker, const TableSource &persons, const TableSource &cities, const TableSource &countries) {
  MakeTable(maker, "Person", PersonColumns);
  const auto cityColumns = static_cast<qsizetype>(CityColumns.size()) - 1;
  const auto countryColumns = static_cast<qsizetype>(CountryColumns.size()) - 1;
  MakeTable(maker, "City", CityColumns, cityColumns);
  MakeTable(maker, "Country", CountryColumns, countryColumns);
  maker.Run("CREATE TABLE PlacesApplied (Version INTEGER)");
  FillTable(maker, "Person", persons);
  FillTable(maker, "City", cities, cityColumns);
  FillTable(maker, "Country", countries, countryColumns);
  maker.Insert("PlacesApplied", {"Version"}, {std::max(NewestVersion(cities), NewestVersion(countries))});
  maker.Run("CREATE INDEX PersonName ON Person (Name)");
  maker.Run("CREATE INDEX CityCity ON City (City)");
  maker.Run("CREATE INDEX CityCountry ON City (Country)");
  maker.Run("CREATE INDEX CountryName ON Country (Name)");
  maker.Run("CREATE VIEW qryPersonName AS SELECT * FROM Person ORDER BY Name");
}

// The shipped places by themselves, from which the program adds what a present store of persons lacks.
void MakePlaces(StoreFile::Maker &maker, const TableSource &cities, const TableSource &countries) {
  MakeTable(maker, "City", CityColumns);
  MakeTable(maker, "Country", CountryColumns);
  maker.Run("CREATE TABLE PlacesVersion (Version INTEGER)");
  FillTable(maker, "City", cities);
  FillTable(maker, "Country", countries);
  maker.Insert("PlacesVersion", {"Version"}, {std::max(NewestVersion(cities), NewestVersion(countries))});
}

// A city is saved only under a country of the list, so the first ones must not break that rule.
void CheckCountries(const QString &citiesPath, const TableSource &cities, const TableSource &countries) {
  QSet<QString> listed;
  for (const QVariantList &country : countries.Rows()) listed.insert(country[0].toString());
  for (std::size_t i = 0; i < cities.Rows().size(); ++i) {
    const QString wanted = cities.Rows()[i][1].toString();
    if (!listed.contains(wanted)) throw SourceError(citiesPath, cities.LineOf(i), "there is no country '" + wanted + "'");
  }
}

}  // namespace

void DataTree::Make(const QString &sourceDir, const QString &epheDir, const QString &version) {
  if (!QFileInfo(sourceDir).isDir()) throw SourceError(sourceDir, 0, "there is no such folder");
  const QString common = sourceDir + "/common/";
  const QString languagesPath = common + "languages.txt";
  const QString personsPath = common + "persons.txt";
  const QString residencesPath = common + "residences.txt";
  const QString countriesPath = common + "countries.tsv";
  const QString citiesPath = common + "places.tsv";

  // Everything is read before anything is written: a fault in a source leaves the present tree as it is.
  const TableSource languageList(languagesPath, LanguageColumns);
  const TableSource persons(personsPath, PersonColumns);
  const TableSource residences(residencesPath, ResidenceColumns);
  const TableSource countries(countriesPath, CountryColumns);
  const TableSource cities(citiesPath, CityColumns);
  CheckCountries(citiesPath, cities, countries);
  std::vector<Language> languages;
  for (const QVariantList &row : languageList.Rows()) languages.push_back(ReadLanguage(sourceDir, row));

  FileWriter::MakeFolder(epheDir + "/COMMON");
  FileWriter::MakeFolder(epheDir + "/INIFILES");
  FileWriter::MakeFolder(epheDir + "/FONTI");

  QString allHashes;
  for (const Language &language : languages) {
    allHashes += language.hash;
    if (!language.hasTexts) continue;
    const QString folder = epheDir + "/" + language.directory;
    const QString store = folder + "/" + language.directory + ".DAT";
    FileWriter::MakeFolder(folder);
    if (!StoreFile::IsMadeFrom(store, language.hash))
      StoreFile::Make(store, language.hash, [&](StoreFile::Maker &maker) { MakeTexts(maker, language.texts); });
  }

  QString listHash = HashOf({languagesPath});
  for (const Language &language : languages) listHash += language.hasTexts ? '1' : '0';
  const QString listStore = epheDir + "/COMMON/LANGS.Dat";
  if (!StoreFile::IsMadeFrom(listStore, listHash))
    StoreFile::Make(listStore, listHash, [&](StoreFile::Maker &maker) { MakeLanguageList(maker, languages); });

  const QString personStore = epheDir + "/COMMON/RECOS.Dat";
  const QString personHash = HashOf({personsPath, citiesPath, countriesPath});
  if (!FileWriter::ExistsInAnyCase(personStore))
    StoreFile::Make(personStore, personHash, [&](StoreFile::Maker &maker) { MakePersons(maker, persons, cities, countries); });

  const QString placesStore = epheDir + "/COMMON/PLACES.DAT";
  const QString placesHash = HashOf({citiesPath, countriesPath});
  if (!StoreFile::IsMadeFrom(placesStore, placesHash))
    StoreFile::Make(placesStore, placesHash, [&](StoreFile::Maker &maker) { MakePlaces(maker, cities, countries); });

  const QString residenceStore = epheDir + "/COMMON/Daily.dat";
  const QString residenceHash = HashOf({residencesPath});
  if (!FileWriter::ExistsInAnyCase(residenceStore))
    StoreFile::Make(residenceStore, residenceHash, [&](StoreFile::Maker &maker) {
      MakeTable(maker, "PERSON", ResidenceColumns);
      FillTable(maker, "PERSON", residences);
      maker.Run("CREATE INDEX PersonName ON PERSON (Name)");
    });

  const QString configuration = epheDir + "/INIFILES/GENDAT.INI";
  if (!FileWriter::ExistsInAnyCase(configuration)) FileWriter::Write(configuration, GendatStart);

  for (const char *name : PresenceFiles)
    FileWriter::Write(epheDir + "/COMMON/" + name, "This file only has to be present; nothing is read from it.\n");
  FileWriter::Write(epheDir + "/COMMON/WAIT.AVI", WaitAnimation::Avi());

  // Written last: a tree with this mark is a whole one. It tells every source apart, the drawings and the help too, and the release,
  // since the tools that draw from them belong to it.
  FileWriter::Write(epheDir + "/SEED", version.toUtf8() + " " + HashOf(AllFilesIn(sourceDir)).toUtf8() + "\n");
}
