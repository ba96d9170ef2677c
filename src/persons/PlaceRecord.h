// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class Recordset;

// A place on the earth with its clock, as the stores of persons and of residences keep it.
struct PlaceRecord {
  QString City, Country;
  QString GMTDIFF;  // hours.minutes ahead of Greenwich: "+05.30"
  int LatDeg = 0, LatMT = 0;
  QString TextNS = QStringLiteral("N");
  int LongDeg = 0, LongMT = 0;
  QString TextEW = QStringLiteral("E");

  bool operator==(const PlaceRecord &) const = default;
};

// The place of the row on which the records stand, of either store.
PlaceRecord ReadPlaceRecord(const Recordset &row);
