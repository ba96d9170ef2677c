// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFileInfo>

// For as long as it lives, a test that root runs has the rights of nobody in particular, and so have the programs that it starts: root
// may write everywhere, so that nothing is read-only to it.
class OrdinaryUser {
 public:
  // folder: what this user is to own. programFile: what this user must be able to start.
  OrdinaryUser(const QString &folder, const QString &programFile) {
    if (geteuid() != 0) return;
    Give(folder);
    for (QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         entries.hasNext();)
      Give(entries.next());
    wasRoot = setresuid(Nobody, Nobody, 0) == 0;
    canStart = QFileInfo(programFile).isExecutable();
  }
  ~OrdinaryUser() {
    if (wasRoot && setresuid(0, 0, 0) != 0) _exit(1);
  }
  OrdinaryUser(const OrdinaryUser &) = delete;
  OrdinaryUser &operator=(const OrdinaryUser &) = delete;

  bool CanStart() const { return canStart; }

 private:
  static constexpr uid_t Nobody = 65534;

  // What the folder shares with the built data stays the builder's.
  static void Give(const QString &path) {
    struct stat entry {};
    if (lstat(qPrintable(path), &entry) == 0 && S_ISREG(entry.st_mode) && entry.st_nlink > 1) return;
    if (lchown(qPrintable(path), Nobody, Nobody) != 0) _exit(1);
  }

  bool wasRoot = false, canStart = true;
};
