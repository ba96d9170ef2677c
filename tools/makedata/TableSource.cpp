// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "TableSource.h"

#include "FileWriter.h"
#include "SourceError.h"

#include <QRegularExpression>

namespace {

using Column = TableSource::Column;

// The value of a cell, or an invalid one when the text does not fit the column.
QVariant Value(const Column &column, const QString &text) {
  static const QRegularExpression degMin("^(\\d{3})([0-5]\\d)$");
  static const QRegularExpression zoneTime("^[+-]?(\\d{1,2})\\.([0-5]\\d)$");
  switch (column.kind) {
    case Column::Kind::Text: return text.isEmpty() ? QVariant() : QVariant(text);
    case Column::Kind::Free: return text;
    case Column::Kind::Whole: {
      bool isWhole = false;
      const int number = text.toInt(&isWhole);
      return isWhole && number >= column.low && number <= column.high ? QVariant(number) : QVariant();
    }
    case Column::Kind::Flag:
      if (text == "True") return 1;
      if (text == "False") return 0;
      return {};
    case Column::Kind::Letter: return text.size() == 1 && column.letters.contains(text) ? QVariant(text) : QVariant();
    case Column::Kind::DegMin: {
      const auto match = degMin.match(text);
      const int arcMinutes = match.captured(1).toInt() * 60 + match.captured(2).toInt();
      return match.hasMatch() && arcMinutes <= column.high * 60 ? QVariant(text) : QVariant();
    }
    case Column::Kind::ZoneTime: {
      const auto match = zoneTime.match(text);
      return match.hasMatch() && match.captured(1).toInt() <= 14 ? QVariant(text) : QVariant();
    }
  }
  return {};
}

}  // namespace

TableSource::TableSource(const QString &path, const std::vector<Column> &columns) {
  for (const Column &column : columns) columnNames << column.name;

  const QStringList fileLines = FileWriter::ReadLines(path);
  bool headingSeen = false;
  for (int i = 0; i < fileLines.size(); ++i) {
    if (fileLines[i].trimmed().isEmpty() || fileLines[i].startsWith(QLatin1Char('#'))) continue;
    QStringList cells = fileLines[i].split(QLatin1Char('\t'));
    for (QString &cell : cells) cell = cell.trimmed();
    if (!headingSeen) {
      if (cells != columnNames) throw SourceError(path, i + 1, "the heading must read: " + columnNames.join(' '));
      headingSeen = true;
      continue;
    }
    if (cells.size() != columnNames.size())
      throw SourceError(path, i + 1, QString("%1 cells stand under %2 columns").arg(cells.size()).arg(columnNames.size()));
    QVariantList row;
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const QString &cell = cells[static_cast<int>(c)];
      row << Value(columns[c], cell);
      if (!row.last().isValid()) throw SourceError(path, i + 1, "'" + cell + "' does not fit column " + columns[c].name);
    }
    rows.push_back(row);
    lines.push_back(i + 1);
  }
  if (!headingSeen) throw SourceError(path, 0, "the heading line is missing");
}
