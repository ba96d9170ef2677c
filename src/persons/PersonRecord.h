// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <optional>

#include "persons/PlaceRecord.h"

// One person of the list: the birth, and the residence where one is kept.
struct PersonRecord {
  QString Name;
  int Sex = 1;  // 1 male, 2 female
  int Day = 0, Month = 0, Year = 0;
  int Hour = 0, Minutes = 0, seconds = 0;  // on the 24-hour clock
  int AMPM = 1;                            // 1 before noon, 2 from noon
  PlaceRecord birth;
  std::optional<PlaceRecord> residence;
  QString TCorrVal;              // decimal hours as "+00.00"; empty where the store holds none
  std::optional<int> Tcorrinde;  // which correction was offered, where the store holds it

  // What the fields above cannot carry of a row that another program wrote: by column, that of a residence with "Res" before it, a Null,
  // a word where a number belongs, blanks around the name. Empty for what this program wrote.
  QMap<QString, QVariant> odd;

  bool operator==(const PersonRecord &) const = default;
};
