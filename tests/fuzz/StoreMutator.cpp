// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Changes a store's values and tables as well as its bytes: most changed bytes are found by the store engine, and a store that is sound
// and holds what no program would write must do no harm either.
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <algorithm>
#include <iterator>
#include <random>

#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

using Random = std::minstd_rand;

template <typename List>
auto OneOf(const List &list, Random &random) {
  return *std::next(std::begin(list), static_cast<long>(random() % std::size(list)));
}

QVariant SomeValue(const QVariant &former, Random &random) {
  static const QVariantList extremes{QVariant(),
                                     0,
                                     1,
                                     2,
                                     -1,
                                     13,
                                     24,
                                     31,
                                     59,
                                     60,
                                     90,
                                     91,
                                     180,
                                     181,
                                     366,
                                     999,
                                     9999,
                                     10000,
                                     2147483647,
                                     -2147483647 - 1,
                                     4294967296LL,
                                     9223372036854775807LL,
                                     1e300,
                                     -1e300,
                                     0.5,
                                     "",
                                     " ",
                                     "N",
                                     "S",
                                     "E",
                                     "W",
                                     "+05.30",
                                     "-15.59",
                                     "+99.99",
                                     "5.3",
                                     "00.00",
                                     "1e300",
                                     "-",
                                     "27.09",
                                     "02709",
                                     "India",
                                     "English",
                                     "..",
                                     QByteArray("\xFF\x00\xFE", 3)};
  switch (random() % 4) {
    case 0: {
      QByteArray text = former.toString().toUtf8().left(200);
      const qsizetype size = text.size();
      text.resize(size + 16);
      text.resize(static_cast<qsizetype>(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(text.data()), static_cast<std::size_t>(size),
                                                          static_cast<std::size_t>(text.size()))));
      return QString::fromUtf8(text);
    }
    case 1: return static_cast<qlonglong>(former.toULongLong() + random() % 5 - 2);  // past the end of the range it begins anew
    default: return OneOf(extremes, random);
  }
}

void ChangeOneThing(const QSqlDatabase &store, Random &random) {
  QSqlQuery query(store);
  query.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'"));
  QStringList tables;
  while (query.next()) tables << query.value(0).toString();
  if (tables.isEmpty()) return;
  const QString table = u'"' + OneOf(tables, random) + u'"';
  query.exec(QStringLiteral("SELECT rowid, * FROM %1 ORDER BY random() LIMIT 1").arg(table));
  if (!query.next()) {
    query.exec(QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(table));
    return;
  }
  const QVariant rowid = query.value(0);
  const int column = 1 + static_cast<int>(random() % std::max<unsigned>(1, static_cast<unsigned>(query.record().count()) - 1));
  const QString name = u'"' + query.record().fieldName(column) + u'"';
  const QVariant value = SomeValue(query.value(column), random);
  query.finish();
  switch (random() % 64) {
    case 0: query.exec(QStringLiteral("DELETE FROM %1 WHERE rowid = %2").arg(table, rowid.toString())); return;
    case 1: query.exec(QStringLiteral("INSERT INTO %1 SELECT * FROM %1 LIMIT 1").arg(table)); return;
    case 2: query.exec(QStringLiteral("DROP TABLE %1").arg(table)); return;
    case 3: query.exec(QStringLiteral("ALTER TABLE %1 RENAME COLUMN %2 TO other").arg(table, name)); return;
    case 4: query.exec(QStringLiteral("ALTER TABLE %1 ADD COLUMN more").arg(table)); return;
    case 5: query.exec(QStringLiteral("ALTER TABLE %1 RENAME TO other").arg(table)); return;
    case 6: query.exec(QStringLiteral("PRAGMA user_version = %1").arg(static_cast<int>(random() % 4) - 1)); return;
    case 7: query.exec(QStringLiteral("PRAGMA journal_mode = WAL")); return;
    default: break;
  }
  query.prepare(QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(table, name));
  query.addBindValue(value);
  query.addBindValue(rowid);
  query.exec();
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed) {
  Random random(seed + 1);
  if (random() % 8 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  static const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("changed"));
  QFile::remove(path + QStringLiteral("-wal"));
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return LLVMFuzzerMutate(data, size, maxSize);
  file.write(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  file.close();
  const QString connection = QStringLiteral("changed");
  {
    QSqlDatabase store = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    store.setDatabaseName(path);
    if (store.open()) {
      QSqlQuery(store).exec(QStringLiteral("PRAGMA synchronous = OFF"));
      for (unsigned changes = 1 + random() % 3; changes > 0; --changes) ChangeOneThing(store, random);
    }
    store.close();
  }
  QSqlDatabase::removeDatabase(connection);
  const QByteArray changed = FuzzFolder::Read(path);
  const auto length = static_cast<std::size_t>(changed.size());
  if (length == 0 || length > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  if (length == size && std::equal(changed.begin(), changed.end(), reinterpret_cast<const char *>(data)))
    return LLVMFuzzerMutate(data, size, maxSize);
  std::copy(changed.begin(), changed.end(), reinterpret_cast<char *>(data));
  return length;
}
