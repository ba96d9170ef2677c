// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

// A source that cannot be turned into data, or a file that cannot be read or written.
class SourceError : public std::exception {
 public:
  // line: counted from 1; 0 when the whole file is meant.
  SourceError(const QString &file, int line, const QString &message)
      : sentence((line > 0 ? QStringLiteral("%1:%2: ").arg(file).arg(line) : file + QStringLiteral(": ")) + message),
        bytes(sentence.toUtf8()) {}

  const char *what() const noexcept override { return bytes.constData(); }

 private:
  QString sentence;
  QByteArray bytes;
};
