// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Where the program's files lie. Everything hangs under the folder EPHE of one application folder; names are found without regard
// to case, and "\" separates folders as well as "/".
class AppPaths {
  Q_DECLARE_TR_FUNCTIONS(AppPaths)

 public:
  // The folders among which the application folder is chosen.
  struct Candidates {
    QString explicitAppDir;     // from the command line; empty when none was given
    QString programDir;         // folder of the program file
    QString userDataDir;        // the user's own folder for this program; made when needed
    QStringList installedDirs;  // folders that may hold an installed EPHE, best first

    static Candidates OfThisMachine(const QString &explicitAppDir);
  };

  // What the caller wants of the folder.
  enum class Access { Write, Read };

  // Chooses the application folder: the one given; else the program's when its EPHE can be written (a build tree), or can be made and
  // brought up to date from the share/orvani beside the program (a portable copy); else the user's data folder, filled or brought up
  // to date from the installed data. User's own files there are never overwritten.
  // Where the data cannot be copied, a reader takes the user's folder as it stands when it was filled once, else the installed data.
  // Throws MissingFileError when there are no data files, StoreError when they cannot be copied and are to be written.
  static AppPaths Locate(const QString &explicitAppDir = QString(), Access access = Access::Write);
  static AppPaths Locate(const Candidates &candidates, Access access = Access::Write);

  // For an application folder that is already known.
  explicit AppPaths(QString applicationDir) : appDir(std::move(applicationDir)) {}

  // Absolute, with "/" and without one at the end.
  const QString &AppDir() const { return appDir; }

  // The full path of a file or folder under EPHE, such as "COMMON\\RECOS.Dat": the existing one, whatever the case of its
  // letters, or the path as it would be.
  QString Ephe(const QString &relative) const;

  QString RecosPath() const;                                 // persons, cities, countries
  QString DailyPath() const;                                 // residences
  QString LangsPath() const;                                 // list of languages
  QString IniPath() const;                                   // GENDAT.INI
  QString LanguageDataPath(const QString &directory) const;  // text store of one language, by its `Directory`

 private:
  QString appDir;
};
