// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTest>

#include "chart/Kundali.h"
#include "content/frmSettings.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "support/DataFolder.h"

namespace {

class SettingsWizard : public testing::Test {
 protected:
  void Open() {
    wizard = std::make_unique<frmSettings>(settings, ini);
    wizard->show();
  }
  QAbstractButton &Button(const char *name) { return *wizard->findChild<QAbstractButton *>(QLatin1String(name)); }
  QLineEdit &Field(const char *name) { return *wizard->findChild<QLineEdit *>(QLatin1String(name)); }
  QString Frame() { return wizard->findChild<QStackedWidget *>()->currentWidget()->objectName(); }
  QString Set(std::initializer_list<const char *> names) {
    for (const char *name : names)
      if (Button(name).isChecked()) return QLatin1String(name);
    return {};
  }
  void Finish() {
    for (int i = 0; i < 3; ++i) Button("flpNextFrame").click();
    Button("flpFinish").click();
  }

  DataFolder data;
  clsIni ini{data.Paths()};
  MemoryUserSettings settings;
  NoticeRecorder notices;
  std::unique_ptr<frmSettings> wizard;
};

}  // namespace

TEST_F(SettingsWizard, StepsGoForwardAndBack) {
  Open();
  const char *frames[] = {"framAyanamsha", "framKundaliStyle", "framRahuKetu", "framYourDetails"};
  for (int at : {0, 1, 2, 3, 2, 3}) {
    if (Frame() != frames[at]) Button(Frame() == frames[3] ? "flpPrevFrame" : "flpNextFrame").click();
    EXPECT_EQ(Frame(), frames[at]);
    EXPECT_EQ(Button("flpPrevFrame").isEnabled(), at > 0);
    EXPECT_EQ(Button("flpNextFrame").isEnabled(), at < 3);
    EXPECT_EQ(Button("flpFinish").isEnabled(), at == 3);
  }
}

TEST_F(SettingsWizard, ReadsAndWritesEveryChoice) {
  struct Row {
    const char *ayanType, *nodeMode, *style, *divisions, *sunrise;  // stored before; null for never stored
    const char *ayanOption, *nodeOption, *styleOption;              // shown; empty for none
    bool exact, limb;
    const char *ayanAfter, *nodeAfter, *styleAfter;  // after Finish with nothing changed
  };
  const Row rows[] = {
      {nullptr, nullptr, nullptr, nullptr, nullptr, "optLahiri", "optRahuMean", "optNorthKundli", false, false, "1", "1", "0"},
      {"2", "2", "1", "2", "2", "optRaman", "optRahuTrue", "optEastKundli", true, true, "2", "2", "1"},
      {"3", "7", "2", "7", "0", "optKP", "optRahuTrue", "optSouthKundli", false, false, "3", "2", "2"},
      {"12", "1", "5", "2", "1", "optSayan", "optRahuMean", "", true, false, "12", "1", "2"},
      {"13", "1", "0", "1", "2", "", "optRahuMean", "optNorthKundli", false, true, "13", "1", "0"},
  };
  for (const Row &row : rows) {
    settings = MemoryUserSettings();
    if (row.ayanType) settings.SetValue(SettingKeys::AyanType, row.ayanType);
    if (row.nodeMode) settings.SetValue(SettingKeys::RahuKetuMode, row.nodeMode);
    if (row.style) settings.SetValue("Init", "Kundstyle", row.style);
    if (row.divisions) settings.SetValue(SettingKeys::DayDivisions, row.divisions);
    if (row.sunrise) settings.SetValue(SettingKeys::SunriseRule, row.sunrise);
    Open();
    EXPECT_TRUE(Button("optDivisionsExact").isVisible()) << "on the first step";
    EXPECT_EQ(Set({"optLahiri", "optRaman", "optKP", "optSayan"}), row.ayanOption);
    EXPECT_EQ(Set({"optRahuMean", "optRahuTrue"}), row.nodeOption);
    EXPECT_EQ(Set({"optNorthKundli", "optEastKundli", "optSouthKundli"}), row.styleOption);
    EXPECT_EQ(Set({"optDivisionsHouse", "optDivisionsExact"}), row.exact ? "optDivisionsExact" : "optDivisionsHouse");
    EXPECT_EQ(Set({"optSunriseCentre", "optSunriseLimb"}), row.limb ? "optSunriseLimb" : "optSunriseCentre");
    Finish();
    EXPECT_EQ(wizard->result(), QDialog::Accepted);
    EXPECT_EQ(settings.Value(SettingKeys::AyanType), row.ayanAfter);
    EXPECT_EQ(settings.Value(SettingKeys::RahuKetuMode), row.nodeAfter);
    EXPECT_EQ(settings.Value(SettingKeys::KundStyle), row.styleAfter);
  }
  settings = MemoryUserSettings();
  Open();
  Button("optDivisionsExact").click();
  Button("optSunriseLimb").click();
  EXPECT_EQ(Set({"optLahiri"}), "optLahiri") << "each group keeps its own choice";
  Finish();
  EXPECT_EQ(settings.Value(SettingKeys::DayDivisions), "2");
  EXPECT_EQ(settings.Value(SettingKeys::SunriseRule), "2");
}

TEST_F(SettingsWizard, KeepsTheDetailsAndTakesAChartForItsOption) {
  Open();
  Button("flpNextFrame").click();
  emit wizard->findChildren<Kundali *>()[2]->Click();
  Field("txtName").setText("Amala O'Brien");
  Field("txtAddress").setText("7; Hill Road = Agra");
  Button("flpNextFrame").click();
  Button("flpNextFrame").click();
  QTest::keyClick(&Field("txtAddress"), Qt::Key_Return);  // finishes, as the default button
  EXPECT_FALSE(wizard->isVisible());
  EXPECT_EQ(settings.Value(SettingKeys::KundStyle), "2");
  Open();
  EXPECT_EQ(Field("txtName").text(), "Amala O'Brien");
  EXPECT_EQ(Field("txtAddress").text(), "7; Hill Road = Agra");
}

TEST_F(SettingsWizard, CancelWritesNothingAndSaysSo) {
  Open();
  Button("optKP").click();
  Field("txtName").setText("Nobody");
  QTest::keyClick(wizard.get(), Qt::Key_Escape);
  EXPECT_FALSE(wizard->isVisible());
  EXPECT_FALSE(settings.Stored("Init", "AyanType").has_value());
  EXPECT_NE(ini.GetIniString("DispName", ""), "Nobody");
  ASSERT_EQ(notices.Seen().size(), 1U);
  EXPECT_EQ(notices.Seen()[0].title, "Settings Wizard not completed");
  EXPECT_EQ(notices.Seen()[0].text,
            "You have chosen to cancel Settings Wizard. Settings have not been changed.\r\n"
            "You can run Setup Wizard later by clicking on 'Settings'");
}

TEST_F(SettingsWizard, WhatCannotBeWrittenStaysOnTheScreen) {
  Open();
  QFile::remove(data.Paths().IniPath());
  QDir().mkpath(data.Paths().IniPath());  // a folder in the file's place
  Field("txtName").setText("Amala");
  Finish();
  EXPECT_TRUE(wizard->isVisible());
  EXPECT_EQ(Field("txtName").text(), "Amala");
  EXPECT_EQ(notices.Seen().size(), 1U);
  EXPECT_FALSE(settings.Stored("Init", "AyanType").has_value());
}

TEST_F(SettingsWizard, CancelAfterAFailedFinishTellsWhatHolds) {
  class FullDisk : public MemoryUserSettings {
   public:
    void SetAll(const std::vector<Change> &changes) override {
      MemoryUserSettings::SetAll(changes);
      throw StoreError("The disk is full.");
    }
  };
  FullDisk full;
  frmSettings failing(full, ini);
  failing.show();
  for (int i = 0; i < 3; ++i) failing.findChild<QAbstractButton *>("flpNextFrame")->click();
  failing.findChild<QAbstractButton *>("flpFinish")->click();
  EXPECT_TRUE(failing.isVisible());
  failing.findChild<QAbstractButton *>("flpCancel")->click();
  EXPECT_FALSE(failing.isVisible());
  ASSERT_EQ(notices.Seen().size(), 2U);
  EXPECT_EQ(notices.Seen()[1].text,
            "You have chosen to cancel Settings Wizard. The settings could not be stored; what you last finished with holds until the "
            "program ends.\r\nYou can run Setup Wizard later by clicking on 'Settings'");
}
