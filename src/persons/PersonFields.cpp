// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PersonFields.h"

#include <QRegularExpression>
#include <array>

#include "engine/Functions.h"

namespace {

constexpr std::array<const char *, 12> Months{"January", "February", "March",     "April",   "May",      "June",
                                              "July",    "August",   "September", "October", "November", "December"};

constexpr int FarthestClockHours = 15;

// The number at the start of a text, 0 where there is none; a comma or a point ends it as far as the hour matters.
int LeadingWhole(const QString &text) {
  static const QRegularExpression start(QStringLiteral("^\\s*(\\d{1,4})"));
  return start.match(text).captured(1).toInt();
}

QString ThreeDigits(int number) { return QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')); }

}  // namespace

namespace PersonFields {

std::optional<ClockTime> ReadTime(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,2})[.:](\\d{2})\\s*$"));
  const auto match = form.match(text);
  const ClockTime time{match.captured(1).toInt(), match.captured(2).toInt()};
  if (!match.hasMatch() || time.hour > 23 || time.minutes > 59) return std::nullopt;
  return time;
}

QString TimeText(int hour, int minutes) { return Functions::Two(hour) + QLatin1Char('.') + Functions::Two(minutes); }

bool IsAfternoon(const QString &text) { return LeadingWhole(text) >= 12; }

QString InHalfOfDay(const QString &text, bool afternoon) {
  static const QRegularExpression hourPart(QStringLiteral("^\\s*(\\d{1,2})(?=\\D|$)"));
  const auto match = hourPart.match(text);
  if (!match.hasMatch()) return text;
  const int hour = match.captured(1).toInt();
  if (afternoon == (hour >= 12) || hour > 23) return text;
  return Functions::Two(afternoon ? hour + 12 : hour - 12) + text.mid(match.capturedEnd(1));
}

std::optional<Degrees> ReadDegrees(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,3}):(\\d{2})\\s*$"));
  const auto match = form.match(text);
  const Degrees angle{match.captured(1).toInt(), match.captured(2).toInt()};
  if (!match.hasMatch() || angle.minutes > 59 || angle.ArcMinutes() > 180 * 60) return std::nullopt;
  return angle;
}

QString DegreesText(int degrees, int minutes) { return ThreeDigits(degrees) + QLatin1Char(':') + Functions::Two(minutes); }

QString ShownDegrees(const QString &stored) {
  static const QRegularExpression digits(QStringLiteral("^\\d{1,5}$"));
  if (!digits.match(stored).hasMatch()) return stored;
  const QString five = stored.rightJustified(5, QLatin1Char('0'));
  return five.left(3) + QLatin1Char(':') + five.right(2);
}

QString StoredDegrees(const QString &shown) { return shown.left(3) + shown.right(2); }

int SignedArcMinutes(const QString &dddmm, const QString &hemisphere) {
  bool isNumber = false;
  const int number = dddmm.toInt(&isNumber);
  const int size = isNumber ? number / 100 * 60 + number % 100 : ReadDegrees(dddmm).value_or(Degrees()).ArcMinutes();
  const auto is = [&](char letter) { return hemisphere.compare(QLatin1Char(letter), Qt::CaseInsensitive) == 0; };
  return is('S') || is('W') ? -size : size;
}

std::optional<int> ReadDifference(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^\\s*([+-]?)(\\d{1,2})[.:](\\d{2})\\s*$"));
  const auto match = form.match(text);
  const int hours = match.captured(2).toInt(), minutes = match.captured(3).toInt();
  if (!match.hasMatch() || hours > FarthestClockHours || minutes > 59) return std::nullopt;
  return (match.captured(1) == QLatin1String("-") ? -1 : 1) * (hours * 60 + minutes);
}

std::optional<int> ReadStoredDifference(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^\\s*([+-]?\\d{1,2})(?:\\.(\\d{1,2}))?\\s*$"));
  const auto match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  return ReadDifference(match.captured(1) + QLatin1Char('.') + match.captured(2).leftJustified(2, QLatin1Char('0')));
}

QString DifferenceText(int minutes) {
  const int size = qAbs(minutes);
  return (minutes < 0 ? QLatin1Char('-') : QLatin1Char('+')) + TimeText(size / 60, size % 60);
}

QString ShownDifference(const QString &stored) {
  const std::optional<int> minutes = ReadStoredDifference(stored);
  return minutes ? DifferenceText(*minutes) : stored;
}

QString MonthName(int month) {
  return month >= 1 && month <= 12 ? QLatin1String(Months.at(static_cast<std::size_t>(month - 1))) : QString();
}

int MonthNumber(const QString &name) {
  for (int month = 1; month <= 12; ++month)
    if (MonthName(month).compare(name.trimmed(), Qt::CaseInsensitive) == 0) return month;
  return 0;
}

}  // namespace PersonFields
