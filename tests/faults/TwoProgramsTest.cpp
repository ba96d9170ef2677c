// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Several programs on the same files: no write of one is lost by another, and the user is never told of a lock.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "faults/FaultFolder.h"
#include "faults/FaultTable.h"
#include "persons/PlaceStore.h"
#include "persons/frmEditLongLat.h"
#include "persons/frmManageUsers.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"

namespace {

class TwoPrograms : public FaultFolder {
 protected:
  static void Click(const QWidget &dialog, const char *name) { dialog.findChild<QAbstractButton *>(QLatin1String(name))->click(); }
  static QString Told(const QWidget &dialog) { return dialog.findChild<QLabel *>(QStringLiteral("lblDone"))->text(); }

  // The same person as the other window has it.
  PersonRecord Stored(const QString &name) const {
    return PersonStore(Database::OpenDatabase(Recos()), Daily()).Find(name).value_or(PersonRecord());
  }
  void SaveElsewhere(const PersonRecord &record) const { PersonStore(Database::OpenDatabase(Recos()), Daily()).Save(record); }
};

}  // namespace

TEST_F(TwoPrograms, TwoThatAddChangeAndDeleteAtTheSameTimeLoseNothing) {
  const QString conf = data.Path() + "/orvani.conf";
  Database::SetBusyTimeout(EditPlan::LongestWaitMs);
  ASSERT_TRUE(Start());
  const auto db = screen->Session().OpenStores().personDb;
  PersonStore own(db, Daily());
  QProcess editors[2];
  const QString names[] = {"Asha", "Bela"};
  for (int i = 0; i < 2; ++i) editors[i].start(QStringLiteral(ORVANI_EDIT_MANY), {data.Path(), conf, names[i]});

  // Meanwhile the window saves, and orvani-daily lists and prints.
  int round = 0, calls = 0;
  while (editors[0].state() != QProcess::NotRunning || editors[1].state() != QProcess::NotRunning) {
    const QString name = EditPlan::Name("Window", round % EditPlan::Rounds);
    own.Save(Numbered(name, round++));
    if (round % 20 == 0) {
      const QStringList arguments = round % 40 == 0 ? QStringList{"--list"} : QStringList{"--person", "Mira", "--at", "2026-11-21 09:00"};
      Answer printed = Call(arguments);
      // On a slow disk it can be told to try again, and does.
      for (int tries = 0; tries < 10 && printed.err.contains("is in use by another program"); ++tries) printed = Call(arguments);
      EXPECT_EQ(printed.code, 0) << printed.err;
      EXPECT_EQ(printed.err, "");
      ++calls;
    }
    QCoreApplication::processEvents();
    for (QProcess &editor : editors) editor.waitForFinished(1);
  }
  for (QProcess &editor : editors) {
    EXPECT_EQ(editor.exitCode(), 0) << editor.readAllStandardError().toStdString();
  }
  EXPECT_GT(calls, 0);

  const PersonStore store(Database::OpenDatabase(Recos()), Daily());
  const clsIni ini(data.Paths());
  const FileUserSettings kept(conf);
  int persons = 0;
  for (const QString &editor : names) {
    for (int n = 0; n < EditPlan::Rounds; ++n) {
      const QString name = EditPlan::Name(editor, n);
      const auto found = store.Find(name);
      const Recordset city = db->OpenRecordset("SELECT * FROM City WHERE City = ?", {name});
      ASSERT_EQ(found.has_value(), !EditPlan::Deletes(n)) << name;
      ASSERT_EQ(city.RecordCount(), EditPlan::Deletes(n) ? 0 : 1) << name;
      if (found) {
        ++persons;
        PersonRecord expected = EditPlan::Person(editor, n, EditPlan::Changes(n));
        expected.Sex = found->Sex;  // an edit leaves it
        ASSERT_EQ(*found, expected) << name;
        ASSERT_EQ(city.Field("Longy").toString(), EditPlan::City(editor, n, EditPlan::Changes(n)).Longy) << name;
      }
      ASSERT_EQ(ini.GetIniString(name, ""), QString::number(n));
      ASSERT_EQ(kept.Value(editor, QString::number(n)), name);
    }
  }
  EXPECT_EQ(store.Names().filter("Window").size(), std::min(round, EditPlan::Rounds));
  EXPECT_EQ(persons, 2 * EditPlan::Rounds * 3 / 4);
  EXPECT_TRUE(notices.isEmpty()) << notices.join('\n');
  Database::SetBusyTimeout(2000);
  FaultTable::Only().Add("two editors of 200 persons, places and settings each, beside an open window", "nothing lost, no word of a lock",
                         "shown each time");
}

TEST_F(TwoPrograms, APersonChangedElsewhereIsNotOverwrittenUnawares) {
  const auto db = Database::OpenDatabase(Recos());
  frmManageUsers manager(db, Daily());
  manager.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&manager));
  manager.ChoosePerson("Mira");
  auto *time = manager.findChild<QLineEdit *>("txtPerBirthTime");
  const PersonRecord theirs = Numbered("Mira", 41);
  SaveElsewhere(theirs);

  const auto type = [&](const char *text) {
    time->setFocus();
    time->selectAll();
    QTest::keyClicks(time, text);
  };
  type("07.07");
  Click(manager, "flpSave");
  EXPECT_TRUE(Told(manager).contains("changed in another window")) << Told(manager);
  EXPECT_EQ(Stored("Mira").Minutes, theirs.Minutes);
  EXPECT_EQ(time->text(), "07.07") << "what was typed stays";

  // Their change, and back to one's own; then one's own word.
  Click(manager, "cmdUndo");
  EXPECT_EQ(time->text(), QStringLiteral("%1.%2").arg(theirs.Hour, 2, 10, QLatin1Char('0')).arg(theirs.Minutes, 2, 10, QLatin1Char('0')));
  Click(manager, "cmdUndo");
  EXPECT_EQ(time->text(), "07.07");
  SaveElsewhere(Numbered("Mira", 42));
  Click(manager, "flpSave");
  EXPECT_EQ(Stored("Mira").Minutes, 42) << "changed once more meanwhile";
  Click(manager, "flpSave");
  EXPECT_EQ(Stored("Mira").Hour, 7);

  PersonStore(Database::OpenDatabase(Recos()), Daily()).Delete("Mira");
  type("08.08");
  Click(manager, "flpSave");
  EXPECT_TRUE(Told(manager).contains("deleted in another window")) << Told(manager);
  EXPECT_EQ(Stored("Mira").Name, "");
  Click(manager, "flpSave");
  EXPECT_EQ(Stored("Mira").Hour, 8);
  FaultTable::Only().Add("a person changed or deleted in another window", "told; theirs shown or one's own saved, as chosen", "shown");
}

// Undo takes back what was done here, and nothing that was done elsewhere since.
TEST_F(TwoPrograms, UndoLeavesTheOtherWindowsWorkAlone) {
  const auto db = Database::OpenDatabase(Recos());
  frmManageUsers manager(db, Daily());
  manager.show();
  const QString file = data.Path() + "/list.json";
  manager.ExportTo(file);
  PersonStore(Database::OpenDatabase(Recos()), Daily()).Delete("Zoya");
  manager.ImportFrom(file);
  EXPECT_EQ(Stored("Zoya").Name, "Zoya");
  SaveElsewhere(Numbered("Nila", 12));
  Click(manager, "cmdUndo");
  EXPECT_EQ(Stored("Zoya").Name, "");
  EXPECT_EQ(Stored("Mira"), Numbered("Mira", 4));
  EXPECT_EQ(Stored("Nila"), Numbered("Nila", 12));
}

TEST_F(TwoPrograms, APlaceChangedElsewhereIsNotOverwrittenUnawares) {
  const auto db = Database::OpenDatabase(Recos());
  PlaceStore other(Database::OpenDatabase(Recos()));
  Place place = EditPlan::City("Ashapur", 1, false);
  place.row = other.SaveCity(place);
  frmEditLongLat options(db, settings, clsIni(data.Paths()));
  options.show();
  auto *city = options.findChild<QComboBox *>("cmbCityList");
  city->lineEdit()->setFocus();
  city->lineEdit()->selectAll();
  QTest::keyClicks(city->lineEdit(), place.City);
  ASSERT_EQ(options.findChild<QComboBox *>("cbocCountry")->currentText(), "India");
  Click(options, "cmdChange");
  options.findChild<QLineEdit *>("txtLat")->setText("011:11");

  Place theirs = place;
  theirs.Longy = "08000";
  other.SaveCity(theirs);
  Click(options, "cmdSave");
  EXPECT_TRUE(Told(options).contains("in another window")) << Told(options);
  const auto stored = [&] { return PlaceSearch::Load(*db, place.row).value_or(Place()); };
  EXPECT_EQ(stored().Longy, "08000");
  Click(options, "cmdSave");
  EXPECT_EQ(stored().Lat, "01111") << "the user's word";

  auto *country = options.findChild<QComboBox *>("cboCNTRY");
  emit country->activated(country->findText("India"));
  Click(options, "cmdCModify");
  options.findChild<QLineEdit *>("txtGMTDiff")->setText("+06.00");
  ASSERT_TRUE(other.SaveCountryOver("India", "+05.45", "India", "+05.30"));
  Click(options, "cmdCSave");
  EXPECT_TRUE(Told(options).contains("India was changed")) << Told(options);
  EXPECT_EQ(other.CountryDifference("India"), "+05.45");
  Click(options, "cmdCSave");
  EXPECT_EQ(other.CountryDifference("India"), "+06.00") << "the user's word";
  FaultTable::Only().Add("a place or country changed in another window", "told; one's own saved when it is saved again", "shown");
}

// The lists and the open page follow, without a question.
TEST_F(TwoPrograms, TheWindowShowsWhatAnotherOneSaved) {
  ASSERT_TRUE(Start());
  screen->ChangePerson("Mira");
  const QString before = screen->findChild<QLabel *>("lblBDate")->text();
  SaveElsewhere(Numbered("Mira", 55));
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(screen.get(), &activated);
  EXPECT_NE(screen->findChild<QLabel *>("lblBDate")->text(), before);
  EXPECT_EQ(screen->Session().BirthChart().clsPerson().Minutes(), 55);

  const auto db = Database::OpenDatabase(Recos());
  frmManageUsers manager(db, Daily());
  manager.show();
  auto *list = manager.findChild<QComboBox *>("cmbPerson");
  manager.ChoosePerson("Mira");
  SaveElsewhere(Numbered("Mira", 33));
  SaveElsewhere(Numbered("Nila", 12));
  QApplication::sendEvent(&manager, &activated);
  EXPECT_GE(list->findText("Nila"), 0);
  EXPECT_EQ(manager.findChild<QLineEdit *>("txtPerBirthTime")->text().right(2), "33");

  PersonStore(Database::OpenDatabase(Recos()), Daily()).Delete("Mira");
  QApplication::sendEvent(screen.get(), &activated);
  EXPECT_EQ(screen->Session().BirthChart().clsPerson().Name(), "Mira") << "the open day stays";
  EXPECT_TRUE(notices.isEmpty()) << notices.join('\n');
}

TEST_F(TwoPrograms, TheSampleGivesWayToTheFirstPersonAnotherWindowAdds) {
  Database::OpenDatabase(Recos())->Execute("DELETE FROM Person");
  ASSERT_TRUE(Start());
  ASSERT_NE(screen->Session().BirthChart().clsPerson().Name(), "Nila");
  SaveElsewhere(Numbered("Nila", 12));
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(screen.get(), &activated);
  EXPECT_EQ(screen->findChild<QLabel *>("lblPersonName")->text(), "Nila");
}
