// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/FileTools.h"

#include "platform/Errors.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <cstdio>

namespace {

constexpr int LockPollMs = 10;

QString Tr(const char *text) { return QCoreApplication::translate("FileTools", text); }

[[noreturn]] void ThrowNotWritten(const QString &path, const QString &reason) {
  throw StoreError(Tr(QT_TRANSLATE_NOOP("FileTools",
                                        "The file \"%1\" cannot be written (%2). Please check that its folder may be written to and that "
                                        "the disk is not full."))
                       .arg(QDir::toNativeSeparators(path), reason),
                   StoreError::Kind::ReadOnly);
}

}  // namespace

QByteArray ReadWholeFile(const QString &path) {
  QFile file(path);
  QByteArray content;
  if (file.open(QIODevice::ReadOnly)) content = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    throw StoreError(
        Tr(QT_TRANSLATE_NOOP("FileTools", "The file \"%1\" cannot be read (%2). Please check that it is there and that you may read it."))
            .arg(QDir::toNativeSeparators(path), file.errorString()),
        StoreError::Kind::Unreadable);
  }
  return content;
}

QByteArray ReadFileIfAny(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteWholeFile(const QString &path, const QByteArray &content) {
  const QString folder = QFileInfo(path).absolutePath();
  if (!QDir().mkpath(folder)) ThrowNotWritten(path, Tr(QT_TRANSLATE_NOOP("FileTools", "its folder cannot be made")));
  if (QFileInfo(path).isDir()) {
    throw StoreError(Tr(QT_TRANSLATE_NOOP("FileTools", "There is a folder at \"%1\" where a file should be. Please move it away."))
                         .arg(QDir::toNativeSeparators(path)),
                     StoreError::Kind::NotAFile);
  }
  QSaveFile file(path);
  // Flushed by itself: what a full disk refuses at the closing is not noticed by commit, which would rename an empty file into place.
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush() || !file.commit())
    ThrowNotWritten(path, file.errorString());
}

WriteTurn::WriteTurn(const QString &path, const QString &inUse, int longestWaitMs) : lock(path + QStringLiteral(".lock")) {
  // Asked for often: left to wait by itself, the lock looks at ever longer intervals, and a busy neighbour is always there first.
  const QDeadlineTimer end(longestWaitMs);
  while (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError) {
    if (end.hasExpired()) throw StoreError(inUse, StoreError::Kind::Locked);
    QThread::msleep(LockPollMs);
  }
}

bool IsTaken(const QString &path) {
  const QFileInfo info(path);
  return info.exists() || info.isSymbolicLink();
}

QString SetAside(const QString &path) {
  QString name = path + QStringLiteral(".damaged");
  for (int number = 2; IsTaken(name); ++number) name = QStringLiteral("%1.%2.damaged").arg(path).arg(number);
  // Not QFile::rename, which copies where it cannot move: that would leave half a file on a full disk.
  if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) != 0) {
    throw StoreError(Tr(QT_TRANSLATE_NOOP("FileTools", "\"%1\" cannot be moved away. Please allow writing to its folder."))
                         .arg(QDir::toNativeSeparators(path)),
                     StoreError::Kind::ReadOnly);
  }
  return name;
}

void CheckRoom(const QString &path, qint64 bytes) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  QSaveFile probe(path);
  if (!probe.open(QIODevice::WriteOnly) || probe.write(QByteArray(bytes, ' ')) != bytes || !probe.flush())
    ThrowNotWritten(path, probe.errorString());
  probe.cancelWriting();
}
