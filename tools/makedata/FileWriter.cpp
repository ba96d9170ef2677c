// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "FileWriter.h"

#include "SourceError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <filesystem>
#include <system_error>

QByteArray FileWriter::Read(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw SourceError(path, 0, "cannot be read: " + file.errorString());
  return file.readAll();
}

QStringList FileWriter::ReadLines(const QString &path) {
  QByteArray content = Read(path);
  if (content.startsWith("\xEF\xBB\xBF")) content.remove(0, 3);
  QStringList lines;
  const QList<QByteArray> rawLines = content.split('\n');
  for (QByteArray raw : rawLines) {
    if (raw.endsWith('\r')) raw.chop(1);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString line = decoder.decode(raw);
    if (decoder.hasError()) throw SourceError(path, static_cast<int>(lines.size()) + 1, "this line is not UTF-8");
    lines << line;
  }
  return lines;
}

void FileWriter::Write(const QString &path, const QByteArray &content) {
  QFile present(path);
  if (present.open(QIODevice::ReadOnly) && present.readAll() == content) return;
  present.close();
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
    throw SourceError(path, 0, "cannot be written: " + file.errorString());
}

void FileWriter::MoveInto(const QString &from, const QString &to) {
  std::error_code failure;
  std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), failure);
  if (failure) throw SourceError(to, 0, "cannot be replaced: " + QString::fromStdString(failure.message()));
}

void FileWriter::MakeFolder(const QString &path) {
  if (!QDir().mkpath(path)) throw SourceError(path, 0, "this folder cannot be made");
}

bool FileWriter::ExistsInAnyCase(const QString &path) {
  const QFileInfo wanted(path);
  const QStringList names = wanted.dir().entryList(QDir::Files | QDir::Hidden | QDir::System);
  return names.contains(wanted.fileName(), Qt::CaseInsensitive);
}
