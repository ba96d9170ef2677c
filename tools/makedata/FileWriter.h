// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The files of the tree under construction. A file appears under its name only when it is whole.
class FileWriter {
 public:
  // Throws SourceError when the file cannot be read.
  static QByteArray Read(const QString &path);

  // The lines of a UTF-8 text file without line ends and without a byte order mark.
  // Throws SourceError when it cannot be read or a line is not UTF-8.
  static QStringList ReadLines(const QString &path);

  // Writes beside and renames; a file that already holds these bytes keeps its time of change.
  // Throws SourceError when the file cannot be written.
  static void Write(const QString &path, const QByteArray &content);

  // Moves a finished file to its place, over the one that may be there.
  // Throws SourceError when it cannot be moved.
  static void MoveInto(const QString &from, const QString &to);

  // Makes a folder and those above it.
  // Throws SourceError when it cannot be made.
  static void MakeFolder(const QString &path);

  // True when the folder holds a file of this name in any case of its letters: the program finds files so, and a second
  // `recos.dat` beside the user's own would hide one of them.
  static bool ExistsInAnyCase(const QString &path);
};
