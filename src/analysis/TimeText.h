// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// A clock number (hh.mm) as it is shown and used: to decimal hours, to the whole minute, minutes in two digits.
// An hour of 24 or more comes back by 24; the hour is not put on a 12-hour clock: 18.15 gives "18:15 PM".
QString TimeText(double clock);

// The minute of the day, 0 to 1439, that TimeText shows.
int MinuteOfDay(double clock);

// Two clock numbers joined by "-"; the end is start + span in clock arithmetic.
QString TimeRangeText(double startClock, double span);
