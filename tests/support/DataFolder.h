// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

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
  static void Copy(const QString &from, const QString &to) {
    QDir().mkpath(to);
    for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
      if (entry.isDir())
        Copy(entry.filePath(), to + QLatin1Char('/') + entry.fileName());
      else
        QFile::copy(entry.filePath(), to + QLatin1Char('/') + entry.fileName());
    }
  }

  QTemporaryDir dir;
};
