// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// Text of the terminal, in its columns.
namespace TerminalText {

// A title over a line of its length.
inline QString Rule(const QString &title) { return QStringLiteral("\n%1\n%2\n").arg(title, QString(title.size(), QLatin1Char('-'))); }

// A paragraph broken between words; a word longer than a line keeps a line of its own. width: with the indent.
inline QString Paragraph(const QString &text, int width) {
  constexpr int indent = 2;
  QString lines, line;
  const auto endLine = [&] {
    if (!line.isEmpty()) lines += QString(indent, QLatin1Char(' ')) + line + QLatin1Char('\n');
    line.clear();
  };
  for (const QString &word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (!line.isEmpty() && indent + line.size() + 1 + word.size() > width) endLine();
    if (!line.isEmpty()) line += QLatin1Char(' ');
    line += word;
  }
  endLine();
  return lines;
}

}  // namespace TerminalText
