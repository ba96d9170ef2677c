// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/DataFiles.h"

#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/Store.h"
#include "platform/StoreKeeper.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <utility>
#include <vector>

namespace {

constexpr std::array CommonFiles{
    "COMMON\\CONYEAR.DAT", "COMMON\\SADESAT.Dat", "COMMON\\SCGRAHA.DAT", "COMMON\\SCRASI.DAT",
    "COMMON\\SCYONI.DAT",  "COMMON\\LANGS.Dat",   "COMMON\\WAIT.AVI",
};

}  // namespace

void DataFiles::CheckFileExists(const AppPaths &paths, const QString &path) {
  const bool asGiven = path.mid(1, 1) == QLatin1String(":") || QDir::isAbsolutePath(path);
  const QString full = asGiven ? path : paths.Ephe(path);
  if (!QFileInfo(full).isFile())
    throw MissingFileError(tr("File '%1' Was Not Found.\nPlease Re-Install.").arg(QDir::toNativeSeparators(full)), tr("File Not Found"));
}

void DataFiles::CheckDataFiles(const AppPaths &paths) {
  for (const char *file : CommonFiles) CheckFileExists(paths, QLatin1String(file));
}

void DataFiles::CheckPersonStore(const AppPaths &paths) {
  const QString path = paths.RecosPath();
  if (!IsTaken(path) && !StoreKeeper::SoundCopyMoment(path)) CheckFileExists(paths, path);
}

bool DataFiles::LanguageFileExists(const AppPaths &paths, const QString &directory) {
  return !directory.isEmpty() && QFileInfo(paths.LanguageDataPath(directory)).isFile();
}

void DataFiles::CheckLanguages(const AppPaths &paths) {
  const QString all = QStringLiteral("SELECT * FROM LANGUAGE");
  const QString directory = QStringLiteral("Directory");
  const QString include = QStringLiteral("Include");
  const QString path = paths.LangsPath();
  const auto isWrong = [&](const Recordset &languages) {
    const QVariant stored = languages.Field(include);
    return stored.isNull() || stored.toBool() != LanguageFileExists(paths, languages.Field(directory).toString());
  };

  // Read first: on most starts nothing has changed, and a list that cannot be written does no harm then.
  bool anyWrong = false;
  for (Recordset languages = Database::OpenDatabase(path, Database::Mode::ReadOnly)->OpenRecordset(all); !languages.AtEnd();
       languages.MoveNext())
    anyWrong = anyWrong || isWrong(languages);
  if (!anyWrong) return;
  try {
    const auto database = Database::OpenDatabase(path);
    Transaction transaction(*database);
    for (Recordset languages = database->OpenRecordset(all); !languages.AtEnd(); languages.MoveNext()) {
      if (isWrong(languages)) {
        languages.Edit();
        languages.SetField(include, LanguageFileExists(paths, languages.Field(directory).toString()));
        languages.Update();
      }
    }
    transaction.Commit();
  } catch (const StoreError &error) {
    if (error.Reason() != StoreError::Kind::ReadOnly && error.Reason() != StoreError::Kind::Locked) throw;
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}
