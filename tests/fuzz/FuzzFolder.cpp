// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "fuzz/FuzzFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include "app/DailyRun.h"
#include "fuzz/Fuzz.h"
#include "platform/Database.h"
#include "platform/Notices.h"

namespace {

const QDateTime Moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);

void Write(const QString &path, const QByteArray &content) {
  QFile file(path);
  Require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the folder for trying can be written");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
  static const QCoreApplication application(*argc, *argv);  // the database drivers are plugins, which it finds
  Notices::Install([](const Notice &notice) { Require(!notice.text.isEmpty(), "a notice says something"); });
  Database::SetBusyTimeout(0);
  return 0;
}

FuzzFolder &FuzzFolder::Only() {
  static FuzzFolder folder;
  return folder;
}

FuzzFolder::FuzzFolder() {
  qputenv("XDG_CONFIG_HOME", dir.path().toUtf8() + "/settings0");
  const QString from = QStringLiteral(ORVANI_FUZZ_DATA "/EPHE");
  QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    sound.insert(QDir(from).relativeFilePath(path), Read(path));
  }
  Require(!sound.isEmpty(), "the small data folder is made");
  PutBack();
}

QByteArray FuzzFolder::Read(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FuzzFolder::PutBack() {
  QDirIterator left(dir.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (left.hasNext()) QFile::remove(left.next());
  for (auto file = sound.constBegin(); file != sound.constEnd(); ++file) {
    const QString path = dir.path() + QStringLiteral("/EPHE/") + file.key();
    QDir().mkpath(QFileInfo(path).path());
    Write(path, file.value());
  }
  QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).removeRecursively();
  qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("settings%1").arg(++runs)).toUtf8());
}

void FuzzFolder::Begin(const char *relative, const QByteArray &content) {
  PutBack();
  Write(File(relative), content);
}

void FuzzFolder::BeginSettings(const QByteArray &content) {
  PutBack();
  QDir().mkpath(QFileInfo(SettingsPath()).path());
  Write(SettingsPath(), content);
}

QString FuzzFolder::SettingsPath() const { return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/orvani/orvani.conf"); }

int FuzzFolder::RunDaily(DailyOptions options) const {
  options.appDir = dir.path();
  if (!options.at) options.at = Moment;
  const int code = ::RunDaily(options);
  Require(code >= 0 && code <= 2, "the exit code is one of the three");
  return code;
}

int FuzzFolder::RunDaily(const QByteArray &variedBy) const {
  constexpr DailyOptions::Form forms[] = {DailyOptions::Form::Text, DailyOptions::Form::Read, DailyOptions::Form::Json,
                                          DailyOptions::Form::Exact};
  DailyOptions options;
  options.form = forms[qChecksum(variedBy) % 4];
  return RunDaily(options);
}
