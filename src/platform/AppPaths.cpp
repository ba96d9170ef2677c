// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/AppPaths.h"

#include "platform/DataSeed.h"
#include "platform/Errors.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString EpheFolder = QStringLiteral("EPHE");

// The entry `name` of `folder` in whatever case it is written; an exact match goes before others.
QString EntryOf(const QString &folder, const QString &name) {
  const QString exact = folder + u'/' + name;
  if (QFileInfo::exists(exact)) return exact;
  const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString &entry : entries)
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return folder + u'/' + entry;
  return exact;
}

QString EpheOf(const QString &appDir) { return EntryOf(QDir(appDir).absolutePath(), EpheFolder); }

bool HoldsEphe(const QString &appDir) { return !appDir.isEmpty() && QFileInfo(EpheOf(appDir)).isDir(); }

bool CanWrite(const QString &appDir) {
  const QFileInfo ephe(EpheOf(appDir));
  return ephe.isWritable() && QFileInfo(EntryOf(ephe.filePath(), QStringLiteral("COMMON"))).isWritable();
}

AppPaths Of(const QString &appDir) { return AppPaths(QDir::cleanPath(QDir(appDir).absolutePath())); }

// The user's folder, filled or brought up to date from `source`; see Locate for a reader.
AppPaths FilledFrom(const QString &source, const QString &userDir, AppPaths::Access access) {
  const AppPaths user = Of(userDir);
  try {
    DataSeed::BringUpToDate(EpheOf(source), user);
  } catch (const StoreError &) {
    if (access == AppPaths::Access::Write || !QFileInfo(EpheOf(source)).isReadable()) throw;
    // The version is written last, so a folder that has one is whole, and its persons are the user's.
    return QFileInfo::exists(user.Ephe(DataSeed::VersionFile)) ? user : Of(source);
  }
  return user;
}

}  // namespace

AppPaths::Candidates AppPaths::Candidates::OfThisMachine(const QString &explicitAppDir) {
  Candidates all;
  all.explicitAppDir = explicitAppDir;
  all.programDir = QCoreApplication::applicationDirPath();
  all.userDataDir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/orvani");
  all.installedDirs << all.programDir + QStringLiteral("/../share/orvani");
  const QStringList shared = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  for (const QString &folder : shared) {
    const QString candidate = folder + QStringLiteral("/orvani");
    if (candidate != all.userDataDir) all.installedDirs << candidate;
  }
  return all;
}

AppPaths AppPaths::Locate(const QString &explicitAppDir, Access access) {
  return Locate(Candidates::OfThisMachine(explicitAppDir), access);
}

AppPaths AppPaths::Locate(const Candidates &candidates, Access access) {
  if (!candidates.explicitAppDir.isEmpty()) {
    if (!HoldsEphe(candidates.explicitAppDir)) {
      throw MissingFileError(tr("The folder \"%1\" holds no folder EPHE with the data files. Please name the folder that does.")
                                 .arg(QDir::toNativeSeparators(candidates.explicitAppDir)));
    }
    return Of(candidates.explicitAppDir);
  }
  // A portable copy carries its data as they were packed, apart from the EPHE that is worked in: unpacking a newer copy over it
  // renews the ones and leaves the other to the user.
  const QString packed = candidates.programDir + QStringLiteral("/share/orvani");
  if (HoldsEphe(candidates.programDir) ? CanWrite(candidates.programDir)
                                       : HoldsEphe(packed) && QFileInfo(candidates.programDir).isWritable())
    return HoldsEphe(packed) ? FilledFrom(packed, candidates.programDir, access) : Of(candidates.programDir);

  // A program folder that cannot be written, such as a mounted image, still serves as a source.
  const QStringList sources = QStringList{candidates.programDir, packed} + candidates.installedDirs;
  for (const QString &source : sources)
    if (HoldsEphe(source)) return FilledFrom(source, candidates.userDataDir, access);
  if (HoldsEphe(candidates.userDataDir)) return Of(candidates.userDataDir);
  throw MissingFileError(
      tr("The data files were not found. Please install the program again, or start it with --app-dir and the folder that "
         "holds EPHE. Looked in: %1.")
          .arg((sources + QStringList{candidates.userDataDir}).join(QStringLiteral(", "))));
}

QString AppPaths::Ephe(const QString &relative) const {
  QString slashed = relative;
  slashed.replace(u'\\', u'/');
  QString path = EntryOf(appDir, EpheFolder);
  const QStringList elements = slashed.split(u'/', Qt::SkipEmptyParts);
  for (const QString &element : elements) path = EntryOf(path, element);
  return path;
}

QString AppPaths::RecosPath() const { return Ephe(QStringLiteral("COMMON/RECOS.Dat")); }

QString AppPaths::DailyPath() const { return Ephe(QStringLiteral("COMMON/Daily.dat")); }

QString AppPaths::LangsPath() const { return Ephe(QStringLiteral("COMMON/LANGS.Dat")); }

QString AppPaths::IniPath() const { return Ephe(QStringLiteral("INIFILES/GENDAT.INI")); }

QString AppPaths::LanguageDataPath(const QString &directory) const { return Ephe(directory + u'/' + directory + QStringLiteral(".DAT")); }
