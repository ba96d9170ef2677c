// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

// The words of one language, gathered from its text files.
//
// A file holds comment lines (`# ...`), places (`@table NAME`, `@category NAME`) and rows: `head = value` on one line, or a line
// `[head]` followed by the lines of a paragraph, up to the next line that starts with `[` or `@`.
class TextSource {
 public:
  struct Row {
    QString table;
    QString head;
    QString category;
    QString val;
  };

  // The tables that every language has, in the order in which they are made; also those that no text fills yet.
  static const QStringList &Tables();

  // Adds the rows of one file.
  // Throws SourceError for an unreadable line, an unknown table, or a head that its table and category already have.
  void AddFile(const QString &path);

  const std::vector<Row> &Rows() const { return rows; }

 private:
  void AddRow(const QString &file, int line, const QString &table, const QString &head, const QString &category, const QString &val);

  std::vector<Row> rows;
  QHash<QString, QString> places;  // table, category and head in small letters, to "file:line" of the row
};
