// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <vector>

// A table kept as tab-separated text under one heading line of column names; comment lines begin with `# `.
class TableSource {
 public:
  // What a column may hold.
  struct Column {
    enum class Kind {
      Text,      // anything but nothing
      Free,      // anything, or nothing
      Whole,     // a whole number from `low` to `high`
      Flag,      // "True" or "False"
      Letter,    // one of the letters of `letters`
      DegMin,    // five digits dddmm: degrees up to `high`, then minutes
      ZoneTime,  // hours.minutes ahead of Greenwich with two digits of minutes, such as 5.30 or -3.30
    };
    QString name;
    Kind kind = Kind::Text;
    int low = 0;
    int high = 0;
    QString letters{};
  };

  // Reads a file.
  // Throws SourceError when the heading differs from the columns or a cell does not fit its column.
  TableSource(const QString &path, const std::vector<Column> &columns);

  QStringList ColumnNames() const { return columnNames; }
  const std::vector<QVariantList> &Rows() const { return rows; }

  // The line of the file that a row stands on.
  int LineOf(std::size_t row) const { return lines[row]; }

 private:
  QStringList columnNames;
  std::vector<QVariantList> rows;
  std::vector<int> lines;
};
