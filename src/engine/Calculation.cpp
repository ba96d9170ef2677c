// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// How a chart comes about: universal time, positions now and an hour later, ayanamsha, houses, panchang terms.
// Tables: Bodies, RateAyanamshas. The order of every sum and product is part of the figures.
#include <array>
#include <cmath>

#include "engine/Ephemeris.h"
#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

using Ephemeris::Body;
using Functions::FracVar;
using Functions::Int;
using Functions::NormDeg360;

namespace {

// The length of the year in days, by which a date inside its year becomes a fraction.
constexpr double YearDays = 365.2564;

constexpr double DegreeInRadians = 0.017453292519944444;

struct BodyColumn {
  Body body;
  int index;  // planet index that the body fills
};

constexpr std::array<BodyColumn, 10> Bodies{{
    {Body::Sun, 1},
    {Body::Moon, 7},
    {Body::Mercury, 2},
    {Body::Venus, 3},
    {Body::Mars, 4},
    {Body::Jupiter, 5},
    {Body::Saturn, 6},
    {Body::Uranus, 10},
    {Body::Neptune, 11},
    {Body::Pluto, 12},
}};

// Ayanamshas of a constant rate: (year - zero year) x seconds of arc / 3600.
struct RateAyanamsha {
  int type;
  double zeroYear;
  double secondsPerYear;
};

constexpr std::array<RateAyanamsha, 9> RateAyanamshas{{
    {2, 397.186, 50.3389},
    {4, 298.883, 49.5},
    {5, 199, 49.636},
    {6, 498, 50},
    {7, 238, 50.3086},
    {8, 320, 50.34},
    {9, 284, 49},
    {10, 384.483, 50.277},
    {11, 663, 60.66},  // this rate stands apart from the others on purpose
}};

constexpr int Lahiri = 1, Krishnamurti = 3, Custom = SettingKeys::CustomAyanType, SuryaSiddhanta = 15;

bool IsLetter(const QString &hemisphere, char letter) { return hemisphere.compare(QLatin1Char(letter), Qt::CaseInsensitive) == 0; }

double OptionalNumber(const QString &text, const QString &what) { return text.trimmed().isEmpty() ? 0 : TextToNumber(text, what); }

}  // namespace

void clsPlanets::Calculate() {
  CalcChart(Scope::WholeChart);
  FillVargaTable();
}

void clsPlanets::CalcChart(Scope scope) {
  ::clsPerson &p = clsPerson();
  // Everything that can be unreadable is read before the person is moved, so that a failure leaves it as it was.
  (void)p.GetBirthDate();
  const double zone = TextToNumber(p.GMTDIFF(), QStringLiteral("time zone (GMTDIFF)"));
  const double correction = OptionalNumber(p.TimeCorr(), QStringLiteral("time correction"));

  const auto writeTime = [&p](double hours) {
    p.SetHour(Int(hours));
    p.SetMinutes((hours - Int(hours)) * 60);
  };

  double hours = p.Hour() + p.Minutes() / 60.0;
  hours = hours - zone;
  hours = p.AdjustHour(hours, p.Day(), p.Month(), p.Year());
  hours = hours + correction;
  hours = p.AdjustHour(hours, p.Day(), p.Month(), p.Year());
  writeTime(hours);

  const double days = DayNumber(p.Day(), p.Month(), p.Year());
  dayFraction = (p.Hour() + p.Minutes() / 60.0 - 12) / 24;
  centuries = (days - 694025 + dayFraction) / 36525;
  LysAyan();
  if (scope == Scope::WholeChart) {
    CalcPlanets();
    CalcPlanetsHourLater();
  }

  hours = hours + zone;
  hours = p.AdjustHour(hours, p.Day(), p.Month(), p.Year());
  writeTime(hours);

  ApplyAyanamsha(scope);
  CalcHouses(scope);
  if (scope == Scope::WholeChart) CalcPanchangElements();
}

// The count of days of a Gregorian date; 1900 January 0 has the number 694025.
double clsPlanets::DayNumber(int day, int month, int year) {
  if (month < 3) {
    month += 12;
    year -= 1;
  }
  const double century = Int(year / 100.0);
  const double monthDays = Int((month + 1) * 30.6);
  return 365.0 * year + Int(year / 4.0) + monthDays + 2 - century + Int(century / 4) + day;
}

void clsPlanets::LysAyan() { longitude[13] = 22.460148 + 1.396042 * centuries + 0.000308 * centuries * centuries; }

double clsPlanets::GeographicLongitude() const {
  const ::clsPerson &p = clsPerson();
  const double degrees = p.LongDeg() + p.LongMT() / 60.0;
  return IsLetter(p.TextEW(), 'W') ? -degrees : degrees;
}

void clsPlanets::StorePositions(double julianDay, int offset) {
  const auto entry = [&](int index) -> double & { return longitude[static_cast<size_t>(index + offset)]; };
  for (const BodyColumn &column : Bodies) entry(column.index) = Ephemeris::Longitude(julianDay, column.body);
  if (rahuKetuMode != 1 && rahuKetuMode != 2) return;  // Rahu and Ketu keep their empty value
  const double node = Ephemeris::Longitude(julianDay, rahuKetuMode == 1 ? Body::MeanNode : Body::TrueNode);
  entry(8) = node;
  entry(9) = NormDeg360(node + 180);
}

void clsPlanets::CalcPlanets() {
  const ::clsPerson &p = clsPerson();
  const double julianDay = Ephemeris::JulianDay(p.Year(), p.Month(), p.Day(), p.Hour() + p.Minutes() / 60.0);
  // Positions take universal time for ephemeris time, and the houses a day a further delta T earlier:
  // the correction runs the wrong way round for both, and the program's figures rest on it.
  const double houseDay = julianDay - Ephemeris::DeltaT(julianDay);
  StorePositions(julianDay, 0);

  const double degrees = p.LatDeg() + p.LatMT() / 60.0;
  const double latitude = IsLetter(p.TextNS(), 'S') ? -degrees : degrees;
  const std::array<double, 13> cusps = Ephemeris::PlacidusCusps(houseDay, latitude, GeographicLongitude());
  const double ayanamsha = KPAyanVal();
  for (size_t i = 1; i <= 12; ++i) kpCusp[i] = NormDeg360(cusps[i] - ayanamsha);
}

void clsPlanets::CalcPlanetsHourLater() {
  const ::clsPerson &p = clsPerson();
  StorePositions(Ephemeris::JulianDay(p.Year(), p.Month(), p.Day(), p.Hour() + p.Minutes() / 60.0 + 1), 13);
}

void clsPlanets::ApplyAyanamsha(Scope scope) {
  const QDate date = clsPerson().GetBirthDate().date();
  const int year = clsPerson().Year();
  const double yearWithFraction = year + QDate(year, 1, 1).daysTo(date) / YearDays;

  double ayanamsha = 0;
  bool tropical = false;
  if (ayanType == Lahiri) {
    ayanamsha = longitude[13];
  } else if (ayanType == Krishnamurti) {
    ayanamsha = SwissAyanamsha(3);
  } else if (ayanType == Custom) {
    ayanamsha = TextToNumber(settings.Value(SettingKeys::CustAyan), QStringLiteral("custom ayanamsha"));
  } else if (ayanType == SuryaSiddhanta) {
    ayanamsha = VakyaAyanamsha();
  } else {
    tropical = true;
    for (const RateAyanamsha &rate : RateAyanamshas) {
      if (rate.type != ayanType) continue;
      ayanamsha = (yearWithFraction - rate.zeroYear) * rate.secondsPerYear / 3600;
      tropical = false;
    }
  }

  if (!tropical && scope == Scope::WholeChart)
    for (size_t i = 1; i <= 26; ++i) longitude[i] = NormDeg360(longitude[i] - ayanamsha);
  longitude[13] = ayanamsha;
}

double clsPlanets::SwissAyanamsha(int mode) const {
  const ::clsPerson &p = clsPerson();
  // After a calculation the person holds local time, which is then taken as universal time.
  const double julianDay = Ephemeris::JulianDay(p.Year(), p.Month(), p.Day(), p.Hour() + p.Minutes() / 60.0);
  switch (mode) {
    case 2: return Ephemeris::Ayanamsha(julianDay, Ephemeris::SiderealMode::Raman);
    case 3: return Ephemeris::Ayanamsha(julianDay, Ephemeris::SiderealMode::Krishnamurti);
    default: return Ephemeris::Ayanamsha(julianDay);
  }
}

double clsPlanets::KPAyanVal() const { return SwissAyanamsha(3); }

// Ascendant and midheaven by formula, and the quadrants cut in three (Porphyry).
void clsPlanets::CalcHouses(Scope scope) {
  const ::clsPerson &p = clsPerson();
  obliquity = 23.452294 - 0.0130125 * centuries;
  const double greenwichHours = FracVar(centuries * 100.00214 + 0.2769) * 24;
  const double universalHours = dayFraction * 24 + 12;
  const double longitudeHours = GeographicLongitude() / 15;
  siderealHours = FracVar((universalHours + greenwichHours + longitudeHours) / 24) * 24;
  if (siderealHours < 0) siderealHours = siderealHours + 24;

  const double degrees = p.LatDeg() + p.LatMT() / 60.0;
  const double latitude = p.TextNS() == QLatin1String("S") ? -degrees : degrees;  // upper case alone is south here
  const double ascendant = CalcAscendantAt(siderealHours, latitude);
  if (scope == Scope::AscendantOnly) {
    houseMid[0] = ascendant >= 360 ? ascendant - 360 : ascendant;
    return;
  }
  const double midheaven = CalcAscendantAt(siderealHours - 6, 0);

  double firstStep = (midheaven + 180 - ascendant) / 3;
  if (midheaven > ascendant) firstStep = firstStep - 120;
  const double secondStep = 60 - firstStep;
  // The calls overlap at entries 3, 6 and 9, where the later one wins.
  FillQuadrantCusps(ascendant, firstStep, 1);
  FillQuadrantCusps(midheaven + 180, secondStep, 4);
  FillQuadrantCusps(ascendant + 180, firstStep, 7);
  FillQuadrantCusps(midheaven, secondStep, 10);

  double begin = houseMid[11] > houseMid[0] ? (houseMid[0] + 360 + houseMid[11]) / 2 : (houseMid[0] + houseMid[11]) / 2;
  if (begin >= 360) begin = begin - 360;
  if (begin >= 360) begin = begin - 360;
  houseBegin[0] = begin;
  for (size_t i = 1; i <= 12; ++i) {
    begin = (houseMid[i] + houseMid[i - 1]) / 2;
    if (houseMid[i] < houseMid[i - 1]) begin = begin + 180;
    if (begin > 360) begin = begin - 360;
    houseBegin[i] = begin;
  }

  kpCusp[0] = houseMid[0] + longitude[13] - KPAyanVal();
}

// Entry i + first - 1 takes base + step x i; the entries run 0 to 12.
void clsPlanets::FillQuadrantCusps(double base, double step, int first) {
  for (int i = 0; i <= 3; ++i) {
    double cusp = base + step * i;
    if (cusp >= 360) cusp = cusp - 360;
    houseMid[static_cast<size_t>(i + first - 1)] = cusp;
  }
}

double clsPlanets::CalcAscendantAt(double hours, double latitude) const {
  const double ayanamsha = longitude[13];
  const double e = obliquity * DegreeInRadians;
  double meridian = hours * 15 + 90;
  if (meridian >= 360) meridian = meridian - 360;
  const double h = hours * 3.14159265359 / 12;
  const double phi = latitude * DegreeInRadians;
  const double below = std::sin(e) * std::sin(phi) / std::cos(phi) + std::cos(e) * std::sin(h);
  double rising = std::atan(Functions::Divide(-std::cos(h), below, "the ascendant")) / DegreeInRadians;
  if (rising < 0) rising = rising + 180;
  // One test with this constant stands for a quadrant analysis, also where it picks the other half circle.
  if (meridian - rising > 75) rising = rising + 180;
  rising = rising - ayanamsha;
  if (rising < 0) rising = rising + 360;
  if (rising > 360) rising = rising - 360;
  return rising;
}
