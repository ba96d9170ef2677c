// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/AppPaths.h"

#include <QCoreApplication>
#include <QString>

// Reads and writes the configuration file GENDAT.INI (UTF-8, sections in brackets, key=value). Sections and keys compare without regard
// to case. A write changes one line and leaves comments, unknown lines and the order as they are.
class clsIni {
  Q_DECLARE_TR_FUNCTIONS(clsIni)

 public:
  // Longest value that a read gives, in characters.
  static constexpr int LongestValue = 255;

  explicit clsIni(AppPaths applicationPaths) : paths(std::move(applicationPaths)) {}

  // The value under the key, trimmed, or `defaultValue` when file, section or key is not there. A file that cannot be read is told once
  // by a notice, and is as good as an empty one.
  // section: empty for "Orvani". file: empty for GENDAT.INI; a bare name lies beside it.
  QString GetIniString(const QString &key, const QString &defaultValue, const QString &section = QString(),
                       const QString &file = QString()) const;

  // Sets the value; makes section, file and folder when they are missing. Line breaks in the value become blanks. Lines that another
  // program wrote meanwhile stay; a damaged file is set aside, with a notice. A file that holds the value already is left as it is.
  // Throws StoreError when the file cannot be written; it is then as it was.
  void WriteIniString(const QString &key, const QString &value, const QString &section = QString(), const QString &file = QString()) const;

 private:
  QString FilePath(const QString &file) const;

  AppPaths paths;
};
