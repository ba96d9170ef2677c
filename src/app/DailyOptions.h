// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

#include "analysis/BirthRecord.h"

// What one call of orvani-daily asks for.
struct DailyOptions {
  enum class Action { ShowDay, ListPersons, Restore, Help, Version };
  enum class Form { Text, Json, Read, Exact };

  Action action = Action::ShowDay;
  Form form = Form::Text;
  QString appDir;
  QString personName;                    // empty: the last person, else the first
  std::optional<BirthRecord> birth;      // a person given on the line
  std::optional<PlaceRecord> residence;  // a residence given on the line
  std::optional<QDateTime> at;           // local moment at the residence; none: now
  std::optional<int> ayanType, nodes, upagraha, divisions, sunrise;
  std::optional<QString> customAyan;  // decimal degrees
  std::optional<QDate> month;         // a month in place of the day
  QString icsFile;                    // of that month, or of the day's; empty: none
  QString pdfFile;                    // empty: no report
  QStringList topics;                 // of the report, by key; empty for all
  QString helpText;

  // Throws UsageError with one sentence that names what is wrong and shows the right form.
  static DailyOptions Parse(const QStringList &arguments);
};
