// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The limbs of the panchang at the chart's moment. No member cuts the day at sunrise.
// Tables: PadaBounds, TithiTypes, MonthEnds, DayLords.
#include <array>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"

using Functions::Int;
using Functions::ModPos;
using Functions::NormDeg360;
using Functions::NumberText;

namespace {

const QString Cnvt = QStringLiteral("CNVT");

constexpr int Sun = 1, Moon = 7;

// The pada by degrees inside the nakshatra: above the first, up to the second. The digits differ from row to
// row on purpose; a Moon in the last sliver above 13.3333333 has no row.
struct PadaBound {
  double above, upTo;
};
constexpr std::array<PadaBound, 4> PadaBounds{{
    {0, 3.33333333333},
    {3.33333333, 6.6666667},
    {6.6666667, 10.0},
    {10.0, 13.3333333},
}};

// Tithi:                                     1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 (and the same for 16 to 30)
// The fifth, tenth and fifteenth share type 1 with the tithi that follows them.
constexpr std::array<int, 15> TithiTypes{1, 2, 3, 4, 1, 1, 2, 3, 4, 1, 1, 2, 3, 4, 1};

// Where each solar month ends, degrees; the tenth ends at 310 and not at 300.
constexpr std::array<double, 12> MonthEnds{30, 60, 90, 120, 150, 180, 210, 240, 270, 310, 330, 360};

// The intercalary month: the first hours of a cycle counted from the reference date give the month before.
constexpr qint64 CycleHours = 24816, IntercalaryHours = 1393;

// Sunday first:                           Sun Mon Tue Wed Thu Fri Sat
constexpr std::array<int, 7> DayLords{1, 7, 4, 2, 5, 3, 6};

// A running tithi or yoga has the number that it will have completed.
void RoundUp(double &number) {
  if (number != Int(number)) number = Int(number) + 1;
}

}  // namespace

void clsPlanets::CalcPanchangElements() {
  const double sun = longitude[Sun], moon = longitude[Moon];
  double tithi = (moon - sun) / 12;
  if (tithi < 0) tithi = tithi + 30;
  panchang.tithi = tithi;

  const double rest = ModPos(moon, 360.0 / 27);
  panchang.pada = rest;
  for (size_t i = 0; i < PadaBounds.size(); ++i) {
    if (rest > PadaBounds[i].above && rest <= PadaBounds[i].upTo) {
      panchang.pada = static_cast<double>(i) + 1;
      break;
    }
  }

  double yoga = Int((sun + moon) * 3 / 40) + 1;
  if (yoga > 27) yoga = yoga - 27;
  panchang.yoga = Int(yoga);
}

QString clsPlanets::TithiName() const {
  double tithi = panchang.tithi;
  return GetTithiName(tithi);
}

QString clsPlanets::GetTithiName(double &tithi) const {
  RoundUp(tithi);
  return GetTextBetween(Cnvt, NumberText(tithi), QStringLiteral("Tithi"));
}

double clsPlanets::TithiValue() const {
  const double degrees = PlanetLongi(Moon) - PlanetLongi(Sun);
  return degrees < 0 ? degrees + 360 : degrees;
}

int clsPlanets::TithiShuklaKrishna(double tithi) { return tithi < 16 ? 1 : 2; }

int clsPlanets::GetTithiType(int tithi) {
  if (tithi < 1 || tithi > 30) return 0;
  return TithiTypes[static_cast<size_t>(tithi - 1) % 15];
}

int clsPlanets::YogaNumber() const { return Functions::Whole(panchang.yoga); }

QString clsPlanets::YogaName() const { return GetTextBetween(Cnvt, NumberText(panchang.yoga), QStringLiteral("Yoga")); }

QString clsPlanets::FindYoga(int yoga) const { return GetHeadValue(1, yoga, QStringLiteral("Yoga")); }

QString clsPlanets::ConvertYoga(double &yoga) const {
  RoundUp(yoga);
  return GetTextBetween(Cnvt, NumberText(yoga), QStringLiteral("Yoga"));
}

// The two karana members part above 342 degrees and at 6 degrees exactly: the name knows the four fixed karanas
// at the month's end, the number goes on counting the seven movable ones.
int clsPlanets::KaranNumber() const {
  const double d = NormDeg360(PlanetLongi(Moon) - PlanetLongi(Sun));
  if (d < 6) return 11;
  return Functions::Whole16(Int(Functions::Norm7((d - 6) / 6))) + 1;
}

QString clsPlanets::KaranName() const {
  const double d = NormDeg360(PlanetLongi(Moon) - PlanetLongi(Sun));
  int karana = 10;
  if (d <= 6)
    karana = 11;
  else if (d <= 342)
    karana = Functions::Whole16(Int(Functions::Norm7((d - 6) / 6))) + 1;
  else if (d <= 348)
    karana = 8;
  else if (d <= 354)
    karana = 9;
  return GetTextBetween(Cnvt, QString::number(karana), QStringLiteral("KARAN"));
}

int clsPlanets::VikramiMonth(double sunLongitude, const QDateTime &date) {
  int month = 0;
  if (sunLongitude >= 0 && sunLongitude <= 360) {
    month = 1;
    while (month < 12 && sunLongitude >= MonthEnds[static_cast<size_t>(month - 1)]) ++month;
  }
  const QDateTime reference(QDate(2004, 7, 3), QTime(0, 0), Qt::UTC);
  const qint64 seconds = reference.secsTo(date);
  const qint64 hours = seconds >= 0 ? seconds / 3600 : -((-seconds + 3599) / 3600);  // whole hours, by floor
  const qint64 inCycle = (hours % CycleHours + CycleHours) % CycleHours;
  return inCycle < IntercalaryHours ? month - 1 : month;
}

QString clsPlanets::GetVikramiMonth(int month) const {
  return GetTextBetween(QStringLiteral("cnvt"), QString::number(month), QStringLiteral("IndianMonths"));
}

int clsPlanets::WeekDayLord() const { return WeekDayLordFromDay(clsPerson().WeekDayOfBirth()); }

std::optional<int> clsPlanets::WeekDayLordOfDay(int weekday) {
  if (weekday < 1 || weekday > 7) return std::nullopt;
  return DayLords[static_cast<size_t>(weekday - 1)];
}

int clsPlanets::WeekDayLordFromDay(int weekday) { return WeekDayLordOfDay(weekday).value_or(0); }

QString clsPlanets::GetDayName(int &weekday) const {
  weekday -= 1;
  return GetTextBetween(Cnvt, QString::number(weekday), QStringLiteral("DAY"));
}

QString clsPlanets::ConvertDayEng(int weekday) const { return GetTextBetween(Cnvt, QString::number(weekday), QStringLiteral("EngDay")); }

int clsPlanets::GetSunAyan() const {
  const int sign = PlanetRashiNum(Sun);
  return sign >= 5 && sign <= 9 ? 2 : 1;
}
