// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

// The texts of a person's fields and the values behind them. What cannot be read is an empty answer, never a guess.
namespace PersonFields {

// What the fields of a place show where none is entered.
inline const QString NoAngle = QStringLiteral("000:00");
inline const QString NoDifference = QStringLiteral("+00.00");

constexpr int NorthPole = 90;  // degrees

struct ClockTime {
  int hour = 0;     // 0 to 23
  int minutes = 0;  // 0 to 59
};

struct Degrees {
  int degrees = 0;  // 0 to 180
  int minutes = 0;  // 0 to 59
  int ArcMinutes() const { return degrees * 60 + minutes; }
};

// "9.05", "09.05" and "09:05" are five past nine; "9.5" is nothing, since it could be 9.05 or 9.50.
std::optional<ClockTime> ReadTime(const QString &text);
QString TimeText(int hour, int minutes);  // "09.05"

// Whether a time as far as it is typed lies in the second half of the day: the number at its start is 12 or more.
bool IsAfternoon(const QString &text);
// The same clock reading in the chosen half of the day: 01.30 becomes 13.30, 12.30 becomes 00.30. A text without an hour stays.
QString InHalfOfDay(const QString &text, bool afternoon);

// "27:09" and "027:09"; degrees up to 180.
std::optional<Degrees> ReadDegrees(const QString &text);
QString DegreesText(int degrees, int minutes);  // "027:09"
QString ShownDegrees(const QString &stored);    // "02709" -> "027:09"; another text stays as it is
QString StoredDegrees(const QString &shown);    // the first three characters and the last two: "027:09" -> "02709"

// A stored angle with its hemisphere as one number of minutes: south and west, in small letters too, are below 0. 0 for what is no angle.
int SignedArcMinutes(const QString &dddmm, const QString &hemisphere);

// Minutes ahead of Greenwich from hours.minutes with two digits of minutes: "+05.30", "-3.30", "5:30". Up to 15.59 either way, since
// local times before the date line was agreed on went so far.
std::optional<int> ReadDifference(const QString &text);
// As stores keep it, also shorter: "5.3" and "5.30" are both 5 hours 30 minutes, "0" is Greenwich.
std::optional<int> ReadStoredDifference(const QString &text);
QString DifferenceText(int minutes);             // 330 -> "+05.30"
QString ShownDifference(const QString &stored);  // in the form +00.00; an unreadable text as it is

QString MonthName(int month);          // "January" to "December"; empty outside 1 to 12
int MonthNumber(const QString &name);  // 0 for another word; the case of letters does not matter

}  // namespace PersonFields
