// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/SamplePerson.h"

BirthRecord SamplePerson() {
  BirthRecord record;
  record.Name = QStringLiteral("Anvik Telvar");
  record.Day = 23;
  record.Month = 7;
  record.Year = 1980;
  record.Hour = 10;
  record.Minutes = 50;
  record.AMPM = 1;
  record.Sex = 1;
  record.place = {QStringLiteral("Agra"), QStringLiteral("India"), QStringLiteral("5.30"), 27, 9, QStringLiteral("N"), 78, 0,
                  QStringLiteral("E")};
  return record;
}
