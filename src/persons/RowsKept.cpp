// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/RowsKept.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <algorithm>
#include <iterator>

#include "platform/Store.h"

RowsKept RowsKept::Copy(Database &db, const QString &table, const QString &condition, const QVariantList &bound) {
  RowsKept kept;
  kept.table = table;
  QSqlQuery query(db.Handle());
  query.prepare(QStringLiteral("SELECT rowid AS rowid, * FROM %1 WHERE %2 ORDER BY rowid").arg(table, condition));
  for (const QVariant &value : bound) query.addBindValue(value);
  if (!query.exec()) throw db.Failure(query);
  const QSqlRecord columns = query.record();
  for (int c = 0; c < columns.count(); ++c) kept.columns << columns.fieldName(c);
  while (query.next()) {
    QVariantList row;
    for (int c = 0; c < columns.count(); ++c) row << query.value(c);
    kept.rows.push_back(row);
  }
  return kept;
}

RowsKept RowsKept::Take(Database &db, const QString &table, const QString &condition, const QVariantList &bound) {
  RowsKept kept = Copy(db, table, condition, bound);
  db.Execute(QStringLiteral("DELETE FROM %1 WHERE %2").arg(table, condition), bound);
  return kept;
}

RowsKept RowsKept::Of(const QString &column, const std::function<bool(const QVariant &)> &isWanted) const {
  RowsKept some;
  some.table = table;
  some.columns = columns;
  const qsizetype at = columns.indexOf(column);
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(some.rows), [&](const QVariantList &row) { return isWanted(row.value(at)); });
  return some;
}

void RowsKept::PutBack(Database &db) const {
  const QStringList marks(columns.size(), QStringLiteral("?"));
  for (QVariantList row : rows) {
    if (!db.OpenRecordset(QStringLiteral("SELECT rowid AS Place FROM %1 WHERE rowid = ?").arg(table), {row.first()}).IsEmpty())
      row.first() = QVariant();
    db.Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns.join(u','), marks.join(u',')), row);
  }
}

void RowsKept::PutInPlace(Database &db) const {
  for (const QVariantList &row : rows) db.Execute(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(table), {row.first()});
  PutBack(db);
}
