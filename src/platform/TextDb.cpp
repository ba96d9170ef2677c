// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/TextDb.h"

#include <QHash>
#include <QSqlQuery>

#include <array>
#include <utility>

namespace {

constexpr std::array Tables{"CNVT",      "Daily",   "Transits", "MarMatch", "Muhu",    "Bhava",
                            "Nakshatra", "FORTUNE", "ASP",      "YOGAS",    "YOGNAME", "VPHALA"};

}  // namespace

struct StoreTextDb::Queries {
  struct OfTable {
    QSqlQuery byHead;
    QSqlQuery byHeadAndCategory;
  };
  QHash<QString, std::shared_ptr<OfTable>> byTable;  // by lower-case name
};

StoreTextDb::StoreTextDb(std::shared_ptr<Database> languageDb) : database(std::move(languageDb)), queries(std::make_unique<Queries>()) {
  const auto prepared = [this](const QString &sql) {
    QSqlQuery query(database->Handle());
    query.setForwardOnly(true);
    if (!query.prepare(sql)) throw database->Failure(query);
    return query;
  };
  for (const char *name : Tables) {
    const QString table = QLatin1String(name);
    // By the head alone several categories may answer: the one that stands first in the source of the texts does.
    auto ofTable = std::make_shared<Queries::OfTable>(Queries::OfTable{
        prepared(QStringLiteral("SELECT Val FROM %1 WHERE Head = ? COLLATE NOCASE ORDER BY rowid LIMIT 1").arg(table)),
        prepared(QStringLiteral("SELECT Val FROM %1 WHERE Head = ? COLLATE NOCASE AND Category = ? COLLATE NOCASE ORDER BY rowid LIMIT 1")
                     .arg(table))});
    queries->byTable.insert(table.toLower(), std::move(ofTable));
  }
  // One read transaction for all lookups: taking and giving back the file's lock each time costs three times the lookup itself.
  database->Execute(QStringLiteral("BEGIN"));
}

StoreTextDb::~StoreTextDb() {
  queries.reset();
  try {
    database->Execute(QStringLiteral("ROLLBACK"));
  } catch (const StoreError &) {
    // Nothing was written, so there is nothing to undo.
  }
}

TextRow StoreTextDb::Find(const QString &table, const QString &head, const QString &category) {
  const auto found = queries->byTable.constFind(table.toLower());
  if (found == queries->byTable.constEnd()) throw StoreError(tr("The texts in \"%1\" have no table \"%2\".").arg(database->Path(), table));
  QSqlQuery &query = category.isEmpty() ? (*found)->byHead : (*found)->byHeadAndCategory;
  query.bindValue(0, head.isNull() ? QStringLiteral("") : head);
  if (!category.isEmpty()) query.bindValue(1, category);
  if (!query.exec()) throw database->Failure(query);
  TextRow row;
  if (query.next()) {
    const QVariant val = query.value(0);
    row = {true, val.isNull(), val.toString()};
  }
  query.finish();
  return row;
}
