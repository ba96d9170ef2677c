// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/DataSeed.h"

#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/StoreKeeper.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

// What the user's work goes into, relative to EPHE.
bool IsUsersOwn(const QString &relative) {
  const QString name = relative.toLower();
  return name == QLatin1String("common/recos.dat") || name == QLatin1String("common/daily.dat") ||
         name.startsWith(QLatin1String("inifiles/"));
}

// What a run has put beside the stores of a folder that now serves as a source: another user's, and no data of the program.
bool IsLeftByARun(const QString &relative) {
  return relative.endsWith(QLatin1String(".kept"), Qt::CaseInsensitive) ||
         relative.endsWith(QLatin1String(".damaged"), Qt::CaseInsensitive);
}

QByteArray Version(const QString &path) { return QFileInfo::exists(path) ? ReadWholeFile(path).trimmed() : QByteArray(); }

}  // namespace

void DataSeed::BringUpToDate(const QString &installedEphe, const AppPaths &user) {
  const QByteArray installedVersion = Version(installedEphe + u'/' + kVersionFile);
  const bool renew = !installedVersion.isEmpty() && installedVersion != Version(user.Ephe(kVersionFile));

  QDirIterator files(installedEphe, QDir::Files, QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
  while (files.hasNext()) {
    const QString source = files.next();
    const QString relative = QDir(installedEphe).relativeFilePath(source);
    if (relative == kVersionFile || IsLeftByARun(relative)) {
      continue;
    }
    const QString target = user.Ephe(relative);
    const bool usersOwn = IsUsersOwn(relative);
    if (QFileInfo::exists(target) && (usersOwn || !renew)) {
      continue;
    }
    if (const std::optional<QDateTime> kept = StoreKeeper::KeptMoment(target); usersOwn && kept) {
      WriteWholeFile(target, ReadWholeFile(StoreKeeper::KeptPath(target)));
      Notices::Show({Notice::Kind::Warning, QString(),
                     tr("The data file \"%1\" was missing. The copy kept on %2 was put in its place.")
                         .arg(QDir::toNativeSeparators(target), kept->toString(StoreKeeper::kMomentFormat))});
      continue;
    }
    WriteWholeFile(target, ReadWholeFile(source));
  }
  // Last, so that a run that was cut off counts as not done.
  if (renew) {
    WriteWholeFile(user.Ephe(kVersionFile), installedVersion + '\n');
  }
}
