// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Every way in which a store can fail a user, through the window's start and through orvani-daily: each is told in words of its own,
// nothing is lost, and the kept copy comes back.
#include <sys/mount.h>
#include <sys/resource.h>

#include <QRandomGenerator>
#include <QSet>
#include <csignal>

#include "app/StoreRescue.h"
#include "faults/FaultFolder.h"
#include "faults/FaultTable.h"
#include "faults/OrdinaryUser.h"
#include "platform/clsIni.h"

namespace {

constexpr int Cases = 100;

class StoreFaults : public FaultFolder {
 protected:
  // One damage of one store through both programs. Gives what became of it.
  std::pair<std::string, std::string> Try(const QString &path, const QByteArray &damage, const QStringList &call) {
    const QByteArray kept = ReadWholeFile(StoreKeeper::KeptPath(path));
    WriteWholeFile(path, damage);

    const Answer printed = Call(call);
    EXPECT_EQ(ReadWholeFile(path), damage) << "a program that only reads changes nothing";
    const QString line = printed.err.section(u'\n', 0, 0);
    const bool isTold = line.contains(path) && line.contains("orvani-daily --restore");
    // A store that is only doubtful is read on, and may hold a birth that cannot be calculated: that is named in a line of its own.
    const bool isNamed = isTold && printed.code == 1 && printed.err.count('\n') == 2;
    std::string daily = "nothing to tell";
    if (printed.code == 1 && isTold) daily = "told with the command that restores";
    if (printed.code == 0 && isTold) daily = "shown with a warning";
    if (isNamed) daily = "a warning, and the record that cannot be used";
    EXPECT_TRUE(isTold || (printed.code == 0 && printed.err.isEmpty())) << printed.code << printed.err;
    EXPECT_EQ(printed.err.count('\n'), isNamed ? 2 : isTold ? 1 : 0) << printed.err;

    questions.clear();
    notices.clear();
    answer = true;
    std::string window = "nothing to tell";
    const auto store = StoreRescue(boxes).Open(path);
    EXPECT_TRUE(store);
    if (!store) return {"lost", daily};
    if (!questions.isEmpty()) {
      window = "told, copy put back";
      EXPECT_EQ(questions.size(), 1);
      EXPECT_TRUE(questions[0].contains(path)) << questions[0];
      EXPECT_EQ(ReadWholeFile(path), kept);
      const QStringList aside = SetAsideOf(path);
      EXPECT_EQ(aside.size(), 1);
      for (const QString &file : aside) {
        EXPECT_EQ(ReadWholeFile(file), damage);
        QFile::remove(file);
      }
    } else {
      // Then every row must be what it was.
      const auto copy = Database::OpenDatabase(StoreKeeper::KeptPath(path), Database::Mode::ReadOnly);
      EXPECT_EQ(Persons(*store), Persons(*copy));
    }
    EXPECT_EQ(window == "nothing to tell", daily == "nothing to tell") << "both programs judge alike";
    WriteWholeFile(StoreKeeper::KeptPath(path), kept);
    return {window, daily};
  }

  struct Store {
    QString path;
    const char *name;
    QStringList call;
  };
  std::vector<Store> Stores() const {
    return {{Recos(), "`RECOS.Dat`", {"--list"}}, {Daily(), "`Daily.dat`", {"--person", "Mira", "--at", "2026-11-21 09:00"}}};
  }
};

}  // namespace

TEST_F(StoreFaults, AStoreCutShortAnywhereComesBack) {
  QRandomGenerator random(20261121);
  for (const Store &store : Stores()) {
    const QByteArray sound = ReadWholeFile(store.path);
    for (int n = 0; n < Cases; ++n) {
      const qsizetype size = random.bounded(static_cast<int>(sound.size()));
      SCOPED_TRACE(size);
      const auto [window, daily] = Try(store.path, sound.first(size), store.call);
      FaultTable::Only().Add(std::string("cut short: ") + store.name, window, daily);
      EXPECT_EQ(window, "told, copy put back");
      EXPECT_EQ(daily, "told with the command that restores");
      if (HasFailure()) return;
    }
  }
}

TEST_F(StoreFaults, AStoreWithChangedBytesIsToldUnlessNoRowIsTouched) {
  QRandomGenerator random(19800723);
  for (const Store &store : Stores()) {
    const QByteArray sound = ReadWholeFile(store.path);
    int told = 0;
    for (int n = 0; n < Cases; ++n) {
      QByteArray damage = sound;
      for (int bytes = 1 << random.bounded(8); bytes > 0; --bytes)
        damage[random.bounded(static_cast<int>(damage.size()))] = static_cast<char>(random.bounded(256));
      SCOPED_TRACE(n);
      const auto [window, daily] = Try(store.path, damage, store.call);
      FaultTable::Only().Add(std::string("bytes changed: ") + store.name, window, daily);
      told += window == "told, copy put back";
      if (HasFailure()) return;
    }
    EXPECT_GT(told, Cases / 4);  // the rest fell into room that holds nothing
  }
}

// The first start of all has no copy yet: what cannot be mended is still told and left as it is.
TEST_F(StoreFaults, WithoutACopyTheDamageIsToldAndLeftAlone) {
  QRandomGenerator random(7);
  for (const Store &store : Stores()) {
    const QByteArray sound = ReadWholeFile(store.path);
    for (int n = 0; n < 10; ++n) {
      const QByteArray damage = sound.first(random.bounded(static_cast<int>(sound.size())));
      QFile::remove(StoreKeeper::KeptPath(store.path));
      WriteWholeFile(store.path, damage);
      notices.clear();
      questions.clear();
      EXPECT_FALSE(StoreRescue(boxes).Open(store.path));
      EXPECT_EQ(questions.size(), 0);
      ASSERT_EQ(notices.size(), 1);
      EXPECT_TRUE(notices[0].contains(store.path)) << notices[0];
      const Answer printed = Call(store.call);
      EXPECT_EQ(printed.code, 1);
      EXPECT_TRUE(printed.err.contains(store.path) && !printed.err.contains("--restore")) << printed.err;
      EXPECT_EQ(ReadWholeFile(store.path), damage);
      EXPECT_FALSE(QFileInfo::exists(StoreKeeper::KeptPath(store.path))) << "no copy is made of a damaged store";
      FaultTable::Only().Add(std::string("cut short, no copy kept yet: ") + store.name, "told, goes on without it", "told");
    }
    WriteWholeFile(store.path, sound);
  }
}

// Everything else that can stand where a store should, each through the whole start of the window, with both answers.
TEST_F(StoreFaults, EachFaultHasItsOwnWordsAndIsMendedByTheCopy) {
  const auto write = [](const QByteArray &content) { return [content](const QString &path) { WriteWholeFile(path, content); }; };
  const struct {
    const char *fault, *words;
    std::function<void(const QString &)> damage;
  } faults[] = {
      {"empty", "is empty", write("")},
      {"another program's format", "not a data file of this program", write("Standard Jet DB, or anything else")},
      {"made by a newer version", "newer version",
       [](const QString &path) { Database::OpenDatabase(path)->Execute("PRAGMA user_version = 9"); }},
      {"missing", "is missing", [](const QString &path) { QFile::remove(path); }},
      {"a folder in its place", "folder",
       [](const QString &path) {
         QFile::remove(path);
         QDir().mkpath(path + "/inside");
       }},
      {"a link into nothing", "is a link to",
       [](const QString &path) {
         QFile::remove(path);
         QFile::link("/nowhere/persons", path);
       }},
  };
  QSet<QString> sentences;
  for (const Store &store : Stores()) {
    const QByteArray sound = ReadWholeFile(store.path);
    for (const auto &[fault, words, damage] : faults) {
      SCOPED_TRACE(std::string(fault) + " " + store.name);
      damage(store.path);
      const Answer printed = Call(store.call);
      EXPECT_EQ(printed.code, 1);
      EXPECT_TRUE(printed.err.contains(words) && printed.err.contains(store.path) && printed.err.contains("--restore")) << printed.err;
      EXPECT_EQ(printed.err.count('\n'), 1);
      sentences.insert(printed.err.section(QStringLiteral(" A copy kept"), 0, 0).remove(store.path));

      // No leaves everything as it lies, and the window opens all the same.
      answer = false;
      ASSERT_TRUE(Start());
      ASSERT_EQ(questions.size(), 1);
      EXPECT_TRUE(questions[0].contains(words) && questions[0].contains("put back")) << questions[0];
      EXPECT_TRUE(screen->isVisible());
      End();
      EXPECT_EQ(SetAsideOf(store.path).size(), 0);

      answer = true;
      ASSERT_TRUE(Start());
      EXPECT_EQ(questions.size(), 1);
      EXPECT_TRUE(screen->Session().OpenStores().personDb && screen->Session().OpenStores().dailyDb);
      End();
      EXPECT_EQ(ReadWholeFile(store.path), sound);
      const bool layThere = std::string(fault) != "missing";
      const QStringList aside = SetAsideOf(store.path);
      EXPECT_EQ(aside.size(), layThere ? 1 : 0) << "what lay there still lies beside it";

      // The same by the command.
      for (const QString &file : aside)
        QFileInfo(file).isDir() && !QFileInfo(file).isSymbolicLink() ? QDir(file).removeRecursively() : QFile::remove(file);
      damage(store.path);
      const Answer restored = Call({"--restore"});
      EXPECT_EQ(restored.code, 0) << restored.err;
      EXPECT_TRUE(restored.out.contains("is again as it was on")) << restored.out;
      EXPECT_EQ(ReadWholeFile(store.path), sound);
      EXPECT_EQ(Call(store.call).code, 0);
      for (const QString &file : SetAsideOf(store.path))
        QFileInfo(file).isDir() && !QFileInfo(file).isSymbolicLink() ? QDir(file).removeRecursively() : QFile::remove(file);
      FaultTable::Only().Add(fault, "told, copy put back or left alone as answered", "told with the command that restores; it does");
    }
  }
  EXPECT_EQ(sentences.size(), static_cast<int>(std::size(faults))) << "each fault has its own sentence";
  const Answer nothingToDo = Call({"--restore"});
  EXPECT_EQ(nothingToDo.code, 0);
  EXPECT_EQ(nothingToDo.out.count("is sound and stays as it is"), 2) << nothingToDo.out;
}

TEST_F(StoreFaults, ALockedStoreIsToldAndTriedAgain) {
  Database::SetBusyTimeout(50);
  QProcess other;
  other.start(QStringLiteral(ORVANI_EDIT_MANY), {data.Path(), data.Path() + "/other.conf", "hold"});
  ASSERT_TRUE(other.waitForReadyRead(20000));
  const Answer printed = Call({"--list"});
  EXPECT_EQ(printed.code, 1);
  EXPECT_TRUE(printed.err.contains("in use by another program") && printed.err.contains(Recos())) << printed.err;

  // The user closes the other program while the question stands.
  whenAsked = [&] {
    other.closeWriteChannel();
    other.waitForFinished();
  };
  EXPECT_TRUE(Start());
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains("in use by another program") && questions[0].contains("Try again")) << questions[0];
  EXPECT_TRUE(screen->Session().OpenStores().personDb);
  End();
  FaultTable::Only().Add("locked by another program", "told, opened at the next try", "told");
  Database::SetBusyTimeout(2000);
}

TEST_F(StoreFaults, AReadOnlyFileOrFolderIsShownAllTheSame) {
  const QString common = QFileInfo(Recos()).path();
  const struct {
    const char *fault, *words;
    QString path;
  } faults[] = {{"read-only file", "is read-only", Recos()}, {"read-only folder", "The folder of the data file", common}};
  const OrdinaryUser user(data.Path(), QStringLiteral(ORVANI_DAILY));
  if (!user.CanStart()) GTEST_SKIP() << "the programs cannot be started by an ordinary user here";
  for (const auto &[fault, words, path] : faults) {
    SCOPED_TRACE(fault);
    const QFile::Permissions former = QFile::permissions(path);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner));
    const QByteArray before = ReadWholeFile(Recos());
    EXPECT_TRUE(Start());
    EXPECT_EQ(questions.size(), 0);
    const QString all = notices.join('\n');
    EXPECT_TRUE(all.contains(words) && all.contains(Recos())) << all;
    const auto db = screen->Session().OpenStores().personDb;
    ASSERT_TRUE(db);
    EXPECT_EQ(db->OpenMode(), Database::Mode::ReadOnly);
    try {
      PersonStore(db, Daily()).Save(Numbered("Mira", 3));
      ADD_FAILURE() << "a read-only store took a change";
    } catch (const StoreError &error) {
      EXPECT_EQ(error.Reason(), StoreError::Kind::ReadOnly) << error.what();
    }
    End();
    const Answer printed = Call({"--list"});
    EXPECT_EQ(printed.code, 0) << printed.err;
    EXPECT_EQ(printed.out, "Anvik Telvar\nArun O'Neil\nMira\nZoya\n");
    EXPECT_EQ(ReadWholeFile(Recos()), before);
    ASSERT_TRUE(QFile::setPermissions(path, former));
    FaultTable::Only().Add(fault, "told, opened for reading", "shown");
  }
}

namespace {

// No file of this program can grow past a size for as long as it lives: what a full disk does, wherever the tests run.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    formerSignal = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit limit{bytes, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerSignal);
  }
  FullDisk(const FullDisk &) = delete;
  FullDisk &operator=(const FullDisk &) = delete;

 private:
  rlimit former{};
  void (*formerSignal)(int) = nullptr;
};

}  // namespace

// A save that fails at each place of it: in the first journal, in the second, in either store.
TEST_F(StoreFaults, AFullDiskLeavesTheOldPersonAndSaysSo) {
  const PersonRecord old = Numbered("Mira", 4);
  const PersonRecord changed = Numbered("Mira", 34);
  int refused = 0;
  for (const qint64 bytes : {0, 1, 512, 4096, 5000, 9000, 14000, 16384, 20000}) {
    SCOPED_TRACE(bytes);
    const auto db = Database::OpenDatabase(Recos());
    PersonStore store(db, Daily());
    QString sentence;
    {
      const FullDisk disk(static_cast<rlim_t>(bytes));
      try {
        store.Save(changed);
      } catch (const StoreError &error) {
        sentence = error.Sentence();
      }
    }
    if (sentence.isEmpty()) {
      EXPECT_EQ(store.Find("Mira"), changed);
      store.Save(old);
      continue;
    }
    ++refused;
    EXPECT_TRUE(sentence.contains("disk is full") && sentence.contains(Recos())) << sentence;
    EXPECT_EQ(store.Find("Mira"), old);
    EXPECT_EQ(PersonStore(Database::OpenDatabase(Recos()), Daily()).Find("Mira"), old) << "to another program too";
    store.Save(changed);
    EXPECT_EQ(store.Find("Mira"), changed) << "once there is room again";
    store.Save(old);
    FaultTable::Only().Add("full disk at a save", "told, the old person stays", "shown");
  }
  EXPECT_GE(refused, 4);
}

TEST_F(StoreFaults, TheProgramsStartOnAFullDisk) {
  const auto kept = ReadWholeFile(StoreKeeper::KeptPath(Recos()));
  Database::OpenDatabase(Recos())->Execute("UPDATE Person SET Day = 9 WHERE Name = 'Mira'");  // so that a copy is due
  const QByteArray ini = ReadWholeFile(data.Paths().IniPath());
  Answer printed;
  {
    const FullDisk disk(0);
    printed = Call({"--list"});
    EXPECT_TRUE(Start());
  }
  EXPECT_EQ(printed.code, 0) << printed.err;
  EXPECT_TRUE(screen->Session().OpenStores().personDb);
  EXPECT_TRUE(notices.join('\n').contains("RECOS.Dat.kept")) << notices.join('\n');
  EXPECT_TRUE(notices.join('\n').contains("GENDAT.INI")) << notices.join('\n');
  EXPECT_EQ(ReadWholeFile(StoreKeeper::KeptPath(Recos())), kept) << "the old copy is better than half of a new one";
  EXPECT_EQ(ReadWholeFile(data.Paths().IniPath()), ini);
  End();
  FaultTable::Only().Add("full disk at the start", "told, goes on, copy and configuration stay", "shown");
}

TEST_F(StoreFaults, SettingsStayWholeOnAFullDisk) {
  const QString path = data.Path() + "/orvani.conf";
  FileUserSettings(path).SetIntValue(SettingKeys::AyanType, 3);
  const QByteArray before = ReadWholeFile(path);
  {
    FileUserSettings stored(path);
    const FullDisk disk(1);
    EXPECT_THROW(stored.SetIntValue(SettingKeys::AyanType, 2), StoreError);
    EXPECT_EQ(stored.IntValue(SettingKeys::AyanType), 2) << "for this run";
  }
  EXPECT_EQ(ReadWholeFile(path), before);
  FaultTable::Only().Add("full disk at a change of the settings", "told, the old settings stay", "shown");
}

TEST_F(StoreFaults, ADiskThatIsReallyFull) {
  const QString disk = data.Path() + "/disk";
  QDir().mkdir(disk);
  if (mount("tmpfs", qPrintable(disk), "tmpfs", 0, "size=5m") != 0) GTEST_SKIP() << "only root can make a small disk";
  {
    const QString recos = disk + "/RECOS.Dat", daily = disk + "/Daily.dat";
    QFile::copy(Recos(), recos);
    QFile::copy(Daily(), daily);
    QFile filler(disk + "/filler");
    EXPECT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) continue;
    filler.close();
    PersonStore store(Database::OpenDatabase(recos), daily);
    const PersonRecord old = store.Find("Mira").value_or(PersonRecord());
    try {
      store.Save(Numbered("Mira", 34));
      ADD_FAILURE() << "the disk was not full";
    } catch (const StoreError &error) {
      EXPECT_EQ(error.Reason(), StoreError::Kind::NoSpace) << error.what();
    }
    EXPECT_EQ(store.Find("Mira"), old);
    filler.remove();
    store.Save(Numbered("Mira", 34));
    EXPECT_EQ(store.Find("Mira"), Numbered("Mira", 34));
  }
  umount(qPrintable(disk));
  FaultTable::Only().Add("full disk at a save", "told, the old person stays", "shown");
}

// GENDAT.INI is no store: without it the usual choices hold.
TEST_F(StoreFaults, AConfigurationThatCannotBeUsedIsToldAndReplacedByTheUsualChoices) {
  const QString ini = data.Paths().IniPath();
  const struct {
    const char *fault, *words;
    std::function<void()> damage;
  } faults[] = {
      {"garbled", "is damaged", [&] { WriteWholeFile(ini, QByteArray("\0\1\2\3[Orvani\nSelLang", 18)); }},
      {"a folder in its place", "folder", [&] { QDir().mkpath(ini + "/inside"); }},
      {"a link into nothing", "", [&] { QFile::link("/nowhere/GENDAT.INI", ini); }},
      {"missing", "", [] {}},
  };
  const QByteArray sound = ReadWholeFile(ini);
  for (const auto &[fault, words, damage] : faults) {
    SCOPED_TRACE(fault);
    QFile::remove(ini);
    damage();
    const QByteArray before = QFileInfo(ini).isFile() ? ReadWholeFile(ini) : QByteArray();
    const Answer printed = Call({"--at", "2026-11-21 09:00"});
    EXPECT_EQ(printed.code, 0) << printed.err;
    EXPECT_TRUE(printed.out.contains("Anvik Telvar")) << "the first person";
    EXPECT_EQ(printed.err.isEmpty(), *words == 0) << printed.err;
    EXPECT_TRUE(printed.err.contains(words)) << printed.err;
    EXPECT_EQ(QFileInfo(ini).isFile() ? ReadWholeFile(ini) : QByteArray(), before);

    EXPECT_TRUE(Start());
    EXPECT_TRUE(notices.join('\n').contains(words)) << notices.join('\n');
    EXPECT_EQ(screen->Session().BirthChart().clsPerson().Name(), "Anvik Telvar");
    End();
    if (!before.isEmpty()) {
      EXPECT_EQ(ReadWholeFile(ini + ".damaged"), before) << "it stays for the user";
    }
    for (const QString &left : {ini, ini + ".damaged"}) {
      QDir(left).removeRecursively();
      QFile::remove(left);
    }
    FaultTable::Only().Add(std::string("`GENDAT.INI`: ") + fault, *words ? "told, usual choices" : "usual choices",
                           *words ? "shown with a warning" : "shown");
  }

  WriteWholeFile(ini, sound);
  const OrdinaryUser user(data.Path(), QStringLiteral(ORVANI_DAILY));
  if (!user.CanStart()) GTEST_SKIP() << "the programs cannot be started by an ordinary user here";
  const QString folder = QFileInfo(ini).path();
  for (const QString &path : {ini, folder}) {
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_TRUE(Start());
    EXPECT_TRUE(notices.join('\n').contains("GENDAT.INI")) << notices.join('\n');
    End();
    EXPECT_EQ(Call({"--list"}).code, 0);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(ReadWholeFile(ini), sound);
    FaultTable::Only().Add("`GENDAT.INI`: read-only file or folder", "told, goes on", "shown");
  }
}

// The settings choose the ayanamsha: without them the chart would silently be another, so the user is asked.
TEST_F(StoreFaults, ADamagedSettingsFileIsSetAsideAfterAQuestion) {
  const QString path = data.Path() + "/orvani.conf";
  WriteWholeFile(path, "not settings at all");
  answer = false;
  EXPECT_FALSE(StoreRescue(boxes).OpenSettings(path));
  EXPECT_EQ(ReadWholeFile(path), "not settings at all");
  answer = true;
  const auto opened = StoreRescue(boxes).OpenSettings(path);
  ASSERT_TRUE(opened);
  opened->SetIntValue(SettingKeys::AyanType, 3);
  EXPECT_EQ(ReadWholeFile(path + ".damaged"), "not settings at all");
  EXPECT_EQ(FileUserSettings(path).IntValue(SettingKeys::AyanType), 3);
  ASSERT_EQ(questions.size(), 2);
  EXPECT_TRUE(questions[0].contains(path)) << questions[0];
  FaultTable::Only().Add("settings garbled", "told, set aside as answered", "told");
}
