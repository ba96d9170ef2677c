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
    for (const char *file : {"COMMON/RECOS.Dat", "COMMON/Daily.dat", "COMMON/LANGS.Dat", "ENGLISH/ENGLISH.DAT", "INIFILES/GENDAT.INI"})
      WriteWholeFile(At("share/EPHE/") + file, version);
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
  const QString kept = StoreKeeper::KeptPath(At("home/orvani/EPHE/COMMON/Daily.dat"));
  const QByteArray residences = ReadWholeFile(Make(kept, {"CREATE TABLE Person (Name TEXT)"}));
  AppPaths::Locate(InstalledAt("share"));
  EXPECT_EQ(content("COMMON/LANGS.Dat"), "2");
  EXPECT_EQ(content("ENGLISH/ENGLISH.DAT"), "2");
  EXPECT_EQ(content("SEED"), "2\n");
  EXPECT_EQ(content("COMMON/RECOS.Dat"), "my persons");
  EXPECT_EQ(content("INIFILES/GENDAT.INI"), "my settings");
  EXPECT_EQ(content("COMMON/Daily.dat"), residences.toStdString()) << "the kept copy goes before an empty store";
  EXPECT_EQ(notices.Seen().size(), 1U);

  // A copy that is damaged too is no copy, and a link into nothing may be a drive that is away.
  QFile::remove(paths.DailyPath());
  WriteWholeFile(kept, residences.first(50));
  QFile::remove(At("home/orvani/EPHE/COMMON/RECOS.Dat"));
  ASSERT_TRUE(QFile::link(At("drive/RECOS.Dat"), At("home/orvani/EPHE/COMMON/RECOS.Dat")));
  QDir().mkpath(At("drive"));
  AppPaths::Locate(InstalledAt("share"));
  EXPECT_EQ(content("COMMON/Daily.dat"), "2");
  EXPECT_EQ(ReadWholeFile(kept), residences.first(50)) << "it stays for somebody who can mend it";
  EXPECT_FALSE(QFileInfo::exists(At("drive/RECOS.Dat")));
}

// Unpacked anywhere, it works in an EPHE beside the program; unpacked anew over that, it renews the texts alone.
TEST_F(DataFolderTest, APortableCopyKeepsItsOwnFolder) {
  const auto unpack = [&](const QByteArray &version) {
    Install(version);
    QDir().mkpath(At("copy/share"));
    QDir(At("copy/share/orvani")).removeRecursively();
    QDir().rename(At("share"), At("copy/share/orvani"));
  };
  AppPaths::Candidates copy{QString(), At("copy"), At("home/orvani"), {At("nowhere")}};
  unpack("1");
  const AppPaths paths = AppPaths::Locate(copy);
  EXPECT_EQ(paths.AppDir(), At("copy"));
  EXPECT_EQ(ReadWholeFile(paths.RecosPath()), "1");
  WriteWholeFile(paths.RecosPath(), "my persons");

  unpack("2");
  EXPECT_EQ(AppPaths::Locate(copy).AppDir(), At("copy"));
  EXPECT_EQ(ReadWholeFile(paths.RecosPath()), "my persons");
  EXPECT_EQ(ReadWholeFile(paths.LangsPath()), "2");
  EXPECT_FALSE(QFileInfo::exists(At("home/orvani")));

  // The folder of the program cannot be written: something is in the way of its EPHE.
  QDir(At("copy/EPHE")).removeRecursively();
  WriteWholeFile(At("copy/EPHE"), "in the way");
  EXPECT_THROW(AppPaths::Locate(copy), StoreError);
  EXPECT_EQ(AppPaths::Locate(copy, AppPaths::Access::Read).AppDir(), At("copy/share/orvani")) << "a reader takes the data as packed";
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
    for (Recordset rows = database->OpenRecordset("SELECT * FROM Language WHERE Include ORDER BY Name"); !rows.AtEnd(); rows.MoveNext())
      names << rows.Field("Name").toString();
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
    QString sentence;
    EXPECT_EQ(Refusal([&] { StoreKeeper::OpenUserStore(path); }, &sentence), StoreError::Kind::Damaged);
    EXPECT_TRUE(sentence.contains("cut short: 3000 of its")) << sentence;
    EXPECT_TRUE(sentence.contains(StoreKeeper::KeptMoment(path)->toString("yyyy-MM-dd HH:mm"))) << sentence;
    EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), kept) << "damage never reaches the copy";

    WriteWholeFile(path + "-journal", "left by a crash");
    EXPECT_EQ(StoreKeeper::RestoreCopy(path), path + aside);
    EXPECT_EQ(ReadWholeFile(path + aside), damage);
    EXPECT_FALSE(QFileInfo::exists(path + "-journal")) << "an old journal would be played into the copy";
    EXPECT_EQ(ReadWholeFile(path + aside + "-journal"), "left by a crash") << "it belongs to the damaged store";
    EXPECT_EQ(StoreKeeper::OpenUserStore(path)->OpenRecordset("Person").RecordCount(), 2);
  }

  WriteWholeFile(StoreKeeper::KeptPath(path), damage);
  const QByteArray before = ReadWholeFile(path);
  EXPECT_EQ(Refusal([&] { StoreKeeper::RestoreCopy(path); }), StoreError::Kind::Damaged);
  EXPECT_EQ(ReadWholeFile(path), before);
}

TEST_F(DataFolderTest, AStoreThatIsDamagedWhileItIsOpenIsNotCopiedAtTheEnd) {
  const QString path = MakePersons();
  const auto store = StoreKeeper::OpenUserStore(path);
  const QByteArray sound = ReadWholeFile(path);
  for (const qsizetype size : {sound.size(), qsizetype{5000}}) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(sound).replace("Mira", "Mara").first(size));
    file.resize(size);
    file.close();
    EXPECT_EQ(Refusal([&] { StoreKeeper::KeepCopy(path); }), StoreError::Kind::Damaged);
    EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), sound);
  }
}

// What a copy must never be made from, and what it must never give way to.
TEST_F(DataFolderTest, AnEmptiedStoreOrADamagedCopyIsNoReasonToLoseTheOther) {
  const QString path = MakePersons();
  const QString kept = StoreKeeper::KeptPath(path);
  StoreKeeper::OpenUserStore(path);
  const QByteArray full = ReadWholeFile(kept);
  for (const QStringList &statements : {QStringList{"DELETE FROM Person"}, {"DROP VIEW qryPersonName", "DROP TABLE Person"}}) {
    RunOutside(path, statements);
    StoreKeeper::OpenUserStore(path);
    EXPECT_EQ(ReadWholeFile(kept), full) << statements.join("; ");
  }
  RunOutside(path, {"CREATE TABLE Person (Name TEXT)", "INSERT INTO Person VALUES ('Nila')"});
  StoreKeeper::OpenUserStore(path);
  EXPECT_EQ(ReadWholeFile(kept), ReadWholeFile(path)) << "a store with persons in it is kept again";

  WriteWholeFile(kept, full.first(6000));
  StoreKeeper::OpenUserStore(path);
  EXPECT_EQ(ReadWholeFile(kept), ReadWholeFile(path));
  EXPECT_EQ(ReadWholeFile(kept + ".damaged"), full.first(6000));
}

TEST_F(DataFolderTest, BytesThatNoSaveChangedAreDoubtedAndWhatASaveLeavesBehindIsNot) {
  const QString path = MakePersons();
  StoreKeeper::OpenUserStore(path);
  const QByteArray sound = ReadWholeFile(path);

  QByteArray changed = sound;
  changed.replace("Mira", "mira");
  WriteWholeFile(path, changed);
  try {
    StoreKeeper::OpenUserStore(path);
    ADD_FAILURE() << "a name that changed by itself went unnoticed";
  } catch (const RestorableError &error) {
    EXPECT_EQ(error.StoreState(), RestorableError::State::Doubtful);
    EXPECT_TRUE(error.Sentence().contains(path)) << error.Sentence();
  }
  EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), sound);
  StoreKeeper::OpenUserStore(path, StoreKeeper::Doubt::Accept);
  EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), changed) << "the user's word";
  StoreKeeper::OpenUserStore(path);

  // A page that holds three rows has room between them: what lies there is nobody's.
  QByteArray leftBehind = ReadWholeFile(path);
  ASSERT_EQ(leftBehind.mid(4096 + 2000, 4), QByteArray(4, '\0'));
  leftBehind.replace(4096 + 2000, 4, "Tara");
  WriteWholeFile(path, leftBehind);
  StoreKeeper::OpenUserStore(path);
  EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(path)), leftBehind);
}

// A link to a store on another drive stays a link, and the damaged file stays on its drive.
TEST_F(DataFolderTest, AStoreBehindALinkComesBackWhereItLay) {
  QDir().mkpath(At("drive"));
  const QString real = MakePersons("drive/RECOS.Dat");
  const QString path = At("RECOS.Dat");
  ASSERT_TRUE(QFile::link(real, path));
  StoreKeeper::OpenUserStore(path);
  const QByteArray sound = ReadWholeFile(real);
  WriteWholeFile(real, sound.first(5000));
  EXPECT_EQ(StoreKeeper::RestoreCopy(path), real + ".damaged");
  EXPECT_TRUE(QFileInfo(path).isSymbolicLink());
  EXPECT_EQ(ReadWholeFile(real), sound);
}

}  // namespace
