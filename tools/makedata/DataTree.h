// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// The EPHE tree made from the sources under data/.
//
// Texts, the list of languages and the presence files are the program's and follow the sources. Persons, places, residences and
// the configuration file are the user's: they are made once, where they are missing, and never touched again.
class DataTree {
 public:
  // version: that of the program, for the tree's mark.
  // Throws SourceError for the first fault of the sources, before anything is written, or for a file that cannot be written.
  static void Make(const QString &sourceDir, const QString &epheDir, const QString &version);
};
