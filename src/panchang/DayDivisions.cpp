// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The divisions of the day: sunrise, sunset, hora, chogadiya, Rahu Kaal and the four evil muhurthas.
// Tables: FirstOfDay, FirstOfNight, ChogadiyaWords; the eighths of the day in panchang/Eighths.h.
// Sunrise is the moment at which the ascendant reaches the Sun's longitude. All eighths are taken of clock
// numbers as they stand: that arithmetic is this program's definition of the periods.
#include <array>
#include <cmath>

#include "dasha/clsGochara.h"
#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "panchang/Eighths.h"
#include "platform/Numbers.h"

using Eighths::Of;
using Functions::Norm7;

namespace {

constexpr double SearchTolerance = 9.0;  // minutes of arc of the ascendant, about half a minute of time

// Weekday, Sunday first:                         Sun Mon Tue Wed Thu Fri Sat
constexpr std::array<int, 7> FirstOfDay{1, 4, 7, 3, 6, 2, 5};
constexpr std::array<int, 7> FirstOfNight{6, 2, 5, 1, 4, 7, 3};

constexpr std::array<const char *, 7> ChogadiyaWords{"Udveg", "Chara", "Laabh", "Amrit", "Kaal", "Shubh", "Rog"};

double ClockOf(const clsPlanets &chart) { return TextToNumber(chart.clsPerson().GetBirthTime(), QStringLiteral("clock time")); }

// The start of the k-th eighth, counted in clock arithmetic.
double StartOfEighth(int k, double span, double sunrise) { return k * span - span + sunrise; }

}  // namespace

// The clock number of the ascendant's next meeting with the Sun, searched from the start chart's own moment.
double clsPlanets::FindSunriseFrom(clsPlanets &start) const {
  start.Calculate();
  return ClockOf(*clsGochara().FindAscendant(start.PlanetLongi(1), SearchTolerance, start));
}

double clsPlanets::SunRiseTime() const {
  if (day.sunriseClock == 0) {
    clsPlanets start(settings);
    CopySettingTo(start);
    start.clsPerson().SetHour(3);
    start.clsPerson().SetMinutes(30);
    day.sunriseClock = FindSunriseFrom(start);
  }
  return day.sunriseClock;
}

double clsPlanets::SunSetTime() const {
  if (day.sunsetClock == 0) {
    clsPlanets start(settings);
    CopySettingTo(start);
    start.Calculate();
    const double target = Functions::NormDeg360(start.PlanetLongi(1) + 180);
    day.sunsetClock = ClockOf(*clsGochara().FindAscendant(target, SearchTolerance, start));
  }
  return day.sunsetClock;
}

double clsPlanets::DayDuration() const { return MinToDec(SunSetTime()) - MinToDec(SunRiseTime()); }

double clsPlanets::NightDuration() const {
  if (day.nightHours == 0) {
    clsPlanets start(settings);
    CopySettingTo(start);
    const double nextSunrise = MinToDec(FindSunriseFrom(start));
    day.nightHours = clsPerson().Hour() < 12 ? std::abs(MinToDec(SunRiseTime()) + 24 - nextSunrise)
                                             : std::abs(nextSunrise + 24 - MinToDec(SunSetTime()));
  }
  return day.nightHours;
}

bool clsPlanets::DayBirth() const {
  const double time = ClockOf(*this);
  return time > SunRiseTime() && time < SunSetTime();
}

// --- hora -----------------------------------------------------------------------------------------------

double clsPlanets::GetHoraStart(int hora) const {
  const double start = hora + SunRiseTime() - 1;
  return start > 24 ? start - 24 : start;
}

int clsPlanets::GetHoraType(int hora, int weekday) { return Functions::Whole(Norm7(hora + Of(FirstOfDay, weekday) - 1)); }

QString clsPlanets::GetHoraName(int type) const {
  if (type < 1 || type > 7) return {};
  return GetHeadValue(1, type, QStringLiteral("Hora"));
}

int clsPlanets::GetDayHora(int weekday) { return weekday >= 1 && weekday <= 7 ? weekday : 0; }

// --- chogadiya ------------------------------------------------------------------------------------------

double clsPlanets::SunriseToSunsetSpan() const { return (SunSetTime() - SunRiseTime()) / 8; }

double clsPlanets::GetChogadiyaSpan(int period) const {
  if (period >= 17) return 0;
  if (period <= 8) return SunriseToSunsetSpan();
  return ((SunRiseTime() + 12) - (SunSetTime() - 12)) / 8;
}

double clsPlanets::GetChogadiyaStart(int period) const {
  if (period >= 17) return 0;
  const double span = GetChogadiyaSpan(period);
  if (period <= 8) return StartOfEighth(period, span, SunRiseTime());
  const double start = StartOfEighth(period - 8, span, SunSetTime());
  return start > 24 ? start - 24 : start;
}

int clsPlanets::GetChogadiyaType(int period, int weekday) {
  if (period <= 8) return Functions::Whole(Norm7(period + Of(FirstOfDay, weekday) - 1));
  const int first = Of(FirstOfNight, weekday);
  return period == 9 ? first : Functions::Whole(Norm7((period - 9) * 5 + first));
}

QString clsPlanets::GetChowGadiyaName(int type) const {
  if (type < 1 || type > 7) return {};
  return GetHeadValue(1, QLatin1String(ChogadiyaWords[static_cast<size_t>(type - 1)]), QStringLiteral("Chowgadiya"));
}

// --- Rahu Kaal and the evil muhurthas -----------------------------------------------------------------------

double clsPlanets::GetRahuKaalSpanToday() const { return SunriseToSunsetSpan(); }

double clsPlanets::GetRahuKaalStartToday() const {
  return StartOfEighth(Of(Eighths::RahuKaal, clsPerson().WeekDayOfBirth()), GetRahuKaalSpanToday(), SunRiseTime());
}

double clsPlanets::GetMuhurthaLength() const { return SunriseToSunsetSpan(); }

double clsPlanets::GetEvilMuhurthaStart(int kind) const {
  // A kind that does not exist counts as the eighth before sunrise.
  const int k = kind < 1 || kind > 4 ? 0 : Of(Eighths::EvilMuhurthas[static_cast<size_t>(kind - 1)], clsPerson().WeekDayOfBirth());
  return StartOfEighth(k, GetMuhurthaLength(), SunRiseTime());
}
