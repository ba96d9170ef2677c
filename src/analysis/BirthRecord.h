// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

#include "persons/PlaceRecord.h"

// A person's birth as the store of persons keeps it.
struct BirthRecord {
  QString Name;
  int Day = 0, Month = 0, Year = 0, Hour = 0, Minutes = 0, AMPM = 0;
  int Sex = 0;
  PlaceRecord place;
  QString TimeCorr;  // decimal hours; empty for none
};

// A stored time difference (hours.minutes) as the chart takes it: decimal hours in the shortest text that reads back.
// Throws ConversionError that names GMTDIFF for an empty or unreadable text.
QString DecimalGmtDiff(const QString &stored);

// Throw ConversionError with a sentence for a time that no clock shows and a place that no globe has, as a damaged store may hold them:
// hours to 24, latitudes to 90 and longitudes to 180 degrees, time differences to 24 hours. Whether the date exists, the chart tells.
void CheckPlace(const PlaceRecord &place);
void CheckBirth(const BirthRecord &birth);
