// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// A lunar month is named after the sign that the Sun enters in it: Chaitra is the month in which it enters Aries. One without an
// entry is added (adhika) and bears the name of the month after it; in one with two entries the second name is left out (kshaya).
// The rule is that of the Indian Calendar Reform Committee's report of 1955, which takes it from the Surya Siddhanta.
#include "panchang/LunarMonth.h"

#include <cmath>

#include "panchang/LunarAngle.h"

namespace {

constexpr double MonthDays = 29.530588;  // from new Moon to new Moon, the mean
constexpr int ShakaZero = 78;            // Chaitra of 2026 begins the year 1948
constexpr int VikramaZero = -57;         // and the year 2083

// The Sun's sign at a new Moon, 1 to 12, gives the month that begins there.
int MonthFrom(int sign) { return sign % 12 + 1; }

int SignAt(double universalDay, const Ephemeris::Zodiac &zodiac) {
  return static_cast<int>(AngleAt(LunarAngle::Sun, universalDay, zodiac) / 30) % 12 + 1;
}

}  // namespace

LunarMonth FindLunarMonth(double universalDay, const QDate &date, const Ephemeris::Zodiac &zodiac) {
  LunarMonth month;
  month.begins = LastMoment(LunarAngle::Elongation, 0, universalDay, zodiac);
  // A day on, so that a moment that is the new Moon itself finds the following one.
  month.ends = NextMoment(LunarAngle::Elongation, 0, month.begins + 1, zodiac);
  month.bright = AngleAt(LunarAngle::Elongation, universalDay, zodiac) < 180;
  const int first = SignAt(month.begins, zodiac), last = SignAt(month.ends, zodiac);
  const int entries = (last - first + 12) % 12;
  month.amanta = MonthFrom(first);
  month.adhika = entries == 0;
  if (entries == 2) month.kshaya = month.amanta % 12 + 1;
  // The dark half belongs to the month that follows; an added month lies whole between the halves of its namesake.
  month.purnimanta = month.bright || month.adhika ? month.amanta : MonthFrom(last);
  month.purnimantaAdhika = month.adhika;
  // New year's day is a lunar month count back; it falls into March or April, far from the ends of the civil year.
  const double back = (month.amanta - 1) * MonthDays + (universalDay - month.begins);
  const int newYear = date.addDays(-std::llround(back)).year();
  month.shaka = newYear - ShakaZero;
  month.vikrama = newYear - VikramaZero;
  return month;
}
