// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Persons with their residences: what a save writes in both files, deleting and taking it back, odd names, faults, sudden ends.
#include "PersonFiles.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include "platform/Errors.h"

namespace {

int Rows(Database &db, const char *table) {
  return db.OpenRecordset(QStringLiteral("SELECT * FROM ") + QLatin1String(table)).RecordCount();
}

TEST_F(PersonFiles, WritesBothFilesAndKeepsTheSexOfASavedPerson) {
  const auto persons = OpenPersons();
  const auto daily = Database::OpenDatabase(At("Daily.dat"));
  PersonStore store(persons, At("Daily.dat"));
  const int before = Rows(*persons, "Person");

  PersonRecord record = Numbered("  Mira  ", 13);
  record.Sex = 2;
  EXPECT_EQ(store.Save(record), PersonStore::Outcome::Added);
  EXPECT_EQ(Rows(*persons, "Person"), before + 1);
  EXPECT_EQ(Rows(*daily, "PERSON"), 1);

  persons->Execute("UPDATE Person SET TCorrVal = '+01.00', Tcorrinde = 3 WHERE Name = 'Mira'");
  PersonRecord edited = Numbered("mira", 47);
  edited.Sex = 1;
  EXPECT_EQ(store.Save(edited), PersonStore::Outcome::Changed) << "names are the same whatever the case of their letters";
  EXPECT_EQ(Rows(*persons, "Person"), before + 1);
  PersonRecord expected = edited;
  expected.Sex = 2;
  expected.TCorrVal = "+01.00";
  expected.Tcorrinde = 3;
  ASSERT_TRUE(store.Find("MIRA"));
  EXPECT_EQ(*store.Find("MIRA"), expected);

  for (const char *blank : {"", "   "}) {
    record.Name = blank;
    EXPECT_THROW(store.Save(record), UsageError);
  }
  EXPECT_EQ(store.At(-1), std::nullopt);
  EXPECT_EQ(store.At(before + 1), std::nullopt);
  EXPECT_EQ(store.At(before)->Name, "mira");

  // What counts as one name is the store's word: it folds A to Z alone.
  for (const char *name : {"\u00c9MILE", "\u00e9mile", " \u00c9mile "}) {
    const bool isFirst = !store.Has(name);
    record.Name = name;
    EXPECT_EQ(store.Save(record) == PersonStore::Outcome::Added, isFirst) << name;
    EXPECT_EQ(PersonStore::IsSameName(name, "\u00c9mile"), store.Find("\u00c9mile")->Name == QString(name).trimmed()) << name;
  }
  EXPECT_EQ(Rows(*persons, "Person"), before + 3);
}

TEST_F(PersonFiles, EveryNameIsAName) {
  PersonStore store(OpenPersons(), At("Daily.dat"));
  const QString names[] = {
      "Asha O'Neil",  "\"Bob\"; DROP TABLE Person; --", "\xE0\xA4\x85\xE0\xA4\x9C\xE0\xA4\xAF", "\xF0\x9F\x8C\x99 Luna", QString(500, u'x'),
      "100% _ [a-z]*"};
  for (const QString &name : names) {
    const PersonRecord record = Numbered(name, static_cast<int>(name.size()));
    EXPECT_EQ(store.Save(record), PersonStore::Outcome::Added);
    EXPECT_EQ(store.Find(name), record);
    EXPECT_EQ(store.Save(record), PersonStore::Outcome::Changed);
  }
  for (const QString &name : names) {
    const auto all = store.All();
    EXPECT_FALSE(store.Delete(name).IsEmpty());
    EXPECT_EQ(store.All().size(), all.size() - 1) << name;
  }
}

TEST_F(PersonFiles, ADeletedPersonComesBackAsBefore) {
  const auto persons = OpenPersons();
  PersonStore store(persons, At("Daily.dat"));
  store.Save(Numbered("Mira", 5));
  persons->Execute("INSERT INTO Person (Name, Day) VALUES ('Mira', 2)");  // of the same name, from elsewhere
  const auto before = store.All();
  const PersonStore::Removed removed = store.Delete("mira");
  EXPECT_EQ(store.All().size(), before.size() - 2);
  store.Save(Numbered("Tara", 7));  // takes the row number that has become free
  store.Restore(removed);
  store.Delete("Tara");
  EXPECT_EQ(store.All(), before);
  EXPECT_TRUE(store.Delete("nobody").IsEmpty());
}

TEST_F(PersonFiles, AStrangeRowCanBeSavedOverAndAnUndoKeepsToItsNames) {
  const auto persons = OpenPersons();
  PersonStore store(persons, At("Daily.dat"));
  for (const char *name : {"Mira", "\u00c9MILE", "\u00e9mile"}) store.Save(Numbered(name, 5));
  Database::OpenDatabase(At("Daily.dat"))->Execute("UPDATE PERSON SET City = NULL, LatDeg = 1.5");
  for (const char *blanks : {"Mira", " Mira "}) {
    persons->Execute("UPDATE Person SET Name = ? WHERE trim(Name) = 'Mira'", {blanks});
    EXPECT_TRUE(store.SaveOver(Numbered("Mira", 6), store.Find(blanks))) << "nobody has changed '" << blanks << "'";
  }

  const auto before = store.Snapshot();
  const auto all = store.All();
  store.SaveAll({Numbered("\u00e9mile", 8)});
  store.GoBackTo(before, {"\u00e9mile"});
  EXPECT_EQ(store.All(), all) << "the other of like name is put back neither once more nor less";
}

TEST_F(PersonFiles, ASaveThatOneFileRefusesChangesNeither) {
  const auto persons = OpenPersons();
  PersonStore store(persons, At("Daily.dat"));
  store.Save(Numbered("Mira", 5));
  Database::OpenDatabase(At("Daily.dat"))
      ->Execute("CREATE TRIGGER refuse BEFORE UPDATE ON PERSON BEGIN SELECT RAISE(ABORT, 'refused'); END");
  const auto before = store.All();
  EXPECT_THROW(store.Save(Numbered("Mira", 6)), StoreError);
  EXPECT_EQ(store.All(), before);
  EXPECT_THROW(store.SaveAll({Numbered("Tara", 1), Numbered("Mira", 6)}), StoreError);
  EXPECT_EQ(store.All(), before) << "all of a list or none of it";
}

TEST_F(PersonFiles, AProgramKilledInTheMiddleOfASaveLeavesTheOldPersonOrTheNewOne) {
  const QString name = "Asha O'Neil";
  for (const char *statement : {"DELETE FROM City", "VACUUM"}) OpenPersons()->Execute(statement);  // what is not saved only costs time
  int seen = 0, cutShort = 0;
  for (int round = 0; round < 200; ++round) {
    QProcess saver;
    saver.start(QStringLiteral(ORVANI_SAVE_FOREVER), {At("RECOS.Dat"), At("Daily.dat")});
    ASSERT_TRUE(saver.waitForReadyRead(5000)) << saver.readAllStandardError().toStdString();
    QThread::usleep(QRandomGenerator::global()->bounded(8000));
    saver.kill();
    saver.waitForFinished();
    cutShort += QFile::exists(At("RECOS.Dat") + QStringLiteral("-journal"));

    PersonStore store(OpenPersons(), At("Daily.dat"));
    const auto found = store.Find(name);
    if (!found) {
      ASSERT_EQ(Rows(*Database::OpenDatabase(At("Daily.dat")), "PERSON"), 0) << "deleted in both";
      continue;
    }
    ++seen;
    ASSERT_TRUE(found->residence);
    ASSERT_EQ(found->birth.LatDeg, found->residence->LatDeg) << "round " << round;
    ASSERT_EQ(found->birth.LongDeg, found->residence->LongDeg);
    ASSERT_EQ(found->Minutes, found->birth.LatMT);
  }
  EXPECT_GT(seen, 0);
  EXPECT_GT(cutShort, 5) << "saves must really be cut short for this to prove anything";
}

}  // namespace
