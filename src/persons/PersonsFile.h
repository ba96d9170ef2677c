// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "persons/PersonRecord.h"

// The list of persons as a file to keep or to hand on: CSV for a table program, JSON for other programs. What is written reads back as
// the same persons.
class PersonsFile {
 public:
  enum class Format { Csv, Json };

  // By the file's ending; CSV for any but ".json".
  static Format FormatOf(const QString &path);

  static QByteArray Write(const std::vector<PersonRecord> &persons, Format format);

  struct Contents {
    std::vector<PersonRecord> persons;
    // One sentence for each row that was left out, with its line: "Line 7: there is no 31 February 1980."
    QStringList faults;
    // One sentence for each row that came in and looks wrong all the same.
    QStringList doubts;

    void Take(PersonRecord &&record, const QString &fault, int line);
  };
  // Bad rows are left out and told; the good ones come in. Throws ConversionError where nothing of the file can be read.
  static Contents Read(const QByteArray &content, Format format);

  // What is wrong with a record, as a sentence without a full stop at its start; empty where it is sound.
  static QString FaultOf(const PersonRecord &record);
};
