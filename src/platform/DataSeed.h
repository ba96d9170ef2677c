// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/AppPaths.h"

#include <QCoreApplication>
#include <QString>

// Fills the user's EPHE folder from an installed one, and brings it up to date after an upgrade.
class DataSeed {
  Q_DECLARE_TR_FUNCTIONS(DataSeed)

 public:
  // Holds the version of the data in an EPHE folder.
  inline static const QString VersionFile = QStringLiteral("SEED");

  // Copies what is missing. When the data version (the file SEED) differs, texts, pictures and fonts are copied anew.
  // Persons, residences and settings are the user's: never overwritten, and a missing store comes back from its kept copy first.
  // An interrupted run is made good by the next.
  // Throws StoreError when a file cannot be copied, and when another program does not come to the end of the same work.
  static void BringUpToDate(const QString &installedEphe, const AppPaths &user);
};
