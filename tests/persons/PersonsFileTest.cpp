// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Persons out to a file and in again.
#include "PersonFiles.h"

#include "persons/PersonsFile.h"
#include "platform/Errors.h"

namespace {

using Format = PersonsFile::Format;

TEST_F(PersonFiles, TheSameFileBackGivesTheSameStore) {
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
  store.SaveAll({homeless, Numbered("Twin", 1), Numbered("Twin", 2)});
  const auto before = store.All();

  for (const Format format : {Format::Csv, Format::Json}) {
    const QByteArray file = PersonsFile::Write(before, format);
    const PersonsFile::Contents read = PersonsFile::Read(file, format);
    EXPECT_TRUE(read.faults.isEmpty()) << read.faults.join('\n');
    EXPECT_EQ(read.persons, before);
    const PersonStore::Tally again = store.SaveAll(read.persons);
    EXPECT_EQ(again.added, 0);
    EXPECT_EQ(store.All(), before);
    for (const PersonRecord &person : before) store.Delete(person.Name);
    EXPECT_EQ(store.SaveAll(read.persons).added, static_cast<int>(before.size()));
    EXPECT_EQ(store.All(), before);
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
      "North of the pole;1;2;1980;10;5;Agra;India;91;0;N;78;0;E;5.30\r\n"
      "  ;1;2;1980;10;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "Last;1;2;1980;22;5;Agra;India;27;9;N;78;0;E;5.30\r\n"
      "\"Open;1;2\r\n";
  const auto read = PersonsFile::Read(csv, Format::Csv);
  ASSERT_EQ(read.persons.size(), 3U);
  EXPECT_EQ(read.persons[2].AMPM, 2);
  QStringList lines;
  for (const QString &fault : read.faults) lines << fault.section(':', 0, 0);
  EXPECT_EQ(lines.join('|'), "Line 3|Line 7|Line 8|Line 9|Line 10|Line 12");
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
