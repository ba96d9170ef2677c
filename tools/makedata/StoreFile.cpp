// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "StoreFile.h"

#include "FileWriter.h"
#include "SourceError.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <optional>

namespace {

// Marks every store of the program ("ORVA"), so that a file of another program is not taken for one.
constexpr int ApplicationId = 0x4F525641;
constexpr int StoreVersion = 1;

// A connection that is closed and forgotten when it goes; Qt wants the handle gone before the name.
class Connection {
 public:
  Connection(const QString &storePath, const QString &options) : path(storePath) {
    QSqlDatabase handle = QSqlDatabase::addDatabase("QSQLITE", path);
    handle.setDatabaseName(path);
    handle.setConnectOptions(options);
    if (!handle.open()) {
      const QString reason = handle.lastError().text();
      handle = QSqlDatabase();
      QSqlDatabase::removeDatabase(path);
      throw SourceError(path, 0, "cannot be opened: " + reason);
    }
  }
  Connection(const Connection &) = delete;
  Connection &operator=(const Connection &) = delete;
  ~Connection() {
    QSqlDatabase::database(path, false).close();
    QSqlDatabase::removeDatabase(path);
  }
  QSqlDatabase Handle() const { return QSqlDatabase::database(path, false); }

 private:
  QString path;
};

class SqliteMaker final : public StoreFile::Maker {
 public:
  SqliteMaker(QString storePath, const QSqlDatabase &openHandle) : path(std::move(storePath)), handle(openHandle) {}

  void Run(const QString &sql) override {
    QSqlQuery query(handle);
    if (!query.exec(sql)) throw SourceError(path, 0, query.lastError().text() + " in: " + sql);
  }

  void Insert(const QString &intoTable, const QStringList &columns, const QVariantList &values) override {
    if (intoTable != table) {
      QStringList marks;
      for (int i = 0; i < columns.size(); ++i) marks << "?";
      insert.emplace(handle);
      insert->prepare("INSERT INTO " + intoTable + " (" + columns.join(", ") + ") VALUES (" + marks.join(", ") + ")");
      table = intoTable;
    }
    for (int i = 0; i < values.size(); ++i) insert->bindValue(i, values[i]);
    if (!insert->exec()) throw SourceError(path, 0, insert->lastError().text() + " in table " + intoTable);
  }

 private:
  QString path;
  QSqlDatabase handle;
  QString table;
  std::optional<QSqlQuery> insert;
};

}  // namespace

void StoreFile::Make(const QString &path, const QString &sourceHash, const std::function<void(Maker &)> &fill) {
  const QString aside = path + ".making";
  QFile::remove(aside);
  try {
    const Connection connection(aside, QString());
    SqliteMaker maker(aside, connection.Handle());
    // The file is thrown away if anything fails, so a journal would guard nothing.
    maker.Run("PRAGMA journal_mode = OFF");
    maker.Run("PRAGMA synchronous = OFF");
    maker.Run(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId));
    maker.Run(QStringLiteral("PRAGMA user_version = %1").arg(StoreVersion));
    maker.Run("BEGIN");
    fill(maker);
    maker.Run("CREATE TABLE Origin (Hash TEXT)");
    maker.Insert("Origin", {"Hash"}, {sourceHash});
    maker.Run("COMMIT");
  } catch (...) {
    QFile::remove(aside);
    throw;
  }
  FileWriter::MoveInto(aside, path);
}

bool StoreFile::IsMadeFrom(const QString &path, const QString &sourceHash) {
  if (!QFileInfo(path).isFile()) return false;
  try {
    const Connection connection(path, "QSQLITE_OPEN_READONLY");
    QSqlQuery query(connection.Handle());
    return query.exec("SELECT Hash FROM Origin") && query.next() && query.value(0).toString() == sourceHash;
  } catch (const SourceError &) {
    return false;
  }
}
