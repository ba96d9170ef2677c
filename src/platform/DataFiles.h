// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/AppPaths.h"

#include <QCoreApplication>
#include <QString>

// The checks on data files that come before anything else at start.
class DataFiles {
  Q_DECLARE_TR_FUNCTIONS(DataFiles)

 public:
  // path: tested as given when it is absolute or its second character is ":", otherwise under EPHE.
  // Throws MissingFileError, titled "File Not Found", when there is no such file; the program cannot go on.
  static void CheckFileExists(const AppPaths &paths, const QString &path);

  // CheckFileExists for each common data file, in a fixed order. RECOS.Dat is not among them: it is checked first, by itself.
  static void CheckDataFiles(const AppPaths &paths);

  // CheckFileExists for RECOS.Dat, unless its kept copy can be put back or something else lies in its place: opening it tells more then.
  static void CheckPersonStore(const AppPaths &paths);

  static bool LanguageFileExists(const AppPaths &paths, const QString &directory);

  // Brings the column `Include` of the language list in line with the text files that exist. A list that cannot be written is left
  // as it is, with a notice.
  // Throws StoreError when the list cannot be read.
  static void CheckLanguages(const AppPaths &paths);
};
