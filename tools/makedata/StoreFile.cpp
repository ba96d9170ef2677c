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

/// Marks every store of the program ("ORVA"), so that a file of another program is not taken for one.
constexpr int kApplicationId = 0x4F525641;
constexpr int kStoreVersion = 1;

/// A connection that is closed and forgotten when it goes; Qt wants the handle gone before the name.
class Connection {
 public:
  Connection(const QString &path, const QString &options) : path_(path) {
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
    QSqlDatabase::database(path_, false).close();
    QSqlDatabase::removeDatabase(path_);
  }
  QSqlDatabase Handle() const { return QSqlDatabase::database(path_, false); }

 private:
  QString path_;
};

class SqliteMaker final : public StoreFile::Maker {
 public:
  SqliteMaker(QString path, const QSqlDatabase &handle) : path_(std::move(path)), handle_(handle) {}

  void Run(const QString &sql) override {
    QSqlQuery query(handle_);
    if (!query.exec(sql)) throw SourceError(path_, 0, query.lastError().text() + " in: " + sql);
  }

  void Insert(const QString &table, const QStringList &columns, const QVariantList &values) override {
    if (table != table_) {
      QStringList marks;
      for (int i = 0; i < columns.size(); ++i) marks << "?";
      insert_.emplace(handle_);
      insert_->prepare("INSERT INTO " + table + " (" + columns.join(", ") + ") VALUES (" + marks.join(", ") + ")");
      table_ = table;
    }
    for (int i = 0; i < values.size(); ++i) insert_->bindValue(i, values[i]);
    if (!insert_->exec()) throw SourceError(path_, 0, insert_->lastError().text() + " in table " + table);
  }

 private:
  QString path_;
  QSqlDatabase handle_;
  QString table_;
  std::optional<QSqlQuery> insert_;
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
    maker.Run(QStringLiteral("PRAGMA application_id = %1").arg(kApplicationId));
    maker.Run(QStringLiteral("PRAGMA user_version = %1").arg(kStoreVersion));
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
