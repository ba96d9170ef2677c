// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

// Which period of a day runs at a moment. Times are clock numbers (hh.mm), taken to the minute that the page shows.
namespace PeriodClock {

// Minutes from the start up to the next time that the clock shows the end, 0 to 1439.
int Minutes(double startClock, double endClock);

// Whether the moment's time lies from start up to end; a period may run past midnight.
bool Holds(double startClock, double endClock, const QTime &time);

// The Vedic day begins at sunrise: before it the periods of the day before still run.
bool IsBeforeSunrise(double sunriseClock, const QTime &time);

// "now 9:05" for a moment of this very time by the machine's clock, otherwise "at 9:05".
QString Word(const QDateTime &moment);

}  // namespace PeriodClock
