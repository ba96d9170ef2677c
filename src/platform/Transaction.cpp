// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Transaction.h"

#include "platform/Database.h"

Transaction::Transaction(Database &store) : database(store) { database.Execute(QStringLiteral("BEGIN IMMEDIATE")); }

Transaction::~Transaction() {
  if (open) {
    try {
      database.Execute(QStringLiteral("ROLLBACK"));
    } catch (const StoreError &) {
      // After some failures (a full disk) the engine has already undone everything, and there is nothing left to roll back.
    }
  }
}

void Transaction::Commit() {
  database.Execute(QStringLiteral("COMMIT"));
  open = false;
}
