// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/StoreKeeper.h"

#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/Recordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

using Kind = StoreError::Kind;

// Files that the store engine lays beside a store. Left there, they would be played into the copy that is put back.
constexpr std::array Companions{"-journal", "-wal", "-shm"};

// The bytes of a store, and nobody writes into it for as long as this lives. The file stays open to the end: the system gives up all
// locks of a program on a file as soon as the program closes that file anywhere.
class HeldFile {
 public:
  explicit HeldFile(Database &held) : file(held.Path()), store(held) {
    if (!file.open(QIODevice::ReadOnly)) ReadWholeFile(store.Path());  // tells the reason
    store.Execute(QStringLiteral("BEGIN"));
    try {
      store.OpenRecordset(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    } catch (const StoreError &) {
      LetGo();
      throw;
    }
  }
  ~HeldFile() { LetGo(); }
  HeldFile(const HeldFile &) = delete;
  HeldFile &operator=(const HeldFile &) = delete;

  QByteArray Content() {
    file.seek(0);
    return file.readAll();
  }

 private:
  void LetGo() {
    try {
      store.Execute(QStringLiteral("ROLLBACK"));
    } catch (const StoreError &) {
      // Nothing was written, so there is nothing to undo.
    }
  }

  QFile file;
  Database &store;
};

// The count of saves in a store's head. Each save raises it, and the second place where it is written follows.
QByteArray SaveCount(const QByteArray &content) { return content.mid(24, 4); }
bool IsCountWhole(const QByteArray &content) { return SaveCount(content) == content.mid(92, 4); }

QStringList Tables(Database &store, const QString &schema) {
  QStringList names;
  for (Recordset rows = store.OpenRecordset(QStringLiteral("SELECT name FROM %1.sqlite_master WHERE type = 'table'").arg(schema));
       !rows.AtEnd(); rows.MoveNext())
    names << rows.Field(QStringLiteral("name")).toString();
  return names;
}

QString Quoted(QString name) { return u'"' + name.replace(u'"', QStringLiteral("\"\"")) + u'"'; }

bool HasRows(Database &store, const QString &schema, const QString &table) {
  return !store.OpenRecordset(QStringLiteral("SELECT 1 AS Answer FROM %1.%2 LIMIT 1").arg(schema, Quoted(table))).IsEmpty();
}

// The kept copy's tables beside the store's, for questions over both.
class BesideCopy {
 public:
  explicit BesideCopy(Database &opened) : store(opened) { store.Attach(StoreKeeper::KeptPath(store.Path()), QStringLiteral("kept")); }
  ~BesideCopy() {
    try {
      store.Detach(QStringLiteral("kept"));
    } catch (const StoreError &) {
      // It goes with the store's own connection.
    }
  }
  BesideCopy(const BesideCopy &) = delete;
  BesideCopy &operator=(const BesideCopy &) = delete;

  bool CopyHoldsWhatTheStoreLost() const {
    const QStringList present = Tables(store, QStringLiteral("main"));
    for (const QString &table : Tables(store, QStringLiteral("kept"))) {
      const bool isLost = !present.contains(table, Qt::CaseInsensitive) || !HasRows(store, QStringLiteral("main"), table);
      if (isLost && HasRows(store, QStringLiteral("kept"), table)) return true;
    }
    return false;
  }

  bool HasSameTables() const { return IsSame(QStringLiteral("sqlite_master")); }

  // Whether every row of every table and every index say the same. A save that was cut off leaves bytes behind in pages that hold nothing.
  bool HasSameRows() const {
    const Recordset check = store.OpenRecordset(QStringLiteral("PRAGMA main.integrity_check(1)"));
    if (check.IsEmpty() || check.Field(QStringLiteral("integrity_check")).toString() != QLatin1String("ok")) return false;
    const QStringList tables = Tables(store, QStringLiteral("kept"));
    return std::all_of(tables.begin(), tables.end(), [this](const QString &table) { return IsSame(table); });
  }

 private:
  // Every value written out, so that columns which take "a" and "A" for the same are compared to the letter.
  QString RowsOf(const QString &schema, const QString &table) const {
    QStringList values{QStringLiteral("rowid")};
    for (Recordset column = store.OpenRecordset(QStringLiteral("PRAGMA kept.table_info(%1)").arg(Quoted(table))); !column.AtEnd();
         column.MoveNext())
      values << QStringLiteral("quote(%1)").arg(Quoted(column.Field(QStringLiteral("name")).toString()));
    return QStringLiteral("SELECT %1 FROM %2.%3").arg(values.join(u','), schema, Quoted(table));
  }

  bool IsSame(const QString &table) const {
    const QString here = RowsOf(QStringLiteral("main"), table);
    const QString there = RowsOf(QStringLiteral("kept"), table);
    const QString differs = QStringLiteral("SELECT 1 AS Answer FROM (%1 EXCEPT %2) LIMIT 1");
    return store.OpenRecordset(differs.arg(here, there)).IsEmpty() && store.OpenRecordset(differs.arg(there, here)).IsEmpty();
  }

  Database &store;
};

}  // namespace

std::optional<QDateTime> StoreKeeper::KeptMoment(const QString &path) {
  const QFileInfo kept(KeptPath(path));
  return kept.isFile() ? std::optional<QDateTime>(kept.lastModified()) : std::nullopt;
}

std::optional<QDateTime> StoreKeeper::SoundCopyMoment(const QString &path) {
  const std::optional<QDateTime> moment = KeptMoment(path);
  if (moment) {
    try {
      Database::OpenDatabase(KeptPath(path), Database::Mode::ReadOnly);
    } catch (const StoreError &) {
      return std::nullopt;
    }
  }
  return moment;
}

std::shared_ptr<Database> StoreKeeper::Open(const QString &path, Database::Mode mode, Doubt doubt) {
  const auto offer = [&](const StoreError &error, RestorableError::State state) {
    const std::optional<QDateTime> moment = SoundCopyMoment(path);
    if (!moment) throw error;
    throw RestorableError(error.Sentence() + u' ' + tr("A copy kept on %1 can be put back.").arg(moment->toString(MomentFormat)),
                          error.Reason(), state);
  };
  try {
    const auto store = Database::OpenDatabase(path, mode, Database::Check::HeadOnly);
    CheckContent(*store, doubt);
    store->UseRollbackJournal();
    return store;
  } catch (const RestorableError &doubtful) {
    offer(doubtful, doubtful.StoreState());
  } catch (const StoreError &error) {
    switch (error.Reason()) {
      case Kind::Damaged:
      case Kind::Missing:
      case Kind::Foreign:
      case Kind::NotAFile:
      case Kind::NewerVersion: offer(error, RestorableError::State::Unusable); break;
      default: throw;
    }
  }
  return nullptr;
}

// A store that equals its copy is sound as the copy was. One that differs although no save was counted was changed by something else:
// a failing disk, a tool that writes bytes.
void StoreKeeper::CheckContent(Database &store, Doubt doubt) {
  const QString kept = KeptPath(store.Path());
  const QByteArray copy = QFileInfo(kept).isFile() ? ReadWholeFile(kept) : QByteArray();
  QByteArray content;
  {
    HeldFile file(store);
    content = file.Content();
    if (content == copy) return;
    store.CheckEveryPage();
  }
  const bool isUnexplained = SaveCount(content) == SaveCount(copy) || !IsCountWhole(content);
  if (doubt == Doubt::Accept || copy.isEmpty() || !isUnexplained || !SoundCopyMoment(store.Path())) return;
  bool isSame = false;
  auto state = RestorableError::State::Unusable;
  try {
    const BesideCopy both(store);
    if (both.HasSameTables()) {
      state = RestorableError::State::Doubtful;
      isSame = both.HasSameRows();
    }
  } catch (const StoreError &) {
    // What cannot be compared is not the same.
  }
  if (!isSame) {
    throw RestorableError(tr("The data file \"%1\" was changed by something other than this program, and what it holds may be wrong. "
                             "Please check your persons and places, or put a sound copy of the file in its place.")
                              .arg(QDir::toNativeSeparators(store.Path())),
                          Kind::Damaged, state);
  }
}

std::shared_ptr<Database> StoreKeeper::OpenUserStore(const QString &path, Doubt doubt) {
  const auto store = Open(path, Database::Mode::ReadWrite, doubt);
  try {
    CopySound(*store);
  } catch (const StoreError &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  return store;
}

std::shared_ptr<Database> StoreKeeper::OpenForReading(const QString &path, Doubt doubt) {
  return Open(path, Database::Mode::ReadOnly, doubt);
}

// On a connection of its own: one that is open for long answers from what it once read, whatever has become of the file.
void StoreKeeper::KeepCopy(const QString &path) {
  const auto store = Database::OpenDatabase(path, Database::Mode::ReadOnly, Database::Check::HeadOnly);
  CheckContent(*store, Doubt::Refuse);
  CopySound(*store);
}

void StoreKeeper::CopySound(Database &store) {
  const QString kept = KeptPath(store.Path());
  if (QFileInfo(kept).isFile()) {
    if (ReadWholeFile(kept) == HeldFile(store).Content()) return;
    try {
      if (BesideCopy(store).CopyHoldsWhatTheStoreLost()) return;
    } catch (const StoreError &) {
      if (SoundCopyMoment(store.Path())) throw;
      SetAside(kept);  // damaged as it is, it may hold what is nowhere else
    }
  }
  WriteWholeFile(kept, HeldFile(store).Content());
}

QString StoreKeeper::RestoreCopy(const QString &path) {
  const QString kept = KeptPath(path);
  Database::OpenDatabase(kept, Database::Mode::ReadOnly);
  // Of a link it is the file behind it that is damaged.
  const QString behind = QFileInfo(path).canonicalFilePath();
  const QString place = behind.isEmpty() ? path : behind;
  const QString fresh = place + QStringLiteral(".restoring");
  WriteWholeFile(fresh, ReadWholeFile(kept));

  std::vector<std::pair<QString, QString>> moved;
  try {
    const QString aside = IsTaken(place) ? SetAside(place) : QString();
    if (!aside.isEmpty()) moved.emplace_back(place, aside);
    for (const char *companion : Companions) {
      const QString beside = place + QLatin1String(companion);
      if (!IsTaken(beside)) continue;
      // Under the damaged store's new name it stays that store's.
      const QString paired = aside + QLatin1String(companion);
      const bool isPaired = !aside.isEmpty() && QFile::rename(beside, paired);
      moved.emplace_back(beside, isPaired ? paired : SetAside(beside));
    }
    if (!QFile::rename(fresh, place)) {
      throw StoreError(
          tr("The kept copy of \"%1\" cannot be put back. Please allow writing to its folder.").arg(QDir::toNativeSeparators(path)),
          Kind::ReadOnly);
    }
    return aside;
  } catch (const StoreError &) {
    while (!moved.empty()) {
      std::rename(QFile::encodeName(moved.back().second).constData(), QFile::encodeName(moved.back().first).constData());
      moved.pop_back();
    }
    QFile::remove(fresh);
    throw;
  }
}
