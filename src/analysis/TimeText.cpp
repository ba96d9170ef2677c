// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/TimeText.h"

#include <cmath>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"

int MinuteOfDay(double clock) {
  constexpr int day = 24 * 60;
  const int total = static_cast<int>(std::round(clsPlanets::MinToDec(clock) * 60));
  return (total % day + day) % day;
}

QString TimeText(double clock) {
  const int minutes = MinuteOfDay(clock);
  const int hour = minutes / 60;
  return QStringLiteral("%1:%2%3").arg(QString::number(hour), Functions::Two(minutes % 60),
                                       hour < 12 ? QStringLiteral(" AM") : QStringLiteral(" PM"));
}

QString TimeRangeText(double startClock, double span) { return TimeText(startClock) + QLatin1Char('-') + TimeText(startClock + span); }
