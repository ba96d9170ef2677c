// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "StoreFixture.h"

#include "faults/OrdinaryUser.h"

namespace {

using Kind = StoreError::Kind;

class StoreTest : public StoreFixture {};

// The rest of what can stand there is tried through both programs by the fault tests.
TEST_F(StoreTest, WhatIsNoSoundStoreIsNamedAndNotHarmed) {
  const QByteArray sound = ReadWholeFile(Make(At("sound"), {"CREATE TABLE T (A TEXT)", "CREATE INDEX I ON T (A)",
                                                            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 900) "
                                                            "INSERT INTO T SELECT 'a rather long text for row ' || i FROM n"}));
  ASSERT_GT(sound.size(), 5 * 4096);
  QByteArray scrambled = sound;
  scrambled.replace(2 * 4096, 3 * 4096, QByteArray(3 * 4096, '\x5a'));
  QByteArray badHeader = sound;
  badHeader.replace(16, 8, QByteArray(8, '\xff'));

  WriteWholeFile(At("stub"), sound.first(10));
  WriteWholeFile(At("scrambled"), scrambled);
  WriteWholeFile(At("header"), badHeader);
  RunOutside(At("other"), {"CREATE TABLE T (A)"});
  RunOutside(At("another"), {"PRAGMA application_id = 17", "CREATE TABLE T (A)"});
  const std::pair<const char *, Kind> cases[] = {{"stub", Kind::Damaged},  {"scrambled", Kind::Damaged}, {"header", Kind::Damaged},
                                                 {"other", Kind::Foreign}, {"another", Kind::Foreign},   {"absent", Kind::Missing}};
  for (const auto &[name, kind] : cases) {
    const QByteArray before = ReadFileIfAny(At(name));
    QString sentence;
    EXPECT_EQ(Refusal([&] { Database::OpenDatabase(At(name)); }, &sentence), kind) << name;
    EXPECT_TRUE(sentence.contains(QDir::toNativeSeparators(At(name)))) << sentence;
    EXPECT_EQ(ReadFileIfAny(At(name)), before) << name;
  }
  EXPECT_FALSE(QFileInfo::exists(At("absent"))) << "opening must not make a store";
}

TEST_F(StoreTest, AReaderUndoesTheSaveThatAKilledProgramLeft) {
  const QString path = MakePersons();
  const QByteArray before = ReadWholeFile(path);
  // The pages and the journal of a save as they lie on the disk in the middle of it.
  QByteArray middle, journal;
  RunOutside(path,
             {"PRAGMA synchronous = OFF", "PRAGMA cache_size = 1", "PRAGMA cache_spill = 1", "BEGIN",
              "UPDATE Person SET Name = 'half done', Day = 99",
              "CREATE TABLE Filler AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) SELECT i FROM n"},
             [&] {
               middle = ReadWholeFile(path);
               journal = ReadWholeFile(path + "-journal");
             });
  ASSERT_TRUE(middle != before && !journal.isEmpty());
  WriteWholeFile(path, middle);
  WriteWholeFile(path + "-journal", journal);
  const auto database = Database::OpenDatabase(path, Database::Mode::ReadOnly);
  EXPECT_EQ(database->OpenRecordset("SELECT * FROM Person WHERE Day = 99").RecordCount(), 0);
  EXPECT_EQ(database->OpenRecordset("Person").RecordCount(), 3);
  EXPECT_FALSE(QFileInfo::exists(path + "-journal"));
}

TEST_F(StoreTest, AStoreThatWasReplacedUnderAnOpenWindowTakesNoWriteAndLosesNone) {
  const QString path = MakePersons();
  const auto database = Database::OpenDatabase(path);
  database->Execute("UPDATE Person SET Day = 4 WHERE Name = 'Mira'");
  ASSERT_TRUE(QFile::rename(path, At("moved")));
  ASSERT_TRUE(QFile::copy(At("moved"), path));
  QString sentence;
  Refusal([&] { database->Execute("UPDATE Person SET Day = 5 WHERE Name = 'Mira'"); }, &sentence);
  EXPECT_TRUE(sentence.contains("replaced")) << sentence;
}

TEST_F(StoreTest, AFileWithoutRightsIsReadOnlyOrUnreadable) {
  const OrdinaryUser user(At(""), QString());
  const QString path = MakePersons();
  QFile::setPermissions(path, QFile::ReadOwner);
  EXPECT_EQ(Refusal([&] { Database::OpenDatabase(path); }), Kind::ReadOnly);
  EXPECT_EQ(Database::OpenDatabase(path, Database::Mode::ReadOnly)->OpenRecordset("Person").RecordCount(), 3);
  QFile::setPermissions(path, {});
  EXPECT_EQ(Refusal([&] { Database::OpenDatabase(path); }), Kind::Unreadable);
}

TEST_F(StoreTest, AWriteToAStoreOpenedForReadingIsRefused) {
  const auto database = Database::OpenDatabase(MakePersons(), Database::Mode::ReadOnly);
  EXPECT_EQ(Refusal([&] { database->Execute("DELETE FROM Person"); }), Kind::ReadOnly);
  Recordset persons = database->OpenRecordset("Person");
  persons.Edit();
  persons.SetField("Day", 30);
  EXPECT_EQ(Refusal([&] { persons.Update(); }), Kind::ReadOnly);
}

TEST_F(StoreTest, AnotherProgramsLockIsToldAtOpeningAndAtWriting) {
  const QString path = MakePersons();
  RunOutside(path, {"BEGIN EXCLUSIVE"}, [&] { EXPECT_EQ(Refusal([&] { Database::OpenDatabase(path); }), Kind::Locked); });
  const auto database = Database::OpenDatabase(path);
  RunOutside(path, {"BEGIN IMMEDIATE"}, [&] {
    EXPECT_EQ(database->OpenRecordset("Person").RecordCount(), 3);
    EXPECT_EQ(Refusal([&] { database->Execute("DELETE FROM Person"); }), Kind::Locked);
    EXPECT_EQ(Refusal([&] { const Transaction transaction(*database); }), Kind::Locked);
  });
  database->Execute("DELETE FROM Person");
}

TEST_F(StoreTest, AnyNameIsStoredFoundEditedAndDeleted) {
  const auto database = Database::OpenDatabase(MakePersons());
  const QStringList names{"O'Brien", "\"; DROP TABLE Person; --", QString::fromUtf8("अनविक तेलवार"), QString::fromUtf8("Ångström 🪐"),
                          ""};
  for (const QString &name : names) {
    Recordset persons = database->OpenRecordset("qryPersonName");
    persons.AddNew();
    persons.SetField("NAME", name);
    persons.SetField("gmtdiff", QString());
    persons.Update();
    EXPECT_EQ(persons.RecordCount(), 4);

    Recordset found = database->OpenRecordset("SELECT * FROM Person WHERE Name = ?", {name});
    ASSERT_EQ(found.RecordCount(), 1) << name;
    EXPECT_EQ(found.Field("Name").toString(), name);
    EXPECT_FALSE(found.Field("GMTDIFF").isNull()) << "an empty text is no Null";
    EXPECT_EQ(found.Field("Tcorrinde").toInt(), 7) << "the table's default";
    found.Edit();
    found.SetField("Day", "31");
    found.Update();
    EXPECT_EQ(found.Field("Day").typeId(), QMetaType::LongLong) << "the row as the column keeps it";

    // Outside a query the case of every letter is known; the engine knows that of the Latin ones only.
    Recordset again = database->OpenRecordset("Person");
    ASSERT_TRUE(again.FindFirst("Name", name.toLower()));
    EXPECT_EQ(again.Field("Day").toInt(), 31);
    again.Delete();
    EXPECT_EQ(database->OpenRecordset("Person").RecordCount(), 3);
  }
  EXPECT_EQ(database->OpenRecordset("SELECT * FROM person WHERE NAME = ?", {"mIRA"}).RecordCount(), 1);
}

TEST_F(StoreTest, TheCursorMovesOverTheStoredQueryInNameOrder) {
  const auto database = Database::OpenDatabase(MakePersons());
  Recordset persons = database->OpenRecordset("qryPersonName");
  EXPECT_EQ(persons.Field("Name").toString(), "Arun");
  persons.Move(2);
  EXPECT_EQ(persons.Field("Name").toString(), "Zoya");
  persons.MoveNext();
  EXPECT_TRUE(persons.AtEnd());
  EXPECT_EQ(Refusal([&] { persons.Field("Name"); }), Kind::NoCurrentRow);
  EXPECT_EQ(Refusal([&] { persons.MoveNext(); }), Kind::NoCurrentRow);
  EXPECT_EQ(Refusal([&] { persons.Edit(); }), Kind::NoCurrentRow);
  persons.Move(-2);
  EXPECT_EQ(persons.Field("name").toString(), "Mira");
  EXPECT_TRUE(persons.Field("Tcorrinde").isNull());
  EXPECT_EQ(Refusal([&] { persons.Field("Nickname"); }), Kind::UnknownColumn);
  EXPECT_FALSE(persons.FindFirst("Name", "Mir"));
  EXPECT_EQ(persons.Position(), 1);
  persons.MoveFirst();
  EXPECT_TRUE(persons.FindFirst("Day", 9));
  EXPECT_EQ(persons.Position(), 2);
  EXPECT_EQ(Refusal([&] { persons.SetField("Day", 1); }), Kind::Other) << "no Edit before";

  Recordset counted = database->OpenRecordset("SELECT count(*) AS n FROM Person");
  EXPECT_EQ(counted.Field("n").toInt(), 3);
  EXPECT_EQ(Refusal([&] { counted.Edit(); }), Kind::Other);
}

TEST_F(StoreTest, DeletingWhileWalkingSkipsNoRowAndAnEmptySetRefusesMoves) {
  const auto database = Database::OpenDatabase(MakePersons());
  Recordset persons = database->OpenRecordset("qryPersonName");
  persons.MoveNext();
  persons.Delete();
  EXPECT_EQ(Refusal([&] { persons.Field("Name"); }), Kind::NoCurrentRow);
  persons.MoveNext();
  EXPECT_EQ(persons.Field("Name").toString(), "Zoya");
  for (persons.MoveFirst(); !persons.AtEnd(); persons.MoveNext()) persons.Delete();
  EXPECT_EQ(database->OpenRecordset("Person").RecordCount(), 0);
  for (const auto &move :
       std::initializer_list<std::function<void()>>{[&] { persons.MoveFirst(); }, [&] { persons.MoveLast(); }, [&] { persons.MoveNext(); },
                                                    [&] { persons.Move(0); }, [&] { persons.Delete(); }})
    EXPECT_EQ(Refusal(move), Kind::NoCurrentRow);
  persons.AddNew();
  persons.SetField("Name", "Nila");
  persons.Update();
  persons.MoveFirst();
  EXPECT_EQ(persons.Field("Name").toString(), "Nila");
}

TEST_F(StoreTest, SavingARowThatAnotherProgramDeletedIsRefused) {
  const auto database = Database::OpenDatabase(MakePersons());
  Recordset persons = database->OpenRecordset("qryPersonName");
  RunOutside(database->Path(), {"DELETE FROM Person WHERE Name = 'Arun'"});
  persons.Edit();
  persons.SetField("Day", 2);
  EXPECT_THROW(persons.Update(), StoreError);
  EXPECT_EQ(persons.Field("Day").toInt(), 2) << "the edit stays open";
}

TEST_F(StoreTest, AChangeOverTwoFilesIsMadeInBothOrInNeither) {
  const auto persons = Database::OpenDatabase(MakePersons());
  const QString dailyPath = Make(At("Daily.dat"), {"CREATE TABLE PERSON (Name TEXT COLLATE NOCASE, City TEXT)"});
  const auto daily = Database::OpenDatabase(dailyPath);  // stays open beside, as in the program
  persons->Attach(dailyPath, "daily");
  const auto add = [&] {
    persons->Execute("INSERT INTO main.Person (Name) VALUES (?)", {"O'Brien"});
    Recordset residences = persons->OpenRecordset("SELECT * FROM daily.PERSON");
    residences.AddNew();
    residences.SetField("Name", "O'Brien");
    residences.SetField("City", "Pune");
    residences.Update();
  };
  const auto counts = [&] {
    return std::pair(persons->OpenRecordset("main.Person").RecordCount(), daily->OpenRecordset("PERSON").RecordCount());
  };
  {
    const Transaction transaction(*persons);
    add();
    EXPECT_THROW(Transaction{*persons}, StoreError);
  }
  EXPECT_EQ(counts(), std::pair(3, 0));
  RunOutside(dailyPath, {"BEGIN IMMEDIATE"}, [&] { EXPECT_EQ(Refusal([&] { const Transaction transaction(*persons); }), Kind::Locked); });
  {
    Transaction transaction(*persons);
    add();
    transaction.Commit();
  }
  EXPECT_EQ(counts(), std::pair(4, 1));
  EXPECT_EQ(Refusal([&] { persons->Attach(At("absent"), "more"); }), Kind::Missing);
  RunOutside(At("foreign"), {"CREATE TABLE T (A)"});
  EXPECT_EQ(Refusal([&] { persons->Attach(At("foreign"), "more"); }), Kind::Foreign);
  EXPECT_THROW(persons->Attach(dailyPath, "a; b"), UsageError);
  persons->Detach("daily");
  EXPECT_THROW(persons->OpenRecordset("SELECT * FROM daily.PERSON"), StoreError);
}

TEST_F(StoreTest, AConnectionGoesWithItsLastOwner) {
  const auto before = QSqlDatabase::connectionNames().size();
  {
    const Recordset persons = Database::OpenDatabase(MakePersons())->OpenRecordset("Person");
    EXPECT_EQ(QSqlDatabase::connectionNames().size(), before + 1);
  }
  EXPECT_EQ(QSqlDatabase::connectionNames().size(), before);
}

}  // namespace
