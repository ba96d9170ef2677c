// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/StoreKeeper.h"

#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/Recordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <utility>
#include <vector>

namespace {

// Files that the store engine lays beside a store. Left there, they would be played into the copy that is put back.
constexpr std::array kCompanions{"-journal", "-wal", "-shm"};

// A name beside `path` that no file has yet: earlier damaged stores are somebody's data too.
QString FreeName(const QString &path) {
  QString name = path + QStringLiteral(".damaged");
  for (int number = 2; QFileInfo::exists(name); ++number) {
    name = QStringLiteral("%1.%2.damaged").arg(path).arg(number);
  }
  return name;
}

}  // namespace

std::optional<QDateTime> StoreKeeper::KeptMoment(const QString &path) {
  const QFileInfo kept(KeptPath(path));
  return kept.isFile() ? std::optional<QDateTime>(kept.lastModified()) : std::nullopt;
}

std::shared_ptr<Database> StoreKeeper::OpenUserStore(const QString &path) {
  std::shared_ptr<Database> database;
  try {
    database = Database::OpenDatabase(path);
  } catch (const StoreError &error) {
    const bool helps = error.Reason() == StoreError::Kind::Damaged || error.Reason() == StoreError::Kind::Missing;
    const std::optional<QDateTime> moment = KeptMoment(path);
    if (!helps || !moment) {
      throw;
    }
    throw StoreError(error.Sentence() + u' ' + tr("A copy kept on %1 can be put back.").arg(moment->toString(kMomentFormat)),
                     error.Reason());
  }
  try {
    KeepCopy(path);
  } catch (const StoreError &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  return database;
}

void StoreKeeper::KeepCopy(const QString &path) {
  QByteArray content;
  {
    // A read transaction keeps other programs from writing into the file while it is copied.
    const auto database = Database::OpenDatabase(path, Database::Mode::ReadOnly);
    database->Execute(QStringLiteral("BEGIN"));
    database->OpenRecordset(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    content = ReadWholeFile(path);
  }
  const QString kept = KeptPath(path);
  if (!QFileInfo::exists(kept) || ReadWholeFile(kept) != content) {
    WriteWholeFile(kept, content);
  }
}

QString StoreKeeper::RestoreCopy(const QString &path) {
  const QString kept = KeptPath(path);
  Database::OpenDatabase(kept, Database::Mode::ReadOnly);
  const QString fresh = path + QStringLiteral(".restoring");
  WriteWholeFile(fresh, ReadWholeFile(kept));

  const QString damaged = FreeName(path);
  std::vector<std::pair<QString, QString>> moves{{path, damaged}};
  for (const char *companion : kCompanions) {
    moves.emplace_back(path + QLatin1String(companion), damaged + QLatin1String(companion));
  }
  const bool hadStore = QFileInfo::exists(path);
  std::erase_if(moves, [](const auto &move) { return !QFileInfo::exists(move.first); });
  moves.emplace_back(fresh, path);

  for (size_t done = 0; done < moves.size(); ++done) {
    if (QFile::rename(moves[done].first, moves[done].second)) {
      continue;
    }
    while (done-- > 0) {
      QFile::rename(moves[done].second, moves[done].first);
    }
    QFile::remove(fresh);
    throw StoreError(
        tr("The kept copy of \"%1\" cannot be put back. Please allow writing to its folder.").arg(QDir::toNativeSeparators(path)),
        StoreError::Kind::ReadOnly);
  }
  return hadStore ? damaged : QString();
}
