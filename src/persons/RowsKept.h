// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVariant>
#include <functional>
#include <vector>

class Database;

// Rows of one table that were taken out, whole and with their place, so that they can be put back as they were.
class RowsKept {
 public:
  // Deletes the rows and keeps them. condition: the text after WHERE, its values bound. Throws StoreError.
  static RowsKept Take(Database &db, const QString &table, const QString &condition, const QVariantList &bound);

  // The rows as Take keeps them, left where they are.
  static RowsKept Copy(Database &db, const QString &table, const QString &condition, const QVariantList &bound);

  // In their old places where those are still free, and behind the others where they are not. Throws StoreError.
  void PutBack(Database &db) const;

  // Those whose value in the column is wanted.
  RowsKept Of(const QString &column, const std::function<bool(const QVariant &)> &isWanted) const;

  // In their old places, from which the rows that stand there now are taken out. Throws StoreError.
  void PutInPlace(Database &db) const;

  bool IsEmpty() const { return rows.empty(); }

 private:
  QString table;
  QStringList columns;  // the row number first
  std::vector<QVariantList> rows;
};
