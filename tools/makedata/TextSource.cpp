// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "TextSource.h"

#include "FileWriter.h"
#include "SourceError.h"

namespace {

// What follows a word of command such as "@table", trimmed; a null text when the line holds another word.
QString After(const QString &line, const QString &command) {
  if (line == command) return QStringLiteral("");
  return line.startsWith(command + QLatin1Char(' ')) ? line.mid(command.size()).trimmed() : QString();
}

}  // namespace

const QStringList &TextSource::Tables() {
  static const QStringList tables{"CNVT",      "Daily",   "Transits", "MarMatch", "Muhu",    "Bhava",
                                  "Nakshatra", "FORTUNE", "ASP",      "YOGAS",    "YOGNAME", "VPHALA"};
  return tables;
}

void TextSource::AddFile(const QString &path) {
  const QStringList lines = FileWriter::ReadLines(path);
  QString table;
  QString category;
  QString paragraphHead;
  QStringList paragraph;
  int paragraphLine = 0;

  const auto endParagraph = [&] {
    if (paragraphLine == 0) return;
    if (paragraph.isEmpty()) throw SourceError(path, paragraphLine, "no text follows [" + paragraphHead + "]");
    AddRow(path, paragraphLine, table, paragraphHead, category, paragraph.join(QLatin1Char(' ')));
    paragraph.clear();
    paragraphLine = 0;
  };

  for (int i = 0; i < lines.size(); ++i) {
    const int number = i + 1;
    const QString line = lines[i].simplified();
    if (line.isEmpty() || line == "#" || line.startsWith("# ")) continue;

    if (line.startsWith(QLatin1Char('@'))) {
      endParagraph();
      if (const QString name = After(line, "@table"); !name.isNull()) {
        if (!Tables().contains(name)) throw SourceError(path, number, "there is no table '" + name + "'");
        table = name;
        category.clear();
      } else if (const QString family = After(line, "@category"); !family.isNull()) {
        category = family;
      } else {
        throw SourceError(path, number, "expected @table or @category, found '" + line + "'");
      }
    } else if (line.startsWith(QLatin1Char('['))) {
      endParagraph();
      if (!line.endsWith(QLatin1Char(']')) || line.size() < 3)
        throw SourceError(path, number, "a head in brackets stands on a line of its own: [head]");
      paragraphHead = line.mid(1, line.size() - 2).trimmed();
      paragraphLine = number;
    } else if (paragraphLine > 0) {
      paragraph << line;
    } else {
      const auto split = line.indexOf(QLatin1String(" = "));
      if (split <= 0) throw SourceError(path, number, "expected 'head = value', found '" + line.left(60) + "'");
      AddRow(path, number, table, line.left(split), category, line.mid(split + 3));
    }
  }
  endParagraph();
}

void TextSource::AddRow(const QString &file, int line, const QString &table, const QString &head, const QString &category,
                        const QString &val) {
  if (table.isEmpty()) throw SourceError(file, line, "no @table line stands before this row");
  // Heads and categories are found without regard to case, so two that differ in case alone would be one head given twice.
  const QString place = (table + QChar(1) + category + QChar(1) + head).toLower();
  if (const auto first = places.constFind(place); first != places.constEnd())
    throw SourceError(file, line, "head '" + head + "' of category '" + category + "' in " + table + " was given at " + *first);
  places.insert(place, QStringLiteral("%1:%2").arg(file).arg(line));
  rows.push_back({table, head, category, val});
}
