// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "StoreFixture.h"

#include "platform/Notices.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"

namespace {

class SettingsTest : public StoreFixture {};

TEST_F(SettingsTest, FileSettingsOutliveTheirObjectAndIgnoreCase) {
  const QString path = At("made/orvani.conf");
  {
    FileUserSettings settings(path);
    EXPECT_EQ(settings.IntValue(SettingKeys::AyanType), 1);
    EXPECT_FALSE(settings.BoolValue(SettingKeys::DoneSetup));
    settings.SetValue("Init", "Kundstyle", "2");
    settings.SetValue("init", "KundStyle", "1");
    settings.SetBoolValue(SettingKeys::DoneSetup, true);
    settings.SetValue("Init", "CustAyan", "23,5; \"x\" = O'Brien");
  }
  const FileUserSettings settings(path);
  EXPECT_EQ(settings.Value("INIT", "KUNDSTYLE"), "1");
  EXPECT_EQ(ReadWholeFile(path).toLower().count("kundstyle"), 1) << "two spellings are one entry";
  EXPECT_TRUE(settings.BoolValue(SettingKeys::DoneSetup));
  EXPECT_EQ(settings.Value(SettingKeys::CustAyan), "23,5; \"x\" = O'Brien");
}

TEST_F(SettingsTest, SeveralSettingsAreOneWrite) {
  const std::vector<UserSettings::Change> changes{{SettingKeys::AyanType, 3}, {"init", "CUSTAYAN", "23.5"}, {SettingKeys::SunriseRule, 2}};
  const QString path = At("several.conf");
  MemoryUserSettings memory;
  FileUserSettings file(path);
  for (UserSettings *settings : std::initializer_list<UserSettings *>{&memory, &file}) {
    settings->SetValue(SettingKeys::CustAyan, "1");
    settings->SetAll(changes);
    EXPECT_EQ(settings->IntValue(SettingKeys::AyanType), 3);
    EXPECT_EQ(settings->Value(SettingKeys::CustAyan), "23.5");
  }
  EXPECT_EQ(FileUserSettings(path).IntValue(SettingKeys::SunriseRule), 2);
  EXPECT_EQ(ReadWholeFile(path).toLower().count("custayan"), 1);

  WriteWholeFile(At("file"), "");
  FileUserSettings unwritable(At("file/orvani.conf"));
  EXPECT_THROW(unwritable.SetAll(changes), StoreError);
  for (const UserSettings::Change &change : changes)
    EXPECT_EQ(unwritable.Value(change.section, change.key), change.value) << "for this run, all of them";
}

TEST_F(SettingsTest, AFileThatCannotBeReadIsToldAndNeverTakenForAnEmptyOne) {
  const std::pair<const char *, QByteArray> unreadable[] = {{"words.conf", "not settings at all"},
                                                            {"bytes.conf", QByteArray("\x00\x01=\x02", 4)}};
  for (const auto &[name, content] : unreadable) {
    WriteWholeFile(At(name), content);
    QString sentence;
    EXPECT_EQ(Refusal([&] { FileUserSettings settings(At(name)); }, &sentence), StoreError::Kind::Damaged) << name;
    EXPECT_TRUE(sentence.contains(At(name))) << sentence;
    EXPECT_EQ(ReadWholeFile(At(name)), content) << "it stays for the user to mend";
  }
  QDir().mkpath(At("folder.conf"));
  EXPECT_EQ(Refusal([&] { FileUserSettings settings(At("folder.conf")); }), StoreError::Kind::NotAFile);
  for (const char *content : {"", "\n", "; none yet\n", "[Init]\n"}) {
    WriteWholeFile(At("sound.conf"), content);
    EXPECT_EQ(FileUserSettings(At("sound.conf")).IntValue(SettingKeys::AyanType), 1) << content;
  }
}

TEST_F(SettingsTest, AnOverlayKeepsItsWritesAndOddTextsFallBack) {
  MemoryUserSettings below;
  below.SetIntValue(SettingKeys::AyanType, 3);
  OverlaySettings above(below);
  EXPECT_EQ(above.IntValue(SettingKeys::AyanType), 3);
  above.SetIntValue(SettingKeys::AyanType, 12);
  EXPECT_EQ(above.IntValue(SettingKeys::AyanType), 12);
  EXPECT_EQ(below.IntValue(SettingKeys::AyanType), 3);

  below.SetValue("Init", "AyanType", "Lahiri");
  EXPECT_EQ(below.IntValue(SettingKeys::AyanType), 1);
  for (const auto &[text, truth] : std::initializer_list<std::pair<const char *, bool>>{
           {"TRUE", true}, {"-1", true}, {"1", true}, {"0", false}, {"x", false}, {"", false}}) {
    below.SetValue("Settings", "A", text);
    EXPECT_EQ(below.BoolValue("Settings", "A", !truth), truth) << text;
  }
}

TEST_F(SettingsTest, AnIniWriteChangesOneLine) {
  const QByteArray before =
      "; mine\r\n\r\n[Other]\r\nLastPerson=none\r\nno entry\r\n\r\n[ORVANI]\r\n# colour\r\n  lastperson = Arun "
      "\r\n;LastPerson=x\r\nbytes=\xff\xfe\r\n\r\n[SHOWERROR]\r\n13=True\r\n";
  const AppPaths paths(At(""));
  const clsIni ini(paths);
  EXPECT_EQ(ini.GetIniString("LastPerson", "nobody"), "nobody");
  WriteWholeFile(paths.IniPath(), before);
  EXPECT_EQ(ini.GetIniString("LASTPERSON", "nobody"), "Arun");
  EXPECT_EQ(ini.GetIniString("13", "", "ShowError"), "True");
  EXPECT_EQ(ini.GetIniString("no entry", "default"), "default");

  ini.WriteIniString("LastPerson", "O'Brien = 1\n");
  ini.WriteIniString("SelLang", QString::fromUtf8("हिन्दी"));
  ini.WriteIniString("New", "1", "Third");
  EXPECT_EQ(ini.GetIniString("LastPerson", ""), "O'Brien = 1");
  EXPECT_EQ(ini.GetIniString("SelLang", ""), QString::fromUtf8("हिन्दी"));
  QByteArray after = before;
  after.replace("  lastperson = Arun \r\n", "  lastperson =O'Brien = 1 \r\n");
  after.replace("bytes=\xff\xfe\r\n", "bytes=\xff\xfe\r\nSelLang=हिन्दी\r\n");
  after.append("\r\n[Third]\r\nNew=1\r\n");
  EXPECT_EQ(ReadWholeFile(paths.IniPath()).toStdString(), after.toStdString());

  // A value that stands there already is no write, and the file is not made anew.
  const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1000000000, Qt::UTC);
  QFile file(paths.IniPath());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(longAgo, QFileDevice::FileModificationTime));
  file.close();
  ini.WriteIniString("lastPerson", " O'Brien = 1\r\n");
  EXPECT_EQ(QFileInfo(paths.IniPath()).lastModified(), longAgo);

  ini.WriteIniString("Long", QString(300, 'x'));
  EXPECT_EQ(ini.GetIniString("Long", "").size(), 255);
  EXPECT_THROW(ini.WriteIniString("a=b", "1"), UsageError);
  EXPECT_THROW(ini.WriteIniString(";a", "1"), UsageError);
}

TEST_F(SettingsTest, AnIniIsMadeWithItsFolderAndAFileInTheWayIsTold) {
  const AppPaths paths(At("fresh"));
  clsIni(paths).WriteIniString("SelLang", "English");
  EXPECT_EQ(ReadWholeFile(At("fresh/EPHE/INIFILES/GENDAT.INI")), "[Orvani]\nSelLang=English\n");
  clsIni(paths).WriteIniString("A", "1", "B", "other.ini");
  EXPECT_EQ(clsIni(paths).GetIniString("a", "", "b", "OTHER.INI"), "1");
  {
    WriteWholeFile(paths.IniPath(), "words of no meaning\nand more\n");
    const NoticeRecorder notices;
    clsIni(paths).WriteIniString("SelLang", "0");
    ASSERT_EQ(notices.Seen().size(), 1U) << "where it lies now is told";
    EXPECT_TRUE(notices.Seen()[0].text.contains("GENDAT.INI.damaged")) << notices.Seen()[0].text;
  }

  QDir().mkpath(At("blocked/EPHE/INIFILES/GENDAT.INI"));
  QString sentence;
  Refusal([&] { clsIni(AppPaths(At("blocked"))).WriteIniString("A", "1"); }, &sentence);
  EXPECT_TRUE(sentence.contains("GENDAT.INI"));
  const NoticeRecorder notices;
  EXPECT_EQ(clsIni(AppPaths(At("blocked"))).GetIniString("A", "usual"), "usual");
  EXPECT_EQ(clsIni(AppPaths(At("blocked"))).GetIniString("B", "usual"), "usual");
  ASSERT_EQ(notices.Seen().size(), 1U) << "one word for all that is asked of it";
  EXPECT_TRUE(notices.Seen()[0].text.contains("GENDAT.INI")) << notices.Seen()[0].text;
}

// Each of two windows holds what it has read; a write of one must not carry the other's old values back.
TEST_F(SettingsTest, TwoWindowsKeepEachOthersSettings) {
  const QString path = At("orvani.conf");
  FileUserSettings one(path), other(path);
  one.SetValue("Init", "AyanType", "3");
  other.SetValue("init", "RAHUKETUMODE", "2");
  one.SetValue("Settings", "DoneSetup", "True");
  EXPECT_EQ(one.IntValue(SettingKeys::RahuKetuMode), 1) << "values stand still until they are asked for anew";
  EXPECT_TRUE(one.Refresh());
  EXPECT_FALSE(one.Refresh());
  EXPECT_EQ(one.IntValue(SettingKeys::RahuKetuMode), 2);
  other.Refresh();
  EXPECT_EQ(other.IntValue(SettingKeys::AyanType), 3);
  one.SetIntValue(SettingKeys::RahuKetuMode, 1);
  EXPECT_EQ(ReadWholeFile(path).toLower().count("rahuketumode"), 1) << "one entry in one spelling";

  // As another program may write it within one tick of the disk's clock: same size, same time.
  QByteArray changed = ReadWholeFile(path);
  changed.replace("AyanType=3", "AyanType=7");
  const QDateTime moment = QFileInfo(path).lastModified();
  WriteWholeFile(path, changed);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(moment, QFileDevice::FileModificationTime));
  file.close();
  one.SetValue("Settings", "DoneSetup", "False");
  EXPECT_EQ(FileUserSettings(path).IntValue(SettingKeys::AyanType), 7);
  EXPECT_TRUE(other.Refresh());
  EXPECT_EQ(other.IntValue(SettingKeys::AyanType), 7);

  QDir().mkpath(path + ".lock");
  EXPECT_EQ(Refusal([&] { other.SetIntValue(SettingKeys::AyanType, 3); }), StoreError::Kind::Locked);
  QDir().rmdir(path + ".lock");
  other.SetIntValue(SettingKeys::KundStyle, 1);
  other.Refresh();
  EXPECT_EQ(other.IntValue(SettingKeys::AyanType), 3) << "for this run, whatever else is stored";
  EXPECT_EQ(FileUserSettings(path).IntValue(SettingKeys::AyanType), 7);
  other.SetIntValue(SettingKeys::AyanType, 7);

  WriteWholeFile(path, "no settings any more");
  EXPECT_FALSE(other.Refresh());
  EXPECT_EQ(other.IntValue(SettingKeys::AyanType), 7) << "the open day keeps its ayanamsha";
  EXPECT_EQ(Refusal([&] { other.SetIntValue(SettingKeys::AyanType, 1); }), StoreError::Kind::Damaged);
  EXPECT_EQ(ReadWholeFile(path), "no settings any more");

  const clsIni ini((AppPaths(At(""))));
  const clsIni same((AppPaths(At(""))));
  ini.WriteIniString("LastPerson", "Mira");
  same.WriteIniString("SelLang", "0");
  ini.WriteIniString("DispName", "Arun");
  EXPECT_EQ(same.GetIniString("LastPerson", "") + same.GetIniString("SelLang", "") + same.GetIniString("DispName", ""), "Mira0Arun");
}

}  // namespace
