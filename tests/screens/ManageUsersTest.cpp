// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The screen that adds, edits and deletes persons, driven as a user drives it.
#include <QAbstractItemView>
#include <QApplication>
#include <QSignalSpy>

#include "persons/frmManageUsers.h"
#include "screens/PersonScreen.h"

namespace {

class ManageUsers : public PersonScreen<frmManageUsers> {
 public:
  ManageUsers() {
    screen = std::make_unique<frmManageUsers>(db, At("Daily.dat"));
    screen->show();
  }
  // As another program would see both files.
  PersonStore Store() const { return PersonStore(OpenPersons(), At("Daily.dat")); }
  void FillNew(const QString &name) const {
    Click("flpAddUser");
    Set("cmbPerson", name);
    Set("cmbBirthDay", "15");
    Set("cmbBirthMonth", "January");
    Set("cmbBirthYear", "1944");
    Type("txtPerBirthTime", "21.05");
    Type("cmbBirthCountry", "united states");
    Type("cmbBirthCity", "new yor");
  }
};

TEST_F(ManageUsers, AddsAPersonBornFarAwayWithTheClockOfThatDay) {
  EXPECT_EQ(Text("cmbPerson"), "Anvik Telvar") << "the first person is chosen";
  EXPECT_EQ(Text("txtPerBirthTime"), "10.50");
  EXPECT_EQ(Text("txtLati"), "027:09");
  EXPECT_EQ(Text("txtResGMT"), "+00.00") << "no residence is stored";
  EXPECT_FALSE(Find<QAbstractButton>("optMale")->isEnabled());

  FillNew("Mary O'Neil");
  EXPECT_EQ(Text("cmbBirthCountry"), "United States of America");
  EXPECT_EQ(Text("cmbBirthCity"), "New York") << "completed";
  EXPECT_EQ(Text("txtLati"), "040:43");
  EXPECT_EQ(Text("TextEW"), "W");
  EXPECT_EQ(Text("txtGMT"), "-05.00");
  EXPECT_TRUE(Find<QAbstractButton>("optPM")->isChecked());
  const auto *clock = Find<QLabel>("lblClock_txtGMT");
  EXPECT_TRUE(clock->text().contains("-04.00") && clock->text().contains("war time")) << clock->text();
  Click("cmdUse_txtGMT");
  EXPECT_EQ(Text("txtGMT"), "-04.00");
  EXPECT_TRUE(Find<QAbstractButton>("cmdUse_txtGMT")->isHidden());
  Click("optFemale");
  Click("flpSave");

  const auto stored = Store().Find("Mary O'Neil");
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->Hour, 21);
  EXPECT_EQ(stored->AMPM, 2);
  EXPECT_EQ(stored->Sex, 2);
  EXPECT_EQ(stored->birth, (PlaceRecord{"New York", "United States of America", "-04.00", 40, 43, "N", 74, 0, "W"}));
  EXPECT_EQ(stored->residence, (PlaceRecord{"", "", "+00.00", 0, 0, "N", 0, 0, "E"})) << "the defaults shown";
  EXPECT_TRUE(notices.Seen().empty()) << "success is not confirmed";

  // An edit changes everything but the sex, and both files.
  Type("txtPerBirthTime", "00.30");
  Find<QAbstractButton>("optMale")->setChecked(true);
  Type("cmbResCountry", "united king");
  EXPECT_EQ(Text("txtResGMT"), "+00.00");
  EXPECT_TRUE(Find<QLabel>("lblResidence")->text().startsWith("No place is entered"));
  Type("cmbResCity", "lond");
  EXPECT_FALSE(Find<QLabel>("lblResidence")->text().startsWith("No place is entered"));
  Click("flpSave");
  EXPECT_EQ(Store().Find("Mary O'Neil")->Hour, 0);
  EXPECT_EQ(Store().Find("Mary O'Neil")->Sex, 2);
  EXPECT_EQ(Store().Find("Mary O'Neil")->residence->City, "London");
  EXPECT_EQ(Store().Names().size(), 2);

  QSignalSpy closed(screen.get(), &frmManageUsers::Closed);
  Click("flpClose");
  ASSERT_EQ(closed.size(), 1);
  EXPECT_EQ(closed[0][0].toString(), "Mary O'Neil");
}

// A name in part or a former name completes nothing in the field, and fills in the place all the same.
TEST_F(ManageUsers, TheClockIsToldForWhateverNameFoundThePlace) {
  FillNew("Ravi");
  Type("cmbBirthCountry", "India");
  for (const char *typed : {"Calcut", "calcutta", "Kolk"}) {
    Type("cmbBirthCity", typed);
    EXPECT_EQ(Text("txtLati"), "022:34") << typed;
    EXPECT_TRUE(Find<QLabel>("lblClock_txtGMT")->text().contains("Kolkata showed +06.30")) << typed;
  }
  Type("cmbBirthCity", "Nowhere at all");
  EXPECT_TRUE(Find<QLabel>("lblClock_txtGMT")->isHidden());
}

TEST_F(ManageUsers, HalvesOfTheDayRewriteTheTime) {
  for (const auto &[typed, half, time] : {std::tuple("01.30", "optPM", "13.30"), {"12.30", "optAM", "00.30"}}) {
    Type("txtPerBirthTime", typed);
    Click(half);
    EXPECT_EQ(Text("txtPerBirthTime"), time) << typed;
  }
  Type("txtPerBirthTime", "12.00");
  EXPECT_TRUE(Find<QAbstractButton>("optPM")->isChecked());
  Type("txtPerBirthTime", "9.00");
  EXPECT_TRUE(Find<QAbstractButton>("optAM")->isChecked());
}

TEST_F(ManageUsers, WhatCannotBeReadStaysAndIsNotSaved) {
  const std::pair<const char *, const char *> rows[] = {
      {"txtPerBirthTime", "9.5"}, {"txtLati", "27.9"},   {"txtLati", "181:00"}, {"txtLongi", "181:00"},
      {"txtGMT", "5,30"},         {"txtResGMT", "soon"}, {"txtLat", ""},        {"txtLong", "000:60"}};
  const auto before = Store().All();
  for (const auto &[field, text] : rows) {
    screen->ChoosePerson("Anvik Telvar");
    Type(field, text);
    Click("flpSave");
    EXPECT_FALSE(Fault(field).isEmpty()) << field << " " << text;
    EXPECT_EQ(Text(field), text) << "stays";
    EXPECT_EQ(Store().All(), before);
  }
  screen->ChoosePerson("Anvik Telvar");
  Set("cmbBirthMonth", "February");
  Set("cmbBirthDay", "30");
  Click("flpSave");
  EXPECT_EQ(Fault("cmbBirthDay"), "There is no 30 February 1980.");
  EXPECT_EQ(Store().All(), before);

  for (const char *blank : {"", "   "}) {
    notices.Clear();
    Set("cmbPerson", blank);
    Click("flpSave");
    ASSERT_EQ(notices.Seen().size(), 1U);
    EXPECT_EQ(notices.Seen()[0].text, "Please enter a name.");
  }
  EXPECT_EQ(Store().All(), before);
}

TEST_F(ManageUsers, ALatitudeBeyondThePoleIsDoubtedAndSaved) {
  Type("txtLati", "090:00");
  EXPECT_EQ(Fault("txtLati"), "");
  Type("txtLati", "091:00");
  EXPECT_TRUE(Fault("txtLati").contains("090:00"));
  Click("flpSave");
  EXPECT_EQ(Store().Find("Anvik Telvar")->birth.LatDeg, 91);
  screen->ChoosePerson("Anvik Telvar");
  EXPECT_FALSE(Fault("txtLati").isEmpty()) << "also when the person is shown again";
  Type("txtLati", "027:09");
  EXPECT_EQ(Fault("txtLati"), "");
}

TEST_F(ManageUsers, PassingThroughAFieldChangesNothing) {
  db->Execute("UPDATE Person SET GMTDIFF = '+06.30', LatMT = 11");
  FillNew("Zoya");
  Click("flpSave");
  screen->ChoosePerson("Anvik Telvar");
  screen->ChoosePerson("Zoya");
  screen->ChoosePerson("Anvik Telvar");
  Type("txtPerBirthTime", "11.11");
  for (const char *field : {"cmbPerson", "cmbBirthCountry", "cmbBirthCity", "cmbResCountry", "cmbResCity"}) {
    Edit(field)->setFocus();
    emit Edit(field)->editingFinished();  // what leaving the field does
    EXPECT_EQ(Text("txtGMT"), "+06.30") << field;
    EXPECT_EQ(Text("txtLati"), "027:11") << field;
    EXPECT_EQ(Text("txtPerBirthTime"), "11.11") << field;
  }
  Set("cmbPerson", "zoya");
  QTest::keyClick(Edit("cmbPerson"), Qt::Key_Return);
  EXPECT_EQ(Text("txtPerBirthTime"), "21.05") << "the Enter key chooses a name that is typed whole";
}

TEST_F(ManageUsers, EveryFieldSaysWhatItIsFor) {
  for (const QWidget *field : screen->findChildren<QWidget *>()) {
    const bool isField = qobject_cast<const QComboBox *>(field) || qobject_cast<const QAbstractButton *>(field) ||
                         (qobject_cast<const QLineEdit *>(field) && !qobject_cast<const QComboBox *>(field->parent()));
    if (!isField || !field->isVisible() || field->objectName().isEmpty()) continue;
    EXPECT_FALSE(field->toolTip().isEmpty()) << field->objectName();
  }
  EXPECT_EQ(Find<QComboBox>("cmbPerson")->toolTip(), "Enter the name of the person to generate the horoscope for.");
}

TEST_F(ManageUsers, TheListOfPlacesTellsThemApartAndGivesTheBareName) {
  Click("flpAddUser");
  Type("cmbBirthCountry", "United States of America");
  auto *city = Find<QComboBox>("cmbBirthCity");
  const auto same = city->model()->match(city->model()->index(0, 0), Qt::EditRole, "Springfield", -1, Qt::MatchFixedString);
  ASSERT_GT(same.size(), 5);
  Type("cmbBirthCity", "springfield");
  const QString latitude = Text("txtLati");
  city->showPopup();
  EXPECT_EQ(city->view()->currentIndex(), same[0]) << "the list opens at what was typed";
  city->hidePopup();
  EXPECT_EQ(Text("txtLati"), latitude);
  EXPECT_EQ(same[0].data().toString(), "Springfield, Missouri");
  for (const QModelIndex &row : same) {
    city->setCurrentIndex(row.row());
    emit city->activated(row.row());
    EXPECT_EQ(Text("cmbBirthCity"), "Springfield");
    EXPECT_NE(Text("txtLati"), "000:00");
  }
  EXPECT_NE(Text("txtLati"), "037:13") << "the last of them is not the first";
}

TEST_F(ManageUsers, DeletingIsNotAskedAndCanBeTakenBack) {
  FillNew("Zoya");
  Type("cmbResCity", "Lima");
  Click("flpSave");
  const auto before = Store().All();
  Click("flpDelUser");
  EXPECT_EQ(Store().Names().size(), 1);
  EXPECT_EQ(Text("cmbPerson"), "Anvik Telvar") << "the first entry is chosen";
  Click("cmdUndo");
  EXPECT_EQ(Store().All(), before);
  EXPECT_EQ(Text("cmbPerson"), "Zoya");

  // The last one leaves an empty list.
  Click("flpDelUser");
  Click("flpDelUser");
  EXPECT_TRUE(Store().Names().isEmpty());
  EXPECT_EQ(Text("cmbPerson"), "");
  EXPECT_EQ(Text("txtGMT"), "00.00");
  Click("cmdUndo");
  EXPECT_EQ(Store().Names(), QStringList{"Anvik Telvar"});
}

TEST_F(ManageUsers, ANameThatIsSomebodyElsesIsNotOverwrittenUnawares) {
  FillNew("Zoya");
  Click("flpSave");
  const auto before = Store().All();
  FillNew("anvik telvar");
  EXPECT_TRUE(Fault("cmbPerson").contains("in the list already"));
  Click("flpSave");
  EXPECT_NE(Store().All(), before);
  Click("cmdUndo");
  EXPECT_EQ(Store().All(), before);

  // Leaving with something unsaved says so once; the changes left behind by another choice come back at a click.
  screen->ChoosePerson("Zoya");
  Type("txtPerBirthTime", "03.33");
  screen->ChoosePerson("Anvik Telvar");
  EXPECT_EQ(Text("txtPerBirthTime"), "10.50");
  Click("cmdUndo");
  EXPECT_EQ(Text("cmbPerson"), "Zoya");
  EXPECT_EQ(Text("txtPerBirthTime"), "03.33");
  QSignalSpy closed(screen.get(), &frmManageUsers::Closed);
  screen->close();
  EXPECT_EQ(closed.size(), 0);
  screen->close();
  EXPECT_EQ(closed.size(), 1);
}

TEST_F(ManageUsers, AChangeThatCouldNotBeReadIsReadTheNextTime) {
  const auto comeBack = [&] {
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(screen.get(), &activated);
  };
  comeBack();
  ASSERT_EQ(Text("txtPerBirthTime"), "10.50");
  OpenPersons()->Execute("UPDATE Person SET Minutes = 20");
  db->Execute("ALTER TABLE Person RENAME TO Away");
  for (int i = 0; i < 2; ++i) comeBack();
  EXPECT_EQ(notices.Seen().size(), 1U) << "told once, since the box brings the screen back when it closes";
  EXPECT_EQ(Text("txtPerBirthTime"), "10.50");
  db->Execute("ALTER TABLE Away RENAME TO Person");
  comeBack();
  EXPECT_EQ(Text("txtPerBirthTime"), "10.20");
  EXPECT_EQ(notices.Seen().size(), 1U);
}

TEST_F(ManageUsers, ListsGoOutAndComeInAgain) {
  FillNew("Zoya, \"the\" first");
  Click("flpSave");
  const auto before = Store().All();
  for (const char *file : {"persons.csv", "persons.json"}) {
    screen->ExportTo(At(file));
    for (const PersonRecord &person : before) Store().Delete(person.Name);
    screen->ImportFrom(At(file));
    EXPECT_EQ(Store().All(), before) << file;
  }
  Click("cmdUndo");
  EXPECT_TRUE(Store().Names().isEmpty()) << "the list that came in last is taken back";
  EXPECT_TRUE(notices.Seen().empty());
  screen->ImportFrom(At("absent.csv"));
  EXPECT_EQ(notices.Seen().size(), 1U);
}

TEST_F(ManageUsers, TypingNarrowsToTheChosenCountryOnly) {
  Click("flpAddUser");
  Type("cmbBirthCity", "Ujj");
  EXPECT_EQ(Text("cmbBirthCountry"), "India");
  Type("cmbBirthCity", "Lond");
  EXPECT_EQ(Text("cmbBirthCountry"), "United Kingdom") << "a country that came with a city was not chosen";
  Type("cmbBirthCountry", "Canad");
  Type("cmbBirthCity", "London");
  EXPECT_EQ(Text("txtLati"), "042:59");
  Type("cmbBirthCity", "Qqq");
  EXPECT_EQ(Text("txtLati"), "000:00");
  EXPECT_EQ(Text("TextEW"), "E");
  EXPECT_EQ(Text("cmbBirthCity"), "Qqq");

  // Deleting does not bring back what was deleted.
  Type("cmbBirthCity", "Toront");
  EXPECT_EQ(Text("cmbBirthCity"), "Toronto");
  QTest::keyClick(Edit("cmbBirthCity"), Qt::Key_Backspace);
  EXPECT_EQ(Text("cmbBirthCity"), "Toront");
  QTest::keyClick(Edit("cmbBirthCity"), Qt::Key_Backspace);
  EXPECT_EQ(Text("cmbBirthCity"), "Toron");
}

}  // namespace
