// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Recordset.h"

#include "platform/Database.h"

#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <utility>

namespace {

// What is known of a selection's text: from which table its rows come, if it is one.
struct Selection {
  QString sql;
  QString columns;
  QString table;  // empty when rows cannot be traced back to one table
  QString tail;   // WHERE, ORDER BY, LIMIT
};

const QString Name = QStringLiteral(R"((?:[A-Za-z_][A-Za-z0-9_]*|"[^"]+"|\[[^\]]+\]))");
const QString QualifiedName = QStringLiteral("(?:(%1)\\.)?(%1)").arg(Name);
constexpr auto Loose = QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption;

QString Unquoted(const QString &name) { return name.startsWith(u'"') || name.startsWith(u'[') ? name.mid(1, name.size() - 2) : name; }

Selection Parse(const QString &sql) {
  static const QRegularExpression bareName(QStringLiteral("^\\s*%1\\s*$").arg(QualifiedName), Loose);
  static const QRegularExpression plain(
      QStringLiteral("^\\s*SELECT\\s+(\\*|%1(?:\\s*,\\s*%1)*)\\s+FROM\\s+((?:%1\\.)?%1)(\\s+(?:WHERE|ORDER|LIMIT)\\b.*?)?\\s*;?\\s*$")
          .arg(Name),
      Loose);
  static const QRegularExpression gathering(QStringLiteral("\\b(?:GROUP|UNION|EXCEPT|INTERSECT)\\b"), Loose);

  if (bareName.match(sql).hasMatch()) return {QStringLiteral("SELECT * FROM ") + sql, QStringLiteral("*"), sql.trimmed(), QString()};
  const QRegularExpressionMatch match = plain.match(sql);
  if (!match.hasMatch() || gathering.match(match.captured(3)).hasMatch()) return {sql, QString(), QString(), QString()};
  return {sql, match.captured(1), match.captured(2), match.captured(3)};
}

}  // namespace

Recordset::Recordset(std::shared_ptr<Database> store, const QString &sql, const QVariantList &bound) : database(std::move(store)) {
  static const QRegularExpression tableName(QStringLiteral("^%1$").arg(QualifiedName), Loose);
  static const QRegularExpression view(QStringLiteral("^\\s*CREATE\\s+VIEW\\s.*?\\sAS\\s+(SELECT\\s.*)$"), Loose);

  Selection selection = Parse(sql);
  if (!selection.table.isEmpty()) {
    const QRegularExpressionMatch name = tableName.match(selection.table);
    const QString schema = name.captured(1).isEmpty() ? QStringLiteral("main") : name.captured(1);
    QSqlQuery definition(database->Handle());
    database->Run(definition,
                  QStringLiteral("SELECT sql FROM %1.sqlite_master WHERE type = 'view' AND name = ? COLLATE NOCASE").arg(schema),
                  {Unquoted(name.captured(2))});
    if (definition.next()) {
      // A view has no row ids: a plain one is read through its own text, so that its rows can be edited.
      const QRegularExpressionMatch body = view.match(definition.value(0).toString());
      const bool whole = selection.columns == QLatin1String("*") && selection.tail.isEmpty();
      const Selection inner = Parse(body.captured(1));
      if (whole && !inner.table.isEmpty()) {
        selection = inner;
        if (schema != QLatin1String("main")) selection.table.prepend(schema + u'.');
      } else {
        selection.table.clear();
      }
    }
  }

  table = selection.table;
  columns = selection.columns;
  const bool traced = !table.isEmpty();
  QSqlQuery query(database->Handle());
  query.setForwardOnly(true);
  database->Run(query, traced ? QStringLiteral("SELECT rowid, %1 FROM %2 %3").arg(columns, table, selection.tail) : selection.sql, bound);

  const QSqlRecord record = query.record();
  const int first = traced ? 1 : 0;
  for (int column = first; column < record.count(); ++column) {
    names.push_back(record.fieldName(column));
    indexByName.insert(names.back().toLower(), column - first);
  }
  while (query.next()) {
    Row row{traced ? query.value(0).toLongLong() : 0, {}};
    row.values.reserve(names.size());
    for (int column = first; column < record.count(); ++column) row.values.push_back(query.value(column));
    rows.push_back(std::move(row));
  }
}

bool Recordset::AtEnd() const { return rows.empty() || (position >= RecordCount() && !onGap); }

void Recordset::MoveFirst() {
  onGap = false;
  position = 0;
  Move(0);
}

void Recordset::MoveLast() {
  onGap = false;
  position = std::max(0, RecordCount() - 1);
  Move(0);
}

void Recordset::MoveNext() {
  if (onGap) {
    onGap = false;
    CancelUpdate();
    return;
  }
  Move(1);
}

void Recordset::Move(int count) {
  const bool nowhere = rows.empty() || (count > 0 && AtEnd()) || (count < 0 && position < 0);
  if (nowhere) throw StoreError(tr("There is no row to move to in \"%1\".").arg(database->Path()), StoreError::Kind::NoCurrentRow);
  CancelUpdate();
  const qlonglong fromGap = onGap && count > 0 ? -1 : 0;
  position = static_cast<int>(std::clamp<qlonglong>(position + fromGap + count, -1, RecordCount()));
  onGap = false;
}

const Recordset::Row &Recordset::CurrentRow() const {
  if (onGap || position < 0 || position >= RecordCount())
    throw StoreError(tr("No row is current in \"%1\".").arg(database->Path()), StoreError::Kind::NoCurrentRow);
  return rows[static_cast<size_t>(position)];
}

int Recordset::ColumnIndex(const QString &name) const {
  const auto found = indexByName.constFind(name.toLower());
  if (found == indexByName.constEnd()) {
    throw StoreError(tr("The data file \"%1\" has no column \"%2\" where one was asked for.").arg(database->Path(), name),
                     StoreError::Kind::UnknownColumn);
  }
  return *found;
}

bool Recordset::HasColumn(const QString &name) const { return indexByName.contains(name.toLower()); }

QVariant Recordset::Field(const QString &name) const {
  const int column = ColumnIndex(name);
  const auto set = std::find_if(changes.begin(), changes.end(), [column](const auto &change) { return change.first == column; });
  if (set != changes.end()) return set->second;
  return pending == Pending::New ? QVariant() : CurrentRow().values[static_cast<size_t>(column)];
}

bool Recordset::FindFirst(const QString &column, const QVariant &value) {
  const auto index = static_cast<size_t>(ColumnIndex(column));
  const auto matches = [&](const Row &row) {
    const QVariant &cell = row.values[index];
    if (cell.isNull() || value.isNull()) return false;
    if (cell.typeId() == QMetaType::QString || value.typeId() == QMetaType::QString)
      return cell.toString().compare(value.toString(), Qt::CaseInsensitive) == 0;
    return cell.toDouble() == value.toDouble();
  };
  const auto found = std::find_if(rows.begin(), rows.end(), matches);
  if (found == rows.end()) return false;
  CancelUpdate();
  onGap = false;
  position = static_cast<int>(found - rows.begin());
  return true;
}

void Recordset::RequireTable() const {
  if (table.isEmpty())
    throw StoreError(tr("These rows of \"%1\" are gathered from several places and cannot be changed.").arg(database->Path()));
}

void Recordset::AddNew() {
  RequireTable();
  CancelUpdate();
  pending = Pending::New;
}

void Recordset::Edit() {
  RequireTable();
  CurrentRow();
  CancelUpdate();
  pending = Pending::Edit;
}

void Recordset::SetField(const QString &name, const QVariant &value) {
  if (pending == Pending::None) throw StoreError(tr("A row of \"%1\" was changed without being opened for it.").arg(database->Path()));
  const int column = ColumnIndex(name);
  const auto set = std::find_if(changes.begin(), changes.end(), [column](const auto &change) { return change.first == column; });
  if (set != changes.end())
    set->second = value;
  else
    changes.emplace_back(column, value);
}

void Recordset::Update() {
  if (pending == Pending::None) throw StoreError(tr("A row of \"%1\" was changed without being opened for it.").arg(database->Path()));
  QStringList assigned;
  QStringList marks;
  QVariantList values;
  for (const auto &[column, value] : changes) {
    assigned << QStringLiteral("\"%1\"").arg(names[static_cast<size_t>(column)]);
    marks << QStringLiteral("?");
    values << value;
  }

  if (pending == Pending::New) {
    QSqlQuery query(database->Handle());
    const QString content =
        assigned.isEmpty() ? QStringLiteral("DEFAULT VALUES")
                           : QStringLiteral("(%1) VALUES (%2)").arg(assigned.join(QStringLiteral(", ")), marks.join(QStringLiteral(", ")));
    database->Run(query, QStringLiteral("INSERT INTO %1 %2").arg(table, content), values);
    // A set that was read to its end stays there: the new row must not become current by itself.
    const bool wasAtEnd = !rows.empty() && AtEnd();
    rows.push_back(ReadRow(query.lastInsertId().toLongLong()));
    position += wasAtEnd ? 1 : 0;
    if (rows.size() == 1) onGap = true;
  } else if (!assigned.isEmpty()) {
    Row &row = rows[static_cast<size_t>(position)];
    values << row.rowid;
    if (database->Execute(QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(table, assigned.join(QStringLiteral(" = ?, "))),
                          values) == 0)
      throw StoreError(tr("The row was deleted from \"%1\" by another program, so it could not be saved.").arg(database->Path()));
    row = ReadRow(row.rowid);
  }
  CancelUpdate();
}

void Recordset::CancelUpdate() {
  pending = Pending::None;
  changes.clear();
}

void Recordset::Delete() {
  RequireTable();
  const qlonglong rowid = CurrentRow().rowid;
  CancelUpdate();
  database->Execute(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(table), {rowid});
  rows.erase(rows.begin() + position);
  onGap = true;
}

// The row as the table keeps it: a column may turn "5" into 5 or fill in a default.
Recordset::Row Recordset::ReadRow(qlonglong rowid) const {
  QSqlQuery query(database->Handle());
  database->Run(query, QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(columns, table), {rowid});
  Row row{rowid, {}};
  if (query.next())
    for (size_t column = 0; column < names.size(); ++column) row.values.push_back(query.value(static_cast<int>(column)));
  else
    row.values.resize(names.size());
  return row;
}
