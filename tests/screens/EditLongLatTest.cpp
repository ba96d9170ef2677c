// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The screen of places, countries, calculation options and the user's details.
#include <QApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "persons/frmEditLongLat.h"
#include "platform/FileTools.h"
#include "screens/PersonScreen.h"

namespace {

class EditLongLat : public PersonScreen<frmEditLongLat> {
 public:
  EditLongLat() { Open(); }

  void Open() {
    screen = std::make_unique<frmEditLongLat>(db, settings, clsIni(AppPaths(At("app"))));
    screen->show();
  }
  Recordset Cities(const char *name) const { return db->OpenRecordset("SELECT * FROM City WHERE City = ? ORDER BY Country", {name}); }

  MemoryUserSettings settings;
};

TEST_F(EditLongLat, SavesChangesAndDeletesAPlace) {
  EXPECT_EQ(screen->windowTitle(), "Options");
  Click("cmdAdd");
  EXPECT_EQ(Text("txtLat"), "000:00");
  Set("cmbCityList", "O'Town");
  Set("cbocCountry", "Atlantis");
  Set("txtLat", "090:30");
  Set("txtLong", "27:09");
  Click("optSouth");
  Set("txtCitGMT", "-3.30");
  Click("cmdSave");
  ASSERT_EQ(notices.Seen().size(), 1U);
  EXPECT_EQ(notices.Seen()[0].title, "Country Not Found");
  EXPECT_EQ(notices.Seen()[0].text, "Invalid Country, Please Select a Country From The List.");
  EXPECT_TRUE(Cities("O'Town").IsEmpty());

  Set("cbocCountry", "india");
  Click("cmdSave");
  ASSERT_EQ(Cities("O'Town").RecordCount(), 1);
  EXPECT_EQ(Cities("O'Town").Field("Lat").toString(), "09030") << "latitudes up to 180 pass";
  EXPECT_EQ(Cities("O'Town").Field("Longy").toString(), "02709");
  EXPECT_EQ(Cities("O'Town").Field("NOSO").toString(), "S");
  EXPECT_EQ(Cities("O'Town").Field("EaWe").toString(), "E");
  EXPECT_EQ(Cities("O'Town").Field("GMTDIFF").toString(), "-03.30");
  EXPECT_EQ(Text("txtLong"), "027:09");

  Click("cmdChange");
  Click("optWest");
  Click("cmdSave");
  ASSERT_EQ(Cities("O'Town").RecordCount(), 1) << "changed, not added";
  EXPECT_EQ(Cities("O'Town").Field("EaWe").toString(), "W");

  Click("cmdDelete");
  EXPECT_TRUE(Cities("O'Town").IsEmpty());
  Click("cmdUndo");
  EXPECT_EQ(Cities("O'Town").Field("EaWe").toString(), "W");
}

TEST_F(EditLongLat, APlaceIsChosenByTypingAndTheRightOneOfSeveralIsDeleted) {
  Type("cmbCityList", "springfield");
  const int before = Cities("Springfield").RecordCount();
  ASSERT_GT(before, 5);
  EXPECT_TRUE(Find<QLabel>("lblCityNote")->text().contains("Missouri"));
  Click("cmdDelete");
  EXPECT_EQ(Cities("Springfield").RecordCount(), before - 1);
  EXPECT_TRUE(db->OpenRecordset("SELECT * FROM City WHERE City = 'Springfield' AND Region = 'Missouri'").IsEmpty());
  Click("cmdUndo");
  EXPECT_EQ(Cities("Springfield").RecordCount(), before);
}

TEST_F(EditLongLat, WarnsOfAnglesAbove180AndRefusesTheUnreadable) {
  const std::pair<const char *, const char *> fields[] = {{"txtLat", "Invalid Latitude"}, {"txtLong", "Invalid Longitude"}};
  for (const auto &[field, title] : fields) {
    for (const char *text : {"180:00", "090:30", "181:00"}) {
      notices.Clear();
      Set(field, text);
      QFocusEvent leaving(QEvent::FocusOut);
      QApplication::sendEvent(Find<QLineEdit>(field), &leaving);
      EXPECT_EQ(Text(field), text) << "the value stays";
      ASSERT_EQ(notices.Seen().size(), text == std::string("181:00") ? 1U : 0U) << text;
    }
    EXPECT_EQ(notices.Seen()[0].title, title);
    EXPECT_EQ(notices.Seen()[0].text, "Please enter a value under 180.");
  }
  Click("cmdAdd");
  Set("cmbCityList", "Badplace");
  Set("cbocCountry", "India");
  for (const auto &[field, text] : {std::pair("txtLat", "north"), {"txtLong", "181:00"}, {"txtCitGMT", "5"}}) {
    const QString good = Text(field);
    Set(field, text);
    Click("cmdSave");
    EXPECT_TRUE(Cities("Badplace").IsEmpty()) << field;
    EXPECT_FALSE(Fault(field).isEmpty()) << field;
    EXPECT_EQ(Text(field), text);
    Set(field, good);
  }
  Click("cmdSave");
  EXPECT_EQ(Cities("Badplace").RecordCount(), 1);
}

TEST_F(EditLongLat, CountriesAreAddedChangedAndDeleted) {
  const auto difference = [&](const char *name) {
    const Recordset row = db->OpenRecordset("SELECT * FROM Country WHERE Name = ?", {name});
    return row.RecordCount() == 1 ? row.Field("GMTDIF").toString() : QString::number(row.RecordCount());
  };
  Click("cmdCAdd");
  EXPECT_EQ(Text("txtGMTDiff"), "+00.00");
  EXPECT_EQ(Text("cboCNTRY"), "");
  Set("cboCNTRY", "Utopia");
  Set("txtGMTDiff", "2.30");
  Click("cmdCSave");
  EXPECT_EQ(difference("Utopia"), "+02.30");
  Click("cmdCModify");
  Set("cboCNTRY", "New Utopia");
  Click("cmdCSave");
  EXPECT_EQ(difference("Utopia"), "0");
  EXPECT_EQ(difference("New Utopia"), "+02.30");
  Click("cmdCDel");
  EXPECT_EQ(difference("New Utopia"), "0");
  Click("cmdUndo");
  EXPECT_EQ(difference("New Utopia"), "+02.30");
  EXPECT_GE(Find<QComboBox>("cbocCountry")->findText("New Utopia"), 0) << "both lists are filled again";

  // One that is in the list already is changed, and that can be taken back; a change to another's name is not let pass.
  Click("cmdCAdd");
  Set("cboCNTRY", "INDIA");
  emit Find<QComboBox>("cboCNTRY")->lineEdit()->editingFinished();
  Set("txtGMTDiff", "1.00");
  Click("cmdCSave");
  EXPECT_EQ(difference("India"), "+01.00");
  Click("cmdUndo");
  EXPECT_EQ(difference("India"), "+05.30");
  EXPECT_EQ(Text("cboCNTRY"), "India") << "with its own letters";
  Click("cmdCModify");
  Set("cboCNTRY", "Nepal");
  Click("cmdCSave");
  EXPECT_TRUE(Fault("txtGMTDiff").contains("Nepal is in the list already"));
  EXPECT_EQ(difference("Nepal"), "+05.45");
  EXPECT_EQ(difference("India"), "+05.30");
}

TEST_F(EditLongLat, AChangedPlaceCanBeTakenBackWhole) {
  Type("cmbCityList", "agra");
  const auto agra = [&] { return db->OpenRecordset("SELECT * FROM City WHERE Region = 'Uttar Pradesh' AND City LIKE 'Agra%'"); };
  const QString zone = agra().Field("Zone").toString();
  Click("cmdChange");
  Set("cmbCityList", "Lima");
  Set("cbocCountry", "Peru");
  Click("cmdSave");
  EXPECT_TRUE(agra().IsEmpty()) << "another place now";
  Click("cmdUndo");
  ASSERT_EQ(agra().RecordCount(), 1);
  EXPECT_EQ(agra().Field("Zone").toString(), zone);
  EXPECT_EQ(Text("cbocCountry"), "India");
}

TEST_F(EditLongLat, OptionsAndDetailsAreKept) {
  for (const auto &[stored, chosen] :
       {std::pair("", "optLahiri"), {"3", "optKP"}, {"12", "optSayan"}, {"13", "optCustom"}, {"15", "optLahiri"}}) {
    if (*stored) settings.SetValue(SettingKeys::AyanType, stored);
    Open();
    EXPECT_TRUE(Find<QAbstractButton>(chosen)->isChecked()) << stored;
    EXPECT_TRUE(Find<QAbstractButton>("optVakya")->isHidden());
    EXPECT_TRUE(Find<QWidget>("framMethod")->isHidden());
  }
  EXPECT_EQ(Text("txtCustAyan"), "00.00");
  Click("optCustom");
  Click("optRahuTrue");
  EXPECT_TRUE(Find<QAbstractButton>("optDivisionsHouse")->isChecked() && Find<QAbstractButton>("optSunriseCentre")->isChecked());
  Click("optDivisionsExact");
  Click("optSunriseLimb");
  for (const char *degrees : {"23,5", "99999999999"}) {
    Set("txtCustAyan", degrees);
    Click("cmdSaveAyanKundStyle");
    EXPECT_EQ(settings.IntValue(SettingKeys::AyanType), 15) << "no chart can be calculated with " << degrees;
  }
  Set("txtCustAyan", "23.50");
  Click("cmdSaveAyanKundStyle");
  EXPECT_EQ(settings.IntValue(SettingKeys::AyanType), 13);
  EXPECT_EQ(settings.IntValue(SettingKeys::RahuKetuMode), 2);
  EXPECT_EQ(settings.Value(SettingKeys::CustAyan), "23.50");
  EXPECT_EQ(settings.IntValue(SettingKeys::DayDivisions), 2);
  EXPECT_EQ(settings.IntValue(SettingKeys::SunriseRule), 2);

  Set("txtName", "Asha");
  Find<QPlainTextEdit>("txtAddress")->setPlainText("12 Ghat Road");
  Click("cmdSaveYourDet");
  const clsIni ini(AppPaths(At("app")));
  EXPECT_EQ(ini.GetIniString("DispName", ""), "Asha");
  EXPECT_EQ(ini.GetIniString("DispAdd", ""), "12 Ghat Road");
}

TEST_F(EditLongLat, OptionsThatCannotBeKeptAllHoldForThisRun) {
  WriteWholeFile(At("file"), "");
  FileUserSettings unwritable(At("file/orvani.conf"));
  screen = std::make_unique<frmEditLongLat>(db, unwritable, clsIni(AppPaths(At("app"))));
  const QSignalSpy followed(screen.get(), &frmEditLongLat::CalculationChanged);
  Click("optKP");
  Click("optRahuTrue");
  Click("optSunriseLimb");
  Click("cmdSaveAyanKundStyle");
  EXPECT_EQ(notices.Seen().size(), 1U);
  EXPECT_EQ(followed.size(), 1);
  EXPECT_EQ(unwritable.IntValue(SettingKeys::AyanType), 3);
  EXPECT_EQ(unwritable.IntValue(SettingKeys::RahuKetuMode), 2);
  EXPECT_EQ(unwritable.IntValue(SettingKeys::SunriseRule), 2);
}

}  // namespace
