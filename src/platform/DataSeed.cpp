// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/DataSeed.h"

#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/StoreKeeper.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

constexpr int LongestWaitMs = 10000;

// What the user's work goes into, relative to EPHE.
bool IsUsersOwn(const QString &relative) {
  const QString name = relative.toLower();
  return name == QLatin1String("common/recos.dat") || name == QLatin1String("common/daily.dat") ||
         name.startsWith(QLatin1String("inifiles/"));
}

// What a run has put beside the stores of a folder that now serves as a source: another user's, and no data of the program.
bool IsLeftByARun(const QString &relative) {
  return relative.endsWith(QLatin1String(".kept"), Qt::CaseInsensitive) ||
         relative.contains(QLatin1String(".damaged"), Qt::CaseInsensitive) || relative.endsWith(QLatin1String(".lock"));
}

QByteArray Version(const QString &path) { return QFileInfo::exists(path) ? ReadWholeFile(path).trimmed() : QByteArray(); }

}  // namespace

void DataSeed::BringUpToDate(const QString &installedEphe, const AppPaths &user) {
  // Of two programs that start for the first time, the second must not lay a fresh store over one that the first has begun to fill.
  const QString epheFolder = user.Ephe(QString());
  QDir().mkpath(epheFolder);
  const WriteTurn turn(epheFolder + QStringLiteral("/SEED"),
                       tr("The data folder \"%1\" is being filled by another program. Please wait until that is done and try again.")
                           .arg(QDir::toNativeSeparators(epheFolder)),
                       LongestWaitMs);

  const QByteArray installedVersion = Version(installedEphe + u'/' + VersionFile);
  const bool renew = !installedVersion.isEmpty() && installedVersion != Version(user.Ephe(VersionFile));

  QDirIterator files(installedEphe, QDir::Files, QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
  while (files.hasNext()) {
    const QString source = files.next();
    const QString relative = QDir(installedEphe).relativeFilePath(source);
    if (relative == VersionFile || IsLeftByARun(relative)) continue;
    const QString target = user.Ephe(relative);
    const bool usersOwn = IsUsersOwn(relative);
    // A link into nothing is the user's too: the drive that holds the file may only be away.
    if (usersOwn ? IsTaken(target) : QFileInfo::exists(target) && !renew) continue;
    if (const std::optional<QDateTime> kept = StoreKeeper::SoundCopyMoment(target); usersOwn && kept) {
      WriteWholeFile(target, ReadWholeFile(StoreKeeper::KeptPath(target)));
      Notices::Show({Notice::Kind::Warning, QString(),
                     tr("The data file \"%1\" was missing. The copy kept on %2 was put in its place.")
                         .arg(QDir::toNativeSeparators(target), kept->toString(StoreKeeper::MomentFormat))});
      continue;
    }
    WriteWholeFile(target, ReadWholeFile(source));
  }
  // Last, so that a run that was cut off counts as not done.
  if (renew) WriteWholeFile(user.Ephe(VersionFile), installedVersion + '\n');
}
