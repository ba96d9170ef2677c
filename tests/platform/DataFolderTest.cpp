// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "StoreFixture.h"

#include "platform/DataFiles.h"
#include "platform/Notices.h"
#include "platform/StoreKeeper.h"

namespace {

class DataFolderTest : public StoreFixture {
 public:
  AppPaths::Candidates InstalledAt(const QString &folder) const {
    return {QString(), At("bin"), At("home/orvani"), {At("nowhere"), At(folder)}};
  }

  void Install(const QByteArray &version) const {
    for (const char *file : {"COMMON/RECOS.Dat", "COMMON/Daily.dat", "COMMON/LANGS.Dat", "ENGLISH/ENGLISH.DAT", "INIFILES/GENDAT.INI"}) {
      WriteWholeFile(At("share/EPHE/") + file, version);
    }
    WriteWholeFile(At("share/EPHE/SEED"), version + '\n');
  }
};

TEST_F(DataFolderTest, NamesAreFoundWhateverTheirCase) {
  WriteWholeFile(At("app/Ephe/Common/recos.DAT"), "x");
  const AppPaths paths(At("app"));
  EXPECT_EQ(paths.RecosPath(), At("app/Ephe/Common/recos.DAT"));
  EXPECT_EQ(paths.Ephe("COMMON\\RECOS.Dat"), paths.RecosPath());
  EXPECT_EQ(paths.LanguageDataPath("HINDI"), At("app/Ephe/HINDI/HINDI.DAT"));
  EXPECT_EQ(paths.Ephe("common/New.txt"), At("app/Ephe/Common/New.txt"));
}

TEST_F(DataFolderTest, TheApplicationFolderIsChosenInOrder) {
  EXPECT_THROW(AppPaths::Locate(InstalledAt("share")), MissingFileError);
  Install("1");
  EXPECT_EQ(AppPaths::Locate(InstalledAt("share")).AppDir(), At("home/orvani"));
  WriteWholeFile(At("bin/EPHE/COMMON/LANGS.Dat"), "");
  EXPECT_EQ(AppPaths::Locate(InstalledAt("share")).AppDir(), At("bin"));
  AppPaths::Candidates named = InstalledAt("share");
  named.explicitAppDir = At("share/");
  EXPECT_EQ(AppPaths::Locate(named).AppDir(), At("share"));
  named.explicitAppDir = At("empty");
  EXPECT_THROW(AppPaths::Locate(named), MissingFileError);
}

TEST_F(DataFolderTest, AReaderDoesWithoutAFolderThatCannotBeWritten) {
  Install("1");
  WriteWholeFile(At("home"), "in the way");
  EXPECT_THROW(AppPaths::Locate(InstalledAt("share")), StoreError);
  EXPECT_EQ(AppPaths::Locate(InstalledAt("share"), AppPaths::Access::Read).AppDir(), At("share"));

  QFile::remove(At("home"));
  AppPaths::Locate(InstalledAt("share"));
  Install("2");
  QFile::remove(At("home/orvani/EPHE/ENGLISH/ENGLISH.DAT"));
  QDir().rmdir(At("home/orvani/EPHE/ENGLISH"));
  WriteWholeFile(At("home/orvani/EPHE/ENGLISH"), "in the way");
  EXPECT_THROW(AppPaths::Locate(InstalledAt("share")), StoreError);
  EXPECT_EQ(AppPaths::Locate(InstalledAt("share"), AppPaths::Access::Read).AppDir(), At("home/orvani")) << "the user's persons are there";
}

TEST_F(DataFolderTest, AnUpgradeRenewsTextsAndNeverTheUsersOwn) {
  const NoticeRecorder notices;
  Install("1");
  const QStringList leftByARun{"COMMON/RECOS.Dat.kept", "COMMON/Daily.dat.2.damaged"};
  for (const QString &file : leftByARun) WriteWholeFile(At("share/EPHE/") + file, "another user's");
  const AppPaths paths = AppPaths::Locate(InstalledAt("share"));
  const auto content = [&](const char *file) { return ReadWholeFile(paths.Ephe(file)).toStdString(); };
  EXPECT_EQ(content("COMMON/RECOS.Dat"), "1");
  EXPECT_EQ(content("SEED"), "1\n");
  for (const QString &file : leftByARun) EXPECT_FALSE(QFileInfo::exists(At("home/orvani/EPHE/") + file)) << file;

  WriteWholeFile(paths.RecosPath(), "my persons");
  WriteWholeFile(paths.IniPath(), "my settings");
  WriteWholeFile(paths.LangsPath(), "1, with flags");
  AppPaths::Locate(InstalledAt("share"));
  EXPECT_EQ(content("COMMON/LANGS.Dat"), "1, with flags") << "nothing is copied while the version is the same";

  Install("2");
  QFile::remove(paths.LanguageDataPath("ENGLISH"));
  QFile::remove(paths.DailyPath());
  WriteWholeFile(StoreKeeper::KeptPath(At("home/orvani/EPHE/COMMON/Daily.dat")), "my residences");
  AppPaths::Locate(InstalledAt("share"));
  EXPECT_EQ(content("COMMON/LANGS.Dat"), "2");
  EXPECT_EQ(content("ENGLISH/ENGLISH.DAT"), "2");
  EXPECT_EQ(content("SEED"), "2\n");
  EXPECT_EQ(content("COMMON/RECOS.Dat"), "my persons");
  EXPECT_EQ(content("INIFILES/GENDAT.INI"), "my settings");
  EXPECT_EQ(content("COMMON/Daily.dat"), "my residences") << "the kept copy goes before an empty store";
  EXPECT_EQ(notices.Seen().size(), 1U);
}

TEST_F(DataFolderTest, AMissingDataFileIsNamedInTheFixedWords) {
  const AppPaths paths(At("app"));
  const QStringList files{"CONYEAR.DAT", "SADESAT.Dat", "SCGRAHA.DAT", "SCRASI.DAT", "SCYONI.DAT", "LANGS.Dat", "WAIT.AVI"};
  for (const QString &file : files) {
    try {
      DataFiles::CheckDataFiles(paths);
      ADD_FAILURE() << file << " was not missed";
    } catch (const MissingFileError &error) {
      EXPECT_EQ(error.Title(), "File Not Found");
      EXPECT_EQ(error.Sentence(), "File '" + At("app/EPHE/COMMON/" + file) + "' Was Not Found.\nPlease Re-Install.");
    }
    WriteWholeFile(At("app/EPHE/COMMON/" + file.toLower()), "");
  }
  DataFiles::CheckDataFiles(paths);
  DataFiles::CheckFileExists(paths, At("app/EPHE/COMMON/wait.avi"));
  EXPECT_THROW(DataFiles::CheckFileExists(paths, "C:\\wait.avi"), MissingFileError);
  EXPECT_THROW(DataFiles::CheckFileExists(paths, "COMMON"), MissingFileError);
}

TEST_F(DataFolderTest, ALanguageIsOfferedExactlyWhileItsFileExists) {
  const AppPaths paths(At("app"));
  Make(paths.LangsPath(), {"CREATE TABLE Language (Name TEXT, Directory TEXT, Include BOOLEAN)",
                           "INSERT INTO Language VALUES ('English', 'ENGLISH', 0), ('Hindi', 'HINDI', 1), ('None', NULL, NULL)"});
  WriteWholeFile(paths.LanguageDataPath("English"), "");
  const auto offered = [&] {
    QStringList names;
    const auto database = Database::OpenDatabase(paths.LangsPath());
    for (Recordset rows = database->OpenRecordset("SELECT * FROM Language WHERE Include ORDER BY Name"); !rows.AtEnd(); rows.MoveNext()) {
      names << rows.Field("Name").toString();
    }
    return names.join(",");
  };
  const NoticeRecorder notices;
  RunOutside(paths.LangsPath(), {"BEGIN IMMEDIATE"}, [&] { DataFiles::CheckLanguages(paths); });
  EXPECT_EQ(notices.Seen().size(), 1U) << "a list that cannot be written is a notice";
  EXPECT_EQ(offered(), "Hindi");
  DataFiles::CheckLanguages(paths);
  EXPECT_EQ(offered(), "English");
  WriteWholeFile(paths.LanguageDataPath("HINDI"), "");
  DataFiles::CheckLanguages(paths);
  EXPECT_EQ(offered(), "English,Hindi");
  const QByteArray settled = ReadWholeFile(paths.LangsPath());
  DataFiles::CheckLanguages(paths);
  EXPECT_EQ(ReadWholeFile(paths.LangsPath()), settled) << "nothing is written when nothing differs";
}

TEST_F(DataFolderTest, ADamagedStoreComesBackFromItsKeptCopyAndIsNotLost) {
  const QString path = MakePersons();
  StoreKeeper::OpenUserStore(path)->Execute("DELETE FROM Person WHERE Name = 'Zoya'");
  StoreKeeper::OpenUserStore(path);
  ASSERT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), ReadWholeFile(path)) << "the copy follows the store";

  const QByteArray damage = ReadWholeFile(path).first(3000);
  const QByteArray kept = ReadWholeFile(StoreKeeper::KeptPath(path));
  for (const char *aside : {".damaged", ".2.damaged"}) {
    WriteWholeFile(path, damage);
    WriteWholeFile(path + "-journal", "left by a crash");
    QString sentence;
    EXPECT_EQ(Refusal([&] { StoreKeeper::OpenUserStore(path); }, &sentence), StoreError::Kind::Damaged);
    EXPECT_TRUE(sentence.contains(StoreKeeper::KeptMoment(path)->toString("yyyy-MM-dd HH:mm"))) << sentence;
    EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), kept) << "damage never reaches the copy";

    EXPECT_EQ(StoreKeeper::RestoreCopy(path), path + aside);
    EXPECT_EQ(ReadWholeFile(path + aside), damage);
    EXPECT_FALSE(QFileInfo::exists(path + "-journal")) << "an old journal would be played into the copy";
    EXPECT_EQ(StoreKeeper::OpenUserStore(path)->OpenRecordset("Person").RecordCount(), 2);
  }

  WriteWholeFile(StoreKeeper::KeptPath(path), damage);
  const QByteArray before = ReadWholeFile(path);
  EXPECT_EQ(Refusal([&] { StoreKeeper::RestoreCopy(path); }), StoreError::Kind::Damaged);
  EXPECT_EQ(ReadWholeFile(path), before);
}

}  // namespace
