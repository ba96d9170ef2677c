// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

class Database;

// The rows of a selection, read when it was opened, with a cursor that starts at the first row.
// Edit, AddNew and Delete write through to the one table that the rows come from.
class Recordset {
  Q_DECLARE_TR_FUNCTIONS(Recordset)

 public:
  Recordset(Recordset &&) = default;
  Recordset &operator=(Recordset &&) = default;

  int RecordCount() const { return static_cast<int>(rows.size()); }
  bool IsEmpty() const { return rows.empty(); }
  // True past the last row, and always for an empty set.
  bool AtEnd() const;
  // 0-based row; RecordCount() past the end, -1 before the first row.
  int Position() const { return position; }

  // Moves drop an edit that was not updated. On an empty set each throws StoreError.
  void MoveFirst();
  void MoveLast();
  // From the last row to the end; from the end on it throws StoreError. After Delete, to the row that followed the deleted one.
  void MoveNext();
  // `count` rows forward, or backward when negative. Past the last row it stops at the end, before the first at Position() -1.
  void Move(int count);

  // The value in the current row, or the one set since Edit or AddNew. Column names compare without regard to case. A Null column
  // gives a QVariant with isNull() true.
  // Throws StoreError for an unknown column and when there is no current row.
  QVariant Field(const QString &name) const;
  bool HasColumn(const QString &name) const;

  // Searches from the first row; texts compare without regard to case. On success that row is current, otherwise nothing moves.
  bool FindFirst(const QString &column, const QVariant &value);

  // A new row is begun; columns that are not set keep the table's defaults. After Update it is the last of the set, and the current
  // row is what it was before.
  void AddNew();
  void Edit();
  // Throws StoreError unless Edit or AddNew came before, and for an unknown column.
  void SetField(const QString &name, const QVariant &value);
  // Writes the row begun by Edit or AddNew. When that fails nothing is changed and the edit stays open. Throws StoreError.
  void Update();
  void CancelUpdate();
  // Deletes the current row at once. No row is current until the next move.
  void Delete();

 private:
  friend class Database;

  struct Row {
    qlonglong rowid = 0;
    std::vector<QVariant> values;
  };
  enum class Pending { None, Edit, New };

  Recordset(std::shared_ptr<Database> store, const QString &sql, const QVariantList &bound);

  int ColumnIndex(const QString &name) const;
  const Row &CurrentRow() const;
  void RequireTable() const;
  Row ReadRow(qlonglong rowid) const;

  std::shared_ptr<Database> database;
  QString table;    // quoted, with its schema; empty when the rows cannot be edited
  QString columns;  // the selection's column list, to read one row anew
  std::vector<QString> names;
  QHash<QString, int> indexByName;  // by lower-case name
  std::vector<Row> rows;
  int position = 0;
  bool onGap = false;  // the current row was deleted and position is already the row that followed it
  Pending pending = Pending::None;
  std::vector<std::pair<int, QVariant>> changes;
};
