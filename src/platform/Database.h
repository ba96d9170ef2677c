// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Errors.h"

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include <memory>

class Recordset;
class QSqlQuery;

// One open store file. Lives as long as its last owner; recordsets and text servers are owners too.
// Values are always bound ("?" in the text), never put into the text: a person called O'Brien is a value like any other.
class Database : public std::enable_shared_from_this<Database> {
  Q_DECLARE_TR_FUNCTIONS(Database)

 public:
  enum class Mode { ReadWrite, ReadOnly };
  // How much of a file is looked at when it is opened: every page, or only whether it is one of ours. 3 MB take some 15 ms.
  enum class Check { EveryPage, HeadOnly };

  // "ORVA": the mark by which the program knows its own stores.
  static constexpr int ApplicationId = 0x4F525641;
  // The newest arrangement of tables that this program understands.
  static constexpr int NewestVersion = 1;

  // Opens an existing store after checking that it is one of ours and sound; never makes a file. A save that was cut off by the end of
  // a program is undone first, for a reader too.
  // Throws StoreError with a sentence that names the file and says what to do.
  static std::shared_ptr<Database> OpenDatabase(const QString &path, Mode mode = Mode::ReadWrite, Check check = Check::EveryPage);

  // How long to wait for another program's lock, in milliseconds, for stores opened from now on. 2000 at start.
  static void SetBusyTimeout(int milliseconds);

  ~Database();
  Database(const Database &) = delete;
  Database &operator=(const Database &) = delete;

  const QString &Path() const { return path; }
  Mode OpenMode() const { return mode; }

  // Looks at every page. Throws StoreError when one is damaged.
  void CheckEveryPage() const { CheckEveryPage(QStringLiteral("main"), path); }

  // For a store opened by its head alone, once it is known to be sound: from here on it is changed.
  void UseRollbackJournal();

  // A number that differs from an earlier answer when another connection or program has changed the file since.
  // schema: "main", or the name of an attached store.
  qlonglong DataVersion(const QString &schema = QStringLiteral("main")) const;

  // Runs a selection and reads all its rows at once. `sql` may also be the bare name of a table or of a stored query (view).
  // Rows can be edited when the selection is a plain one of one table ("SELECT * FROM t WHERE ... ORDER BY ...", or a view of that form).
  Recordset OpenRecordset(const QString &sql, const QVariantList &bound = {});

  // Runs one statement that gives no rows; returns the number of rows that an INSERT, UPDATE or DELETE changed.
  int Execute(const QString &sql, const QVariantList &bound = {});

  // The names of a table's columns, in small letters; none where there is no such table. Throws StoreError.
  QSet<QString> Columns(const QString &table) const;

  // For prepared queries that are kept. Let go of the handle and its queries before the last owner of this object goes.
  QSqlDatabase Handle() const { return handle; }

  // Makes the tables of another store reachable as schema.Table, so that one Transaction covers both files.
  // Not inside a transaction. The other file is checked like one that is opened.
  void Attach(const QString &file, const QString &schema);
  void Detach(const QString &schema);

  // The sentence for a failed query on this store, by the reason that the store engine gave.
  StoreError Failure(const QSqlQuery &query) const;

 private:
  Database(QString file, Mode openMode);

  friend class Recordset;

  static void UndoCutOffSave(const QString &path);

  void Run(QSqlQuery &query, const QString &sql, const QVariantList &bound) const;
  StoreError Failure(const QSqlQuery &query, const QString &file) const;
  void CheckHead(const QString &schema, const QString &file) const;
  void CheckEveryPage(const QString &schema, const QString &file) const;
  qlonglong Pragma(const QString &schema, const char *name, const QString &file) const;

  QString path;
  Mode mode;
  QString connection;
  QSqlDatabase handle;
  QMap<QString, QString> attached;  // path by schema name
};
