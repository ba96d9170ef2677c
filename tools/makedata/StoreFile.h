// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

// One SQLite store of the tree.
class StoreFile {
 public:
  // Runs statements on the store being made; every failure is a SourceError that names the store.
  class Maker {
   public:
    virtual ~Maker() = default;
    virtual void Run(const QString &sql) = 0;
    // Adds one row; the statement is prepared once for a run of rows of the same table.
    virtual void Insert(const QString &table, const QStringList &columns, const QVariantList &values) = 0;
  };

  // Makes the store beside its place with `fill` and moves it there when it is whole.
  // sourceHash: kept in the store, to be compared by IsMadeFrom.
  static void Make(const QString &path, const QString &sourceHash, const std::function<void(Maker &)> &fill);

  // True when the store is there, opens sound and was made from sources of this hash.
  static bool IsMadeFrom(const QString &path, const QString &sourceHash);
};
