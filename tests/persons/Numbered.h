// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "persons/PersonRecord.h"

// A person whose fields all follow from one number, so that a mixture of two is seen.
inline PersonRecord Numbered(const QString &name, int n) {
  PersonRecord record;
  record.Name = name;
  record.Sex = 1 + n % 2;
  record.Day = 1 + n % 28;
  record.Month = 1 + n % 12;
  record.Year = 1900 + n % 100;
  record.Hour = n % 24;
  record.Minutes = n % 60;
  record.AMPM = record.Hour >= 12 ? 2 : 1;
  record.birth = {"Agra", "India", "+05.30", n % 90, n % 60, "N", n % 180, n % 60, "E"};
  record.residence = PlaceRecord{"Lima", "Peru", "-05.00", n % 90, n % 60, "S", n % 180, n % 60, "W"};
  return record;
}
