// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Dates, times and angles as numbers and as texts. Table: EnglishMonths.
#include <array>
#include <memory>

#include "dasha/clsGochara.h"
#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

using Functions::Fix;
using Functions::FracVar;
using Functions::Int;
using Functions::Two;

namespace {

constexpr double YearDays = 365.2564;

constexpr std::array<const char *, 12> EnglishMonths{"January", "February", "March",     "April",   "May",      "June",
                                                     "July",    "August",   "September", "October", "November", "December"};

struct Sexagesimal {
  double degrees, minutes, seconds;  // whole; seconds are rounded half to even and can read 60
};

Sexagesimal Split(double degrees) {
  const double whole = Int(degrees);
  const double minutes = (degrees - whole) * 60;
  const double wholeMinutes = Int(minutes);
  return {whole, wholeMinutes, static_cast<double>(Functions::Whole16((minutes - wholeMinutes) * 60))};
}

// Degrees inside a sign as the texts count them: exactly 30 stays 30.
double InsideSign(double degrees) {
  while (degrees > 30) degrees = degrees - 30;
  return degrees;
}

int WeekdayOf(const clsPlanets &chart) { return chart.clsPerson().WeekDayOfBirth(); }

}  // namespace

int clsPlanets::ConvertDateToNum(const QDateTime &date) {
  const QDate d = date.date();
  return d.year() * 10000 + d.month() * 100 + d.day();
}

QString clsPlanets::ConvertDateToText(const QDateTime &date) const {
  const QDate d = date.date();
  return QStringLiteral("%1 %2 %3").arg(QString::number(d.day()), GetMonthNameByNum(d.month()), QString::number(d.year()));
}

QString clsPlanets::ConvertDateToTextEng(const QDateTime &date) const {
  const QDate d = date.date();
  return QStringLiteral("%1 %2 %3").arg(QString::number(d.day()), GetMonthNameByNumEng(d.month()), QString::number(d.year()));
}

QString clsPlanets::GetMonthNameByNum(int month) const {
  SubscriptError::Check("month", month, 1, 12);
  return GetTextBetween(QStringLiteral("CNVT"), QLatin1String(EnglishMonths[static_cast<size_t>(month - 1)]), QStringLiteral("Months"));
}

QString clsPlanets::GetMonthNameByNumEng(int month) const {
  return GetTextBetween(QStringLiteral("CNVT"), QString::number(month), QStringLiteral("EngMonth"));
}

double clsPlanets::MinToDec(double clock) { return Fix(clock) + (clock - Fix(clock)) / 0.6; }

int clsPlanets::GetMin(double hours) { return static_cast<int>(Int(FracVar(hours) * 60)); }

double clsPlanets::DegToDec(double degrees, double minutes, double seconds) {
  return degrees + (100.0 / 60 * minutes) / 100 + (100.0 / 60 / 60 * seconds) / 100;
}

QString clsPlanets::DecToDeg(double degrees) {
  const Sexagesimal s = Split(degrees);
  return QStringLiteral("%1:%2:%3")
      .arg(Functions::NumberText(s.degrees), Functions::NumberText(s.minutes), Functions::NumberText(s.seconds));
}

QString clsPlanets::ConvertValNoDeg(double degrees) {
  const Sexagesimal s = Split(InsideSign(degrees));
  return QStringLiteral("%1:%2:%3").arg(Two(s.degrees), Two(s.minutes), Two(s.seconds));
}

QString clsPlanets::ConvertValNoDegNoSec(double degrees) const {
  const Sexagesimal s = Split(InsideSign(degrees));
  return Functions::NumberText(s.degrees) + GetHeadValue(1, QStringLiteral(":"), QStringLiteral("Symbols")) +
         Functions::NumberText(s.minutes);
}

QString clsPlanets::ConvertToDegNoVal(double degrees) const {
  const int sign = static_cast<int>(Int(degrees / 30)) + 1;
  SubscriptError::Check("sign name", sign, 0, 13);
  QString &name = words.rashi[static_cast<size_t>(sign)];
  if (name.isEmpty()) name = GetTextBetween(QStringLiteral("CNVT"), QString::number(sign), QStringLiteral("Rashi"));
  return name;
}

QDateTime clsPlanets::DateAddEx(const QString &interval, int count, const QDateTime &date) {
  // A day that the month does not have falls on the month's last, as 29 February plus a year.
  if (interval == QLatin1String("yyyy")) return date.addYears(count);
  if (interval == QLatin1String("q")) return date.addMonths(3 * count);
  if (interval == QLatin1String("m")) return date.addMonths(count);
  if (interval == QLatin1String("ww")) return date.addDays(7LL * count);
  if (interval == QLatin1String("d")) return date.addDays(count);
  if (interval == QLatin1String("h")) return date.addSecs(3600LL * count);
  if (interval == QLatin1String("n")) return date.addSecs(60LL * count);
  if (interval == QLatin1String("s")) return date.addSecs(count);
  throw ConversionError(QStringLiteral("'%1' is not a unit of time; the units are yyyy, q, m, ww, d, h, n and s.").arg(interval));
}

QDateTime clsPlanets::AddDecValToDate(double value, int &unit, const QDateTime &date) {
  QDateTime moment = date;
  const auto step = [&](const char *interval, double nextUnits) {
    moment = DateAddEx(QLatin1String(interval), static_cast<int>(Fix(value)), moment);
    value = FracVar(value) * nextUnits;
  };
  if (unit == 1) {
    step("yyyy", YearDays);
    unit = 3;
  }
  if (unit == 3) {
    step("d", 24);
    unit = 4;
  }
  if (unit == 4) {
    step("h", 60);
    unit = 5;
  }
  if (unit == 5) {
    step("n", 60);
    unit = 6;
  }
  if (unit == 6) step("s", 0);
  return moment;
}

int clsPlanets::FirstDayOfMonth() const { return WeekdayOf(*clsGochara().Gochara(1, Fix(LysPlnt(1) / 30) * 30, 1.0, *this)); }

// The solar year starts as the Sun enters Aries. The copy is first moved back to within days of that moment, by
// the Sun's mean motion, and its Sun read once more; the search then ends at the ingress itself.
int clsPlanets::FirstDayOfYear() const {
  clsPlanets start(settings);
  CopySettingTo(start);
  ::clsPerson &p = start.clsPerson();
  p.SetAMPM(clsPerson().AMPM());
  const double back = LysPlnt(1) / 360 * YearDays;
  p.SetBirthDate(DateAddEx(QStringLiteral("d"), -static_cast<int>(Fix(back)), clsPerson().GetBirthDate()));
  start.Calculate();
  const double sun = start.LysPlnt(1);
  const double rest = (sun > 180 ? sun - 360 : sun) / 360 * YearDays;
  p.SetBirthDate(DateAddEx(QStringLiteral("d"), -static_cast<int>(Fix(rest)) + 2, p.GetBirthDate()));
  start.Calculate();
  return WeekdayOf(*clsGochara().Gochara(1, 0, 1.0, start));
}

int clsPlanets::MaxDayInMonth(int month, int year) {
  SubscriptError::Check("month", month, 1, 12);
  return QDate(year, month, 1).daysInMonth();
}

QString clsPlanets::BhavBeginName(int index) const { return ConvertToDegNoVal(BhavBegin(index)); }
QString clsPlanets::BhavMidName(int index) const { return ConvertToDegNoVal(BhavMid(index)); }

QString clsPlanets::AyanamshName() const { return GetHeadValue(1, AyanType(), QStringLiteral("AyanName")); }

QString clsPlanets::Direction(int index) const {
  if (words.direct.isEmpty()) words.direct = GetTextBetween(QStringLiteral("CNVT"), QStringLiteral("DIRECT"), QStringLiteral("GEN"));
  if (words.retrograde.isEmpty()) words.retrograde = GetTextBetween(QStringLiteral("CNVT"), QStringLiteral("RETRO"), QStringLiteral("GEN"));
  SubscriptError::Check("Direction", index, 0, 13);
  // The ascendant never turns back. Its entries tell nothing of motion: entry 0 is 0 and entry 13 the ayanamsha, which can be 0 too.
  const bool direct = index == 0 || longitude[static_cast<size_t>(index)] < longitude[static_cast<size_t>(index) + 13];
  return direct ? words.direct : words.retrograde;
}
