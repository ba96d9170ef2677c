// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Finding a place as its name is typed, and bringing an older store up to the shipped places.
#include "PersonFiles.h"

#include "persons/PlaceSearch.h"
#include "persons/PlacesUpgrade.h"
#include "platform/Errors.h"

namespace {

TEST_F(PersonFiles, FindsThePlaceThatIsMeant) {
  const PlaceSearch search(OpenPersons());
  const std::array<const char *, 3> rows[] = {
      // typed, country, label of the first answer or nothing
      {"agra", "India", "Agra, Uttar Pradesh, India"},
      {"Mumb", "India", "Mumbai, Maharashtra, India"},
      {"bombay", "India", "Mumbai, Maharashtra, India"},
      {"Sao Pau", "", "S\xC3\xA3o Paulo, Brazil"},
      {"saint denis", "France", "Saint-Denis, \xC3\x8Ele-de-France, France"},
      {"new york", "", "New York, United States of America"},
      {"Springfield", "United States of America", "Springfield, Missouri, United States of America"},
      {"Hyderabad", "", "Hyderabad, Telangana, India"},
      {"Hyderabad", "pakistan", "Hyderabad, Sindh, Pakistan"},
      {"zzzz", "", ""},
      {"", "India", ""},
      {"Agra", "Atlantis", ""},
      {"'; --", "India", ""},
  };
  for (const auto &[typed, country, label] : rows) {
    const auto found = search.First(typed, country);
    EXPECT_EQ(found ? PlaceSearch::Fold(found->Label()) : QString(), PlaceSearch::Fold(label)) << typed;
  }

  // Two of one name: told apart by region, the larger first.
  const auto several = search.Find("Springfield", "United States of America", 4);
  ASSERT_EQ(several.size(), 4U);
  for (std::size_t i = 1; i < several.size(); ++i) {
    EXPECT_GE(several[i - 1].place.Population, several[i].place.Population);
    EXPECT_NE(several[i - 1].Label(), several[i].Label());
  }
  // A country that has few of them is followed by the rest of the world.
  const auto elsewhere = search.Find("London", "India", 3);
  ASSERT_FALSE(elsewhere.empty());
  EXPECT_EQ(elsewhere.front().place.Country, "United Kingdom");
  EXPECT_FALSE(elsewhere.front().completes);

  const auto nearest = search.At("springfield", "United States of America", 39 * 60 + 48, -(89 * 60 + 39));
  ASSERT_TRUE(nearest);
  EXPECT_EQ(nearest->Region, "Illinois");
  EXPECT_EQ(nearest->Zone, "America/Chicago");
  EXPECT_FALSE(search.At("Springfield", "United States of America", 0, 0)) << "there is none there";

  ASSERT_TRUE(search.FindCountry("ind"));
  EXPECT_EQ(search.FindCountry("ind")->Name, "India");
  EXPECT_EQ(search.FindCountry("ind")->GMTDIF, "+05.30");
  EXPECT_EQ(search.FindCountry("[a"), nullptr);
  EXPECT_GT(search.CitiesOf("India").size(), 3000U);
}

TEST_F(PersonFiles, PlacesOfOneNameAreToldApart) {
  const auto persons = OpenPersons();
  persons->Execute(
      "INSERT INTO City (City, Country, Lat, Longy, NOSO, EaWe, Region) VALUES ('agra', 'India', 'soon', '07800', 'N', 'E', '')");
  const PlaceSearch search(persons);
  for (const char *country : {"India", "United States of America", ""}) {
    const auto listed = search.CitiesOf(country);
    QSet<QString> labels;
    QString last;
    qlonglong population = 0;
    for (const PlaceSearch::Listed &place : listed) {
      EXPECT_FALSE(labels.contains(place.label)) << place.label;
      labels << place.label;
      EXPECT_TRUE(place.label.startsWith(place.city)) << place.label;
      const QString name = PlaceSearch::Fold(place.city);
      ASSERT_LE(last, name) << "by name";
      const qlonglong here = *country ? search.Load(place.row)->Population : 0;
      EXPECT_TRUE(last != name || population >= here) << "the larger first: " << place.label;
      population = here;
      last = name;
    }
  }
  const auto labelsOf = [&](const char *city, const char *country) {
    QStringList labels;
    for (const PlaceSearch::Listed &place : search.CitiesOf(country))
      if (place.city.compare(city, Qt::CaseInsensitive) == 0) labels << place.label;
    return labels;
  };
  EXPECT_EQ(labelsOf("Mumbai", "India"), QStringList{"Mumbai"}) << "no more than must be";
  EXPECT_EQ(labelsOf("Agra", "India"), (QStringList{"Agra, Uttar Pradesh", "agra"}));
  EXPECT_TRUE(labelsOf("Udaipur", "India").contains("Udaipur, Rajasthan (24\u00b035'N 73\u00b043'E)"))
      << labelsOf("Udaipur", "India").join(u'|');
  EXPECT_EQ(labelsOf("Springfield", "United States of America").value(0), "Springfield, Missouri");

  // Whatever is typed, no two suggestions read alike.
  Recordset alike = persons->OpenRecordset("SELECT City, Country FROM City GROUP BY City, Country, Region HAVING COUNT(*) > 1");
  EXPECT_GT(alike.RecordCount(), 100);
  for (; !alike.AtEnd(); alike.MoveNext()) {
    QSet<QString> labels;
    const auto found = search.Find(alike.Field("City").toString(), alike.Field("Country").toString(), 12);
    for (const PlaceSearch::Found &one : found) labels << one.Label();
    EXPECT_EQ(static_cast<std::size_t>(labels.size()), found.size()) << alike.Field("City").toString();
  }
}

TEST_F(PersonFiles, ShippedPlacesAreSoundOnTheWholeSet) {
  Recordset city = OpenPersons()->OpenRecordset("SELECT * FROM City");
  int south = 0;
  for (; !city.AtEnd(); city.MoveNext()) {
    const QString lat = city.Field("Lat").toString(), longy = city.Field("Longy").toString();
    ASSERT_TRUE(lat.size() == 5 && lat.left(3).toInt() <= 90 && lat.right(2).toInt() < 60) << lat;
    ASSERT_TRUE(longy.size() == 5 && longy.left(3).toInt() <= 180 && longy.right(2).toInt() < 60) << longy;
    ASSERT_TRUE(city.Field("Zone").toString().contains('/'));
    south += city.Field("NOSO").toString() == "S";
    // The sun is never more than five hours from the standard of a place.
    const double hours = longy.left(3).toInt() / 15.0 * (city.Field("EaWe").toString() == "W" ? -1 : 1);
    double off = std::abs(hours - city.Field("GMTDIFF").toString().toDouble());
    off = std::min(off, 24 - off);
    ASSERT_LT(off, 3.6) << city.Field("City").toString();
  }
  EXPECT_GT(city.RecordCount(), 25000);
  EXPECT_GT(south, 2000);
}

TEST_F(PersonFiles, AnOlderStoreGetsWhatItNeverHad) {
  const auto persons = OpenPersons();
  EXPECT_TRUE(PlacesUpgrade::Apply(*persons, At("PLACES.DAT")).IsNothing()) << "a fresh store has them all";

  // A store of the first list, in which the user deleted Pune, moved Agra a little, and added a village and a country.
  for (const char *statement : {"DROP TABLE PlacesApplied", "DROP TABLE City", "DELETE FROM Country WHERE Name NOT IN ('India')",
                                "CREATE TABLE City (City TEXT COLLATE NOCASE, Country TEXT COLLATE NOCASE, Lat TEXT, Longy TEXT, NOSO "
                                "TEXT, EaWe TEXT, GMTDIFF TEXT)",
                                "INSERT INTO City VALUES ('Agra', 'India', '02709', '07800', 'N', 'E', '5.30')",
                                "INSERT INTO City VALUES ('Nowhere', 'Utopia', '01000', '01000', 'S', 'W', '+01.00')",
                                "INSERT INTO City VALUES ('springfield', 'United States of America', '03948', '08939', 'N', 'W', '-6.00')",
                                "INSERT INTO Country VALUES ('Utopia', '+01.00')"})
    persons->Execute(statement);
  const PlacesUpgrade::Outcome outcome = PlacesUpgrade::Apply(*persons, At("PLACES.DAT"));
  EXPECT_GT(outcome.cities, 25000);
  EXPECT_GT(outcome.countries, 150);

  const auto rows = [&](const char *city) { return persons->OpenRecordset("SELECT * FROM City WHERE City = ? ORDER BY Region", {city}); };
  const Recordset agra = rows("Agra");
  ASSERT_EQ(agra.RecordCount(), 1);
  EXPECT_EQ(agra.Field("Lat").toString(), "02709") << "the user's own point stays";
  EXPECT_EQ(agra.Field("GMTDIFF").toString(), "5.30");
  EXPECT_EQ(agra.Field("Zone").toString(), "Asia/Kolkata");
  EXPECT_EQ(rows("Pune").RecordCount(), 0) << "deleted by the user";
  EXPECT_EQ(rows("Nowhere").RecordCount(), 1);
  EXPECT_EQ(persons->OpenRecordset("SELECT * FROM City WHERE City = 'Springfield' AND Region = 'Illinois'").RecordCount(), 1);
  EXPECT_EQ(persons->OpenRecordset("SELECT * FROM City WHERE City = 'Springfield' AND Region = 'Missouri'").RecordCount(), 1);

  // A second start brings nothing back.
  persons->Execute("DELETE FROM City WHERE City = 'Kanpur'");
  EXPECT_TRUE(PlacesUpgrade::Apply(*persons, At("PLACES.DAT")).IsNothing());
  EXPECT_EQ(rows("Kanpur").RecordCount(), 0);

  // A later list adds its own rows alone.
  const auto shipped = Database::OpenDatabase(At("PLACES.DAT"));
  shipped->Execute(
      "INSERT INTO City (City, Country, Lat, Longy, NOSO, EaWe, GMTDIFF, Zone, Since) VALUES ('Newtown', 'India', '02000', "
      "'07500', 'N', 'E', '+05.30', 'Asia/Kolkata', 7)");
  shipped->Execute("UPDATE PlacesVersion SET Version = 7");
  EXPECT_EQ(PlacesUpgrade::Apply(*persons, At("PLACES.DAT")).cities, 1);
  EXPECT_EQ(rows("Kanpur").RecordCount(), 0);

  EXPECT_TRUE(PlacesUpgrade::Apply(*persons, At("absent")).IsNothing());
  EXPECT_TRUE(PlacesUpgrade::Apply(*Database::OpenDatabase(At("RECOS.Dat"), Database::Mode::ReadOnly), At("PLACES.DAT")).IsNothing());
}

}  // namespace
