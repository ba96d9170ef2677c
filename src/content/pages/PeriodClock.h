// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

// Which period of a day runs at a moment, on the times as they are shown.
namespace PeriodClock {

// Minutes of the day, 0 to 1439, of a clock number (hh.mm), to the minute that the page shows.
int MinutesOfDay(double clock);

// Minutes from one clock number up to the next time that it shows the other, 0 to 1439.
int Minutes(double startClock, double endClock);

// Whether the moment's time lies from start up to end; a period may run past midnight.
bool Holds(double startClock, double endClock, const QTime &time);

// The Vedic day begins at sunrise: before it the periods of the day before still run.
bool IsBeforeSunrise(double sunriseClock, const QTime &time);

// "now 9:05" for a moment of this very time by the machine's clock, otherwise "at 9:05".
QString Word(const QDateTime &moment);

}  // namespace PeriodClock
