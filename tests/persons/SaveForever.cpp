// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Saves, deletes and puts back one person without end, to be killed at any moment. Arguments: both stores.
#include <QCoreApplication>

#include <cstdio>

#include "Numbered.h"
#include "persons/PersonStore.h"

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  PersonStore store(Database::OpenDatabase(arguments.at(1)), arguments.at(2));
  for (int n = 0;; ++n) {
    store.Save(Numbered(QStringLiteral("Asha O'Neil"), n));
    if (n % 5 == 4) store.Restore(store.Delete(QStringLiteral("Asha O'Neil")));
    if (n == 0) puts("begun"), fflush(stdout);
  }
}
