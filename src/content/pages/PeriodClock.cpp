// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PeriodClock.h"

#include <QCoreApplication>
#include <cmath>

#include "analysis/TimeText.h"

namespace PeriodClock {
namespace {

constexpr int Day = 24 * 60;
// A page that was opened this long ago still shows the present.
constexpr int FreshMinutes = 10;

int MinutesOf(const QTime &time) { return time.hour() * 60 + time.minute(); }

}  // namespace

int Minutes(double startClock, double endClock) { return (MinuteOfDay(endClock) - MinuteOfDay(startClock) + Day) % Day; }

bool Holds(double startClock, double endClock, const QTime &time) {
  return (MinutesOf(time) - MinuteOfDay(startClock) + Day) % Day < Minutes(startClock, endClock);
}

bool IsBeforeSunrise(double sunriseClock, const QTime &time) { return MinutesOf(time) < MinuteOfDay(sunriseClock); }

QString Word(const QDateTime &moment) {
  // Moments are kept as a plain calendar, so the machine's clock is read as one too.
  const QDateTime clock(QDate::currentDate(), QTime::currentTime(), Qt::UTC);
  const bool isNow = std::abs(moment.secsTo(clock)) <= FreshMinutes * 60;
  // Both words carry the time, so that a page is laid out alike at every hour.
  const QString word = isNow ? QCoreApplication::translate("PeriodClock", "now %1") : QCoreApplication::translate("PeriodClock", "at %1");
  return word.arg(moment.time().toString(QStringLiteral("H:mm")));
}

}  // namespace PeriodClock
