// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Persons out to a file and in again.
#include "PersonFiles.h"

#include <algorithm>

#include "persons/PersonsFile.h"
#include "platform/Errors.h"

namespace {

using Format = PersonsFile::Format;

// All rows of a table to the letter, each value with its type.
QStringList RowsOf(const char *path, const PersonFiles &files, const char *columns) {
  QStringList quoted;
  for (const QString &column : QString(columns).split(' ')) quoted << "quote(" + column + ")";
  Recordset rows =
      Database::OpenDatabase(files.At(path))->OpenRecordset("SELECT " + quoted.join("||'|'||") + " AS Whole FROM Person ORDER BY 1");
  QStringList lines;
  for (; !rows.AtEnd(); rows.MoveNext()) lines << rows.Field("Whole").toString();
  return lines;
}

TEST_F(PersonFiles, EveryRowComesBackToTheLetter) {
  const auto persons = OpenPersons();
  PersonStore store(persons, At("Daily.dat"));
  for (const char *name :
       {"Asha O'Neil", "Comma, \"Quote\"", "two\nlines", "\xE0\xA4\x85\xE0\xA4\x9C", "=SUM(A1)", "\xF0\x9F\x8C\x99", "a;b\tc"})
    store.Save(Numbered(name, static_cast<int>(strlen(name)) * 7));
  PersonRecord homeless = Numbered("Zoya", 3);
  homeless.residence.reset();
  homeless.TCorrVal = "+01.00";
  homeless.Tcorrinde = 2;
  homeless.AMPM = 0;
  // Beyond A to Z a name with a capital is another name, as it is for the store.
  store.SaveAll({homeless, Numbered("\u00E9va", 3), Numbered("\u00C9va", 4), Numbered("\u00E9va", 5)});
  EXPECT_EQ(store.Find("\u00C9va"), Numbered("\u00C9va", 4));
  const auto daily = Database::OpenDatabase(At("Daily.dat"));
  for (const char *name :
       {"Sexless", "Timeless", "Pole", "Leap", "Words", "  Blanks ", "", "TWIN", "Twin", "\u00c9MILE", "\u00c9mile", "Sound"}) {
    persons->Execute(
        "INSERT INTO Person (Name, Sex, Day, Month, Year, Hour, Minutes, seconds, AMPM, City, Country, LatDeg, LatMT, TextNS, LongDeg, "
        "LongMT, TextEW, GMTDIFF) VALUES (?, 2, 29, 2, 1980, 10, 5, 0, 1, 'Agra', 'India', 27, 9, 'N', 78, 0, 'E', '5.30')",
        {name});
  }
  persons->Execute("INSERT INTO Person DEFAULT VALUES");
  const std::pair<const char *, const char *> changes[] = {
      {"Sexless", "Sex = NULL, AMPM = NULL, Tcorrinde = 0"},
      {"Timeless", "GMTDIFF = '', TextNS = '', TextEW = NULL, TCorrVal = ''"},
      {"Pole", "LatDeg = 95, LongDeg = -7, Sex = 0"},
      {"Leap", "Year = 1981, Hour = 24, Minutes = 60, Tcorrinde = 7, TCorrVal = '+01.00'"},
      {"Words", "Day = 'first', Hour = 12.5, LatDeg = 9000000000, City = x'00FF', GMTDIFF = '+5:30, \"about\"'"}};
  for (const auto &[name, change] : changes) persons->Execute(QStringLiteral("UPDATE Person SET %1 WHERE Name = ?").arg(change), {name});
  for (const char *row :
       {"('Sexless', 'Lima', 'Peru', '-5', 12, 3, 77, 2, 'S', 'W')", "('tWIN', '', NULL, '', 95, 0, 0, 0, '', '')",
        "('TWIN', 'Lima', 'Peru', '-05.00', 12, 3, 77, 2, 'S', 'W')", "(NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)",
        "('\u00c9mile', 'Paris', 'France', '+01.00', 48, 51, 2, 21, 'N', 'E')", "('  Blanks ', 'x', 'y', 'z', 'a', 1.5, 0, 0, 'n', 'e')"})
    daily->Execute(
        QStringLiteral("INSERT INTO PERSON (Name, City, Country, GMTDIFF, LatDeg, LatMT, LongDeg, LongMT, TextNS, TextEW) VALUES %1")
            .arg(row));

  const auto rows = [this] {
    const char *place = "City Country GMTDIFF LatDeg LatMT LongDeg LongMT TextNS TextEW";
    return RowsOf("RECOS.Dat", *this,
                  (std::string("Name Sex Day Month Year Hour Minutes seconds AMPM TCorrVal Tcorrinde ") + place).c_str()) +
           RowsOf("Daily.dat", *this, (std::string("Name ") + place).c_str());
  };
  const QStringList before = rows();
  const auto all = store.All();
  for (const Format format : {Format::Csv, Format::Json}) {
    const QByteArray file = PersonsFile::Write(all, format);
    const PersonsFile::Contents read = PersonsFile::Read(file, format);
    EXPECT_TRUE(read.faults.isEmpty()) << read.faults.join('\n');
    ASSERT_EQ(read.persons.size(), all.size());
    for (std::size_t i = 0; i < all.size(); ++i) EXPECT_TRUE(read.persons[i] == all[i]) << all[i].Name;
    for (int time = 1; time <= 2; ++time) {
      EXPECT_EQ(store.SaveAll(read.persons).added, 0) << file.toStdString();
      EXPECT_EQ(rows(), before);
    }
    persons->Execute("DELETE FROM Person");
    daily->Execute("DELETE FROM PERSON");
    for (int time = 1; time <= 2; ++time) {
      store.SaveAll(PersonsFile::Read(file, format).persons);
      EXPECT_EQ(rows(), before) << file.toStdString();
      EXPECT_EQ(PersonsFile::Write(store.All(), format), file);
    }
  }

  // A cell that was mended since then counts; what is not told as stored is looked at like any other row.
  const auto fileOf = [&](const char *name) {
    const auto person = std::find_if(all.begin(), all.end(), [&](const PersonRecord &one) { return one.Name == name; });
    return PersonsFile::Write({*person}, Format::Json);
  };
  const auto unmarked = PersonsFile::Read(fileOf("Leap").replace("AsStored", "Other"), Format::Json);
  EXPECT_EQ(unmarked.faults.value(0), "Line 2: there is no 29 February 1981.");
  const QByteArray file = fileOf("Sexless");
  const auto mended = PersonsFile::Read(QByteArray(file).replace("\"Sex\":\"\"", "\"Sex\":2"), Format::Json);
  ASSERT_EQ(mended.persons.size(), 1U);
  EXPECT_EQ(mended.persons[0].Sex, 2);
  EXPECT_FALSE(mended.persons[0].odd.contains("Sex"));
  const auto nameless = PersonsFile::Read(QByteArray(file).replace("\"Sexless\"", "\" \""), Format::Json);
  EXPECT_EQ(nameless.faults.value(0), "Line 2: the name is missing.");
  EXPECT_EQ(PersonsFile::Read(QByteArray(file).replace("\"AsStored\":{", "\"AsStored\":\"x\",\"Other\":{"), Format::Json).faults.size(), 1);
}

TEST_F(PersonFiles, ASecondImportAddsNoResidenceToTwins) {
  PersonStore store(OpenPersons(), At("Daily.dat"));
  PersonRecord first = Numbered("Twin", 1);
  first.residence.reset();
  const std::vector<PersonRecord> twins{first, Numbered("TWIN", 2)};
  for (int time = 1; time <= 2; ++time) {
    EXPECT_EQ(store.SaveAll(twins).added, time == 1 ? 2 : 0);
    EXPECT_EQ(Database::OpenDatabase(At("Daily.dat"))->OpenRecordset("SELECT * FROM PERSON").RecordCount(), 1);
  }
}

TEST_F(PersonFiles, ABadRowIsNamedAndTheRestComesIn) {
  const QByteArray csv =
      "Name;Day;Month;Year;Hour;Minutes;City;Country;LatDeg;LatMT;TextNS;LongDeg;LongMT;TextEW;GMTDIFF\r\n"
      "Good;1;2;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "No such day;31;2;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "\r\n"
      "\"Two\r\nlines\";1;2;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "Few;1;2\r\n"
      "Word;1;May;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "No such latitude;1;2;1980;10;5;Agra;India;181;0;N;78;0;E;5.30\r\n"
      "  ;1;2;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "Last;1;2;1980;22;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "North of the pole;1;2;1980;10;5;Agra;India;91;0;N;78;0;E;5.30\r\n"
      "\"Open;1;2\r\n";
  const auto read = PersonsFile::Read(csv, Format::Csv);
  ASSERT_EQ(read.persons.size(), 4U);
  EXPECT_EQ(read.persons[2].AMPM, 2);
  QStringList lines;
  for (const QString &fault : read.faults) lines << fault.section(':', 0, 0);
  EXPECT_EQ(lines.join('|'), "Line 3|Line 7|Line 8|Line 9|Line 10|Line 13");
  ASSERT_EQ(read.doubts.size(), 1);
  EXPECT_TRUE(read.doubts[0].startsWith("Line 12") && read.doubts[0].contains("090:00")) << read.doubts[0];
  EXPECT_TRUE(read.faults[0].contains("31 February 1980")) << read.faults[0];

  const auto json = PersonsFile::Read(
      "[\n{\"Name\": \"A } [\", \"Day\": 1, \"Month\": 1, \"Year\": 1990, \"Hour\": 1, \"Minutes\": 2, \"LatDeg\": 1, \"LatMT\": 2, "
      "\"TextNS\": \"N\", \"LongDeg\": 3, \"LongMT\": 4, \"TextEW\": \"E\", \"GMTDIFF\": "
      "\"+05.30\"},\n\n{\"Name\": \"B\"}\n]",
      Format::Json);
  EXPECT_EQ(json.persons.size(), 1U);
  ASSERT_EQ(json.faults.size(), 1);
  EXPECT_TRUE(json.faults[0].startsWith("Line 4:")) << json.faults[0];

  for (const auto &[content, format] :
       {std::pair("", Format::Csv), {"a,b\n1,2\n", Format::Csv}, {"{\"persons\": 3}", Format::Json}, {"{", Format::Json}})
    EXPECT_THROW(PersonsFile::Read(content, format), ConversionError) << content;
}

}  // namespace
