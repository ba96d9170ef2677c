// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// A place of the list, in the form of the table City.
struct Place {
  qlonglong row = 0;  // rowid in the table
  QString City, Country;
  QString Lat, Longy;  // dddmm
  QString NOSO = QStringLiteral("N"), EaWe = QStringLiteral("E");
  QString GMTDIFF;           // standard difference, hours.minutes
  QString Region;            // state or province; may be empty
  QString Zone;              // IANA time zone, "Asia/Kolkata"; empty for a place that the user added
  QString Known;             // other names, separated by ";"
  qlonglong Population = 0;  // 0 where it is not known

  bool operator==(const Place &) const = default;
};
