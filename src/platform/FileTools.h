// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>

// Whole files at once, for the other sources of this folder.

// Throws StoreError that names the file.
QByteArray ReadWholeFile(const QString &path);

// The same for what can be done without: empty where there is no such file or it cannot be read.
QByteArray ReadFileIfAny(const QString &path);

// Writes aside and renames, so that the file is the old one or the new one and never half of each. Makes the folder when needed.
// Throws StoreError that names the file, which is then as it was.
void WriteWholeFile(const QString &path, const QByteArray &content);

// The turn to read a file and write it anew: of the programs that ask for one, nobody else writes in between. It ends with the object.
class WriteTurn {
 public:
  // Waits for it; where the folder cannot be written there is nothing to wait for, and the write itself tells that.
  // Throws StoreError (Locked) with the sentence `inUse` when another program keeps its turn for longer than that.
  WriteTurn(const QString &path, const QString &inUse, int longestWaitMs = 2000);

 private:
  QLockFile lock;
};

// Moves a file, link or folder out of the way to a name beside it that no other has: "RECOS.Dat.damaged", "RECOS.Dat.2.damaged", ...
// Returns that name.
// Throws StoreError when it cannot be moved.
QString SetAside(const QString &path);

// Whether a file of that size could be written in the place of `path`, which stays as it is.
// Throws StoreError that names the file.
void CheckRoom(const QString &path, qint64 bytes);

// Whether anything lies under the name, a link into nothing too.
bool IsTaken(const QString &path);
