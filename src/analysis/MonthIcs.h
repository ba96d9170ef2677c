// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>

class clsPlanets;

// A month as a calendar file (iCalendar, RFC 5545): a whole-day entry for each day with its tithi, nakshatra and times, and a timed
// entry for each mark that has a moment.
namespace MonthIcs {

// made: when the file is written, universal time.
QByteArray Calendar(const clsPlanets &todayChart, int year, int month, const QDateTime &made);

// The text inside a property: backslash, semicolon, comma and line ends escaped.
QString Escaped(const QString &text);
// A line with its end, broken after at most 75 bytes and never inside a letter.
QByteArray Folded(const QString &line);

}  // namespace MonthIcs
