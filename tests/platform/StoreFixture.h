// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/FileTools.h"
#include "platform/Store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <iostream>

/// A temporary folder and stores made in it from nothing.
class StoreFixture : public testing::Test {
 public:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    Database::SetBusyTimeout(50);
  }
  void TearDown() override { Database::SetBusyTimeout(2000); }

  QString At(const QString &name) const { return folder_.filePath(name); }

  /// Runs statements on a connection of its own, as another program would.
  static void RunOutside(const QString &path, const QStringList &statements, const std::function<void()> &meanwhile = {}) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    {
      QSqlDatabase outside = QSqlDatabase::addDatabase("QSQLITE", "outside");
      outside.setDatabaseName(path);
      ASSERT_TRUE(outside.open());
      for (const QString &statement : statements) {
        QSqlQuery query(outside);
        ASSERT_TRUE(query.exec(statement)) << qPrintable(statement) << ": " << qPrintable(query.lastError().text());
      }
      if (meanwhile) meanwhile();
    }
    QSqlDatabase::removeDatabase("outside");
  }

  static QString Make(const QString &path, const QStringList &statements = {}) {
    RunOutside(path, QStringList{"PRAGMA application_id = 0x4F525641", "PRAGMA user_version = 1"} + statements);
    return path;
  }

  QString MakePersons(const QString &name = "RECOS.Dat") const {
    return Make(At(name), {"CREATE TABLE Person (Name TEXT COLLATE NOCASE, Day INTEGER, GMTDIFF TEXT, Tcorrinde INTEGER DEFAULT 7)",
                           "CREATE VIEW qryPersonName AS SELECT * FROM Person ORDER BY Name",
                           "INSERT INTO Person VALUES ('Mira', 3, '5.30', NULL), ('Arun', 1, '-4.00', 0), ('Zoya', 9, '0', 0)"});
  }

  /// The reason for which `work` is refused; "Other" and a failure when it is not.
  static StoreError::Kind Refusal(const std::function<void()> &work, QString *sentence = nullptr) {
    try {
      work();
    } catch (const StoreError &error) {
      if (sentence != nullptr) *sentence = error.Sentence();
      return error.Reason();
    }
    ADD_FAILURE() << "nothing was refused";
    return StoreError::Kind::Other;
  }

 private:
  QTemporaryDir folder_;
};

inline std::ostream &operator<<(std::ostream &out, const QString &text) { return out << '"' << text.toStdString() << '"'; }
