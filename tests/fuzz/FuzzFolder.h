// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QTemporaryDir>

#include "app/DailyOptions.h"
#include "platform/AppPaths.h"

// A small sound data folder in which a target spoils one file at a time.
class FuzzFolder {
 public:
  // One for the whole process.
  static FuzzFolder &Only();

  AppPaths Paths() const { return AppPaths(dir.path()); }
  QString File(const char *relative) const { return dir.path() + QStringLiteral("/EPHE/") + QLatin1String(relative); }
  QByteArray Sound(const char *relative) const { return sound.value(QLatin1String(relative)); }
  static QByteArray Read(const QString &path);

  // Puts every file back as it was, takes away what a run left, and writes the one to be tried.
  void Begin(const char *relative, const QByteArray &content);
  // The same with the user's own settings as the file to be tried.
  void BeginSettings(const QByteArray &content);
  QString SettingsPath() const;

  // One call of orvani-daily over the folder, at a fixed moment unless the options have one. Gives the exit code.
  int RunDaily(DailyOptions options) const;
  // The form of the answer varies with the input, so that all of them meet spoilt data.
  int RunDaily(const QByteArray &variedBy) const;

 private:
  FuzzFolder();
  void PutBack();

  QTemporaryDir dir;
  QHash<QString, QByteArray> sound;  // by path under EPHE
  int runs = 0;                      // Qt remembers settings files by name, so each run has another
};
