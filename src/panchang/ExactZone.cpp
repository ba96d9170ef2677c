// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/ExactZone.h"

#include <cmath>

namespace {

constexpr double EpochJulianDay = 2440587.5;  // 1970 January 1, 0h
constexpr double DaySeconds = 86400;

QDateTime PlainFromSeconds(qint64 seconds) { return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC); }

// Seconds since 1970, the nearest whole one.
qint64 EpochSeconds(double universalDay) { return std::llround((universalDay - EpochJulianDay) * DaySeconds); }

}  // namespace

ExactZone::ExactZone(const QString &zoneName, int minutesEast) : fixedSeconds(minutesEast * 60) {
  if (!zoneName.isEmpty()) zone = QTimeZone(zoneName.toLatin1());
}

int ExactZone::SecondsEastAt(double universalDay) const {
  return zone.isValid() ? zone.offsetFromUtc(PlainFromSeconds(EpochSeconds(universalDay))) : fixedSeconds;
}

bool ExactZone::HasDaylightSaving(double universalDay) const {
  return zone.isValid() && zone.isDaylightTime(PlainFromSeconds(EpochSeconds(universalDay)));
}

QDateTime ExactZone::LocalOf(double universalDay) const {
  return PlainFromSeconds(EpochSeconds(universalDay) + SecondsEastAt(universalDay));
}

double ExactZone::UniversalOf(const QDateTime &local) const {
  const qint64 shown = QDateTime(local.date(), local.time(), Qt::UTC).toSecsSinceEpoch();
  qint64 seconds = shown - fixedSeconds;
  if (zone.isValid()) seconds = QDateTime(local.date(), local.time(), zone).toSecsSinceEpoch();
  return EpochJulianDay + static_cast<double>(seconds) / DaySeconds;
}

double ExactZone::StartOf(const QDate &date) const {
  const qint64 seconds =
      zone.isValid() ? date.startOfDay(zone).toSecsSinceEpoch() : date.startOfDay(Qt::UTC).toSecsSinceEpoch() - fixedSeconds;
  return EpochJulianDay + static_cast<double>(seconds) / DaySeconds;
}

QString ExactZone::Name() const { return zone.isValid() ? QString::fromLatin1(zone.id()) : QString(); }

QString ExactZone::OffsetText(int secondsEast) {
  const int minutes = std::abs(secondsEast) / 60;
  return QStringLiteral("UTC%1%2:%3")
      .arg(secondsEast < 0 ? QLatin1Char('-') : QLatin1Char('+'))
      .arg(minutes / 60)
      .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}
