// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/AppPaths.h"

// A copy of the built data folder that a test may spoil.
class DataFolder {
 public:
  DataFolder() { Copy(QStringLiteral(ORVANI_EPHE), dir.path() + QStringLiteral("/EPHE")); }

  QString Path() const { return dir.path(); }
  AppPaths Paths() const { return AppPaths(dir.path()); }
  QString File(const char *relative) const { return Paths().Ephe(QLatin1String(relative)); }

 private:
  // Files that neither the program nor a test ever writes can share their room with the built ones.
  static bool IsNeverWritten(const QString &path) {
    return path.contains(QLatin1String("/SKIN/")) || path.contains(QLatin1String("/FONTI/")) || path.endsWith(QLatin1String("PLACES.DAT"));
  }

  static void Copy(const QString &from, const QString &to) {
    QDir().mkpath(to);
    for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
      // What a run of the built program has left beside the stores is not part of the data.
      if (entry.fileName().endsWith(QLatin1String(".kept")) || entry.fileName().endsWith(QLatin1String(".damaged"))) continue;
      const QString target = to + QLatin1Char('/') + entry.fileName();
      if (entry.isDir())
        Copy(entry.filePath(), target);
      else if (!IsNeverWritten(entry.filePath()) || link(qPrintable(entry.filePath()), qPrintable(target)) != 0)
        QFile::copy(entry.filePath(), target);
    }
  }

  QTemporaryDir dir;
};
