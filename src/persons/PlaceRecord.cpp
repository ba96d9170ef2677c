// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlaceRecord.h"

#include "platform/Recordset.h"

PlaceRecord ReadPlaceRecord(const Recordset &row) {
  const auto text = [&](const char *column) { return row.Field(QLatin1String(column)).toString(); };
  const auto whole = [&](const char *column) { return row.Field(QLatin1String(column)).toInt(); };
  return {text("City"),   text("Country"),  text("GMTDIFF"), whole("LatDeg"), whole("LatMT"),
          text("TextNS"), whole("LongDeg"), whole("LongMT"), text("TextEW")};
}
