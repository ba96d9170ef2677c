// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>

// The clock of a place: a fixed difference, or a time zone with its history of daylight saving. Clock times are QDateTimes in
// UTC, used as a plain calendar; moments are Julian days in universal time.
class ExactZone {
 public:
  explicit ExactZone(int minutesEast = 0) : fixedSeconds(minutesEast * 60) {}
  // An unknown name falls back on the fixed difference.
  ExactZone(const QString &zoneName, int minutesEast);

  QDateTime LocalOf(double universalDay) const;  // to the nearest second
  double UniversalOf(const QDateTime &local) const;
  // The date's first moment; the first one that exists where the clocks are put on at midnight.
  double StartOf(const QDate &date) const;
  int SecondsEastAt(double universalDay) const;
  bool HasDaylightSaving(double universalDay) const;  // summer time is in force
  QString Name() const;                               // "Asia/Kolkata", empty for a fixed difference
  static QString OffsetText(int secondsEast);         // "UTC+5:30"

  bool operator==(const ExactZone &) const = default;

 private:
  int fixedSeconds;
  QTimeZone zone;
};
