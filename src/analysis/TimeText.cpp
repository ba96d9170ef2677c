// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/TimeText.h"

#include <cmath>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"

QString TimeText(double clock) {
  constexpr int day = 24 * 60;
  // A clock number has few digits; what lies beyond them is noise that must not decide which way a half minute goes.
  const double minutesOfDay = std::round(clsPlanets::MinToDec(clock) * 60 * 1e6) / 1e6;
  const int total = Functions::Whole(std::floor(minutesOfDay + 0.5));
  const int minutes = (total % day + day) % day;
  const int hour = minutes / 60;
  return QStringLiteral("%1:%2%3").arg(QString::number(hour), Functions::Two(minutes % 60),
                                       hour < 12 ? QStringLiteral(" AM") : QStringLiteral(" PM"));
}

QString TimeRangeText(double startClock, double span) { return TimeText(startClock) + QLatin1Char('-') + TimeText(startClock + span); }
