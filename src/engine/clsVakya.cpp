// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Tables: the elements of the Sun, the Moon, the node and the five planets; RisingBases.
// The digits of the constants, and the short radian in the sines beside the long one in the arcs, are part of the figures.
#include "engine/clsVakya.h"

#include <array>
#include <cmath>

#include "engine/Ephemeris.h"
#include "engine/Functions.h"
#include "platform/Errors.h"

using Functions::Fix;
using Functions::Int;
using Functions::NormDeg360;

namespace {

constexpr double GreatAgeDays = 1577917828;
constexpr double KaliOffset = 588466;
constexpr double DailyCorrection = 0.01875;  // days of mean motion taken from every mean place
constexpr double SineScale = 3438.0 / 21600;
constexpr double ShortRadian = 57.29578;  // degrees
constexpr double Pi = 3.14159265358979;

// Revolutions in a great age; epicycles in degrees at the even and the odd quarters.
struct Epicycle {
  double even, odd;
};
constexpr double SunRevolutions = 4320000, SunApogeeRevolutions = 0.387, SunApogee = 77.13;
constexpr Epicycle SunEpicycle{15, 13.666666666666666};
constexpr double MoonRevolutions = 57753336, MoonApogeeRevolutions = 488199, MoonApogee = 90;
constexpr Epicycle MoonEpicycle{33, 31.666666666666668};
constexpr double NodeRevolutions = 232246;

double Frac(double value) { return value - Int(value); }

double UpToCircle(double degrees) { return degrees < 0 ? degrees + 360 : degrees; }

double SinShort(double degrees) { return std::sin(degrees / ShortRadian); }
double CosShort(double degrees) { return std::cos(degrees / ShortRadian); }
double TanShort(double degrees) { return std::tan(degrees / ShortRadian); }

double InDegrees(double radians) { return radians * 180 / Pi; }

double SquareRoot(double value) {
  if (value < 0) throw ArithmeticError(QStringLiteral("The Sun does not rise or set at this latitude on this day."));
  return std::sqrt(value);
}

// The manda equation: the sine of the anomaly times the epicycle, which shrinks toward the odd quarters.
double MandaEquation(double anomaly, const Epicycle &epicycle) {
  const double s = SinShort(anomaly);
  const double size = epicycle.even - std::abs(s) * (epicycle.even - epicycle.odd);
  return s * SineScale * size;
}

// The share of the day's motion that belongs to the equation, as true noon and mean noon part by it.
double TimeCorrection(double equation, double revolutions) {
  const double dailyMotion = revolutions / GreatAgeDays * 360;
  return equation * 60 * dailyMotion / 21600 / 60;
}

// The sine of the sighra equation for an epicycle of the radius r, the circle's being 1.
double SighraSine(double anomaly, double r) {
  const double s = SinShort(anomaly), c = CosShort(anomaly);
  return s * r / std::sqrt(r * r + 2 * r * c + 1);
}

constexpr double SunsDeclination = 23.45;  // degrees, the greatest

// Palas in which a sign rises at the equator; the last digits differ from sign to sign. The three ascensional
// differences are taken from it or added.
struct RisingBase {
  double palas;
  int sign, difference;
};
constexpr std::array<RisingBase, 12> RisingBases{{
    {278.3333333, -1, 1},
    {299.166667, -1, 2},
    {322.5, -1, 3},
    {322.5, 1, 3},
    {299.166667, 1, 2},
    {278.3333333, 1, 1},
    {278.3333333, 1, 1},
    {299.166667, 1, 2},
    {322.5, 1, 3},
    {322.5, -1, 3},
    {299.166667, -1, 2},
    {278.333333, -1, 1},
}};

}  // namespace

struct clsVakya::Elements {
  double revolutions;  // of the planet, or of the sighra of an inferior planet, whose mean body is the mean Sun
  double apogeeRevolutions, apogee;
  Epicycle manda, sighra;
  bool superior;
};

void clsVakya::SetMoment(int newDay, int newMonth, int newYear, int newHour, int newMinute, int newSecond) {
  day = newDay;
  month = newMonth;
  year = newYear;
  hour = newHour;
  minute = newMinute;
  second = newSecond;
}

void clsVakya::Calculate(int newDay, int newMonth, int newYear, int newHour, int newMinute, int newSecond, int newLatitudeDegrees,
                         int newLatitudeMinutes, int newLongitudeDegrees, int newLongitudeMinutes) {
  SetMoment(newDay, newMonth, newYear, newHour, newMinute, newSecond);
  latitudeDegrees = newLatitudeDegrees;
  latitudeMinutes = newLatitudeMinutes;
  longitudeDegrees = newLongitudeDegrees;
  longitudeMinutes = newLongitudeMinutes;

  const double ahargana = FindKaliDin();
  ayanamsha = CalcVakyaAyanamsha(ahargana);
  sun = TrueSun(ahargana);
  moon = TrueMoon(ahargana);
  CalcFivePlanets(ahargana);
  rahu = MeanNode(ahargana);
  ketu = NormDeg360(rahu + 180);
  ascendant = CalcAscendant();
}

// --- the day ------------------------------------------------------------------------------------------------

double clsVakya::KaliDayNumber() const { return Int(Ephemeris::JulianDay(year, month, day, 0)) + 1; }

double clsVakya::FindKaliDin() const {
  // Seconds count a tenth of their weight here, and in full in DecimalTime.
  const double hours = hour + minute / 60.0 + second / 360.0;
  return KaliDayNumber() - KaliOffset + hours / 24;
}

double clsVakya::DecimalTime() const { return hour + minute / 60.0 + second / 3600.0; }

int clsVakya::WeekdayOfDay(double ahargana) {
  const double weeks = Fix(ahargana) / 7;
  return Functions::Whole16((weeks - Int(weeks)) * 7);
}

double clsVakya::CalcVakyaAyanamsha(double ahargana) {
  const double a = ahargana / GreatAgeDays * 179.929;
  return (a - Int(a)) * 360 - 52.29000000000002;
}

// --- Sun, Moon and node -------------------------------------------------------------------------------------

double clsVakya::MeanLongitude(double ahargana, double revolutions) {
  double degrees = Frac(ahargana * revolutions / GreatAgeDays) * 360;
  if (degrees >= 360) degrees -= 360;
  degrees -= revolutions / GreatAgeDays * 360 * DailyCorrection;
  return UpToCircle(degrees);
}

double clsVakya::MeanSunLongitude(double ahargana) { return MeanLongitude(ahargana, SunRevolutions); }

double clsVakya::TrueSun(double ahargana) {
  const double mean = MeanSunLongitude(ahargana);
  const double apogee = Frac(ahargana * SunApogeeRevolutions / GreatAgeDays) * 360 + SunApogee;
  const double equation = MandaEquation(UpToCircle(apogee - mean), SunEpicycle);
  return NormDeg360(mean + equation + TimeCorrection(equation, SunRevolutions));
}

double clsVakya::TrueMoon(double ahargana) {
  const double mean = MeanLongitude(ahargana, MoonRevolutions);
  const double apogeeRevolutions = UpToCircle(MoonApogeeRevolutions - MoonApogeeRevolutions / GreatAgeDays * 360 * DailyCorrection);
  const double apogee = Frac(ahargana * apogeeRevolutions / GreatAgeDays) * 360 + MoonApogee;
  const double equation = MandaEquation(UpToCircle(apogee - mean), MoonEpicycle);
  return NormDeg360(NormDeg360(mean + equation) + TimeCorrection(equation, MoonRevolutions));
}

// Counted backward from the half circle, which puts it opposite to the node of the modern tables.
double clsVakya::MeanNode(double ahargana) {
  double motion = Frac(ahargana * NodeRevolutions / GreatAgeDays) * 360 + 180;
  if (motion > 360) motion -= 360;
  motion = UpToCircle(motion - NodeRevolutions / GreatAgeDays * 360 * DailyCorrection);
  return NormDeg360(UpToCircle(180 - motion));
}

// --- the five planets -----------------------------------------------------------------------------------------

void clsVakya::CalcFivePlanets(double ahargana) {
  //                        revolutions  apogee's        manda     sighra      superior
  static constexpr Elements marsElements{2296832, 0.204, 129.96, {75, 72}, {235, 232}, true};
  static constexpr Elements jupiterElements{364212, 0.9, 171, {33, 32}, {72, 70}, true};
  static constexpr Elements saturnElements{146580, 0.039, 236.61, {49, 48}, {40, 39}, true};
  static constexpr Elements mercuryElements{17937044, 0.368, 220.32, {30, 28}, {133, 132}, false};
  static constexpr Elements venusElements{7022364, 0.535, 79.65, {12, 11}, {262, 260}, false};
  const double meanSun = MeanSunLongitude(ahargana);
  mars = TruePlanet(ahargana, marsElements, meanSun);
  jupiter = TruePlanet(ahargana, jupiterElements, meanSun);
  saturn = TruePlanet(ahargana, saturnElements, meanSun);
  mercury = TruePlanet(ahargana, mercuryElements, meanSun);
  venus = TruePlanet(ahargana, venusElements, meanSun);
}

// Four steps: half the sighra, half the manda, the whole manda, the whole sighra.
double clsVakya::TruePlanet(double ahargana, const Elements &planet, double meanSun) {
  const double mean = MeanLongitude(ahargana, planet.revolutions);
  const double apogee = Frac(ahargana * planet.apogeeRevolutions / GreatAgeDays) * 360 + planet.apogee;
  const double body = planet.superior ? mean : meanSun;
  const auto sighraAnomaly = [&](double place) { return UpToCircle(planet.superior ? meanSun - place : mean - place); };

  // The first sighra takes the difference of the two epicycles for its radius, the last the epicycle itself.
  const double narrowRadius = (planet.sighra.even - planet.sighra.odd) / 360;
  const double firstAnomaly = UpToCircle(planet.superior ? meanSun - mean : mean - meanSun);
  const double halfSighra = NormDeg360(body + InDegrees(ArcSin(SighraSine(firstAnomaly, narrowRadius))) * 0.5);
  const double halfManda = NormDeg360(halfSighra + MandaEquation(UpToCircle(apogee - halfSighra), planet.manda) * 0.5);
  const double wholeManda = NormDeg360(body + MandaEquation(UpToCircle(apogee - halfManda), planet.manda));
  const double anomaly = sighraAnomaly(wholeManda);
  const double size = planet.sighra.even - std::abs(SinShort(anomaly)) * (planet.sighra.even - planet.sighra.odd);
  return NormDeg360(InDegrees(ArcSin(SighraSine(anomaly, size / 360))) + wholeManda);
}

double clsVakya::ArcSin(double value) {
  if (!(value >= -1 && value <= 1)) throw ArithmeticError(QStringLiteral("The arc sine of %1 does not exist.").arg(value));
  const double w = std::sqrt(1 - value * value);
  if (w == 0) return (value > 0 ? 1 : -1) * Pi / 2;
  return std::atan(value / w);
}

double clsVakya::Acos(double value) {
  if (value == 1) return 0;
  if (value == -1) return Pi;
  return Pi / 2 - std::atan(value / SquareRoot(1 - value * value));
}

// --- the ascendant --------------------------------------------------------------------------------------------

double clsVakya::RisingLength(int sign) const {
  const double latitude = latitudeDegrees + latitudeMinutes / 60.0;
  const auto ascensional = [latitude](double declination) { return TanShort(latitude) * TanShort(declination) * 3438 / 6.0; };
  const double c1 = ascensional(11.47699);
  const double c2 = ascensional(20.15943) - c1;
  const double c3 = ascensional(SunsDeclination) - c1 - c2;
  const RisingBase &base = RisingBases[static_cast<size_t>(sign - 1)];
  return base.palas + base.sign * std::array{c1, c2, c3}[static_cast<size_t>(base.difference - 1)];
}

double clsVakya::CalcAscendant() const {
  const double tropicalSun = NormDeg360(sun + ayanamsha);
  const double declination = SinShort(tropicalSun) * SunsDeclination;
  const double latitude = latitudeDegrees + latitudeMinutes / 60.0;
  const double halfDayHours = InDegrees(Acos(-TanShort(latitude) * TanShort(declination))) / 15;
  double palas = (DecimalTime() - (12 - halfDayHours)) * 2.5 * 60;  // since sunrise

  const auto wrapSign = [](int sign) { return Functions::Whole(Functions::Norm12(sign)); };
  const int sunsSign = wrapSign(Functions::Whole(Int(tropicalSun / 30)) + 1);
  const double length = RisingLength(sunsSign);
  const double palasLeft = length * (sunsSign * 30 - tropicalSun) / 30;
  double rising = 0;
  if (palas - palasLeft < 0) {
    const double risen = 30 / length * (length - palasLeft);
    rising = palas / length * 30 + risen + (sunsSign - 1) * 30;
  } else {
    palas -= palasLeft;
    for (int i = 1; i <= 12; ++i) {
      const int sign = wrapSign(i + sunsSign);
      const double signLength = RisingLength(sign);
      if (palas < signLength) {
        rising = palas / signLength * 30 + (sign - 1) * 30;
        break;
      }
      palas -= signLength;
    }
  }
  return NormDeg360(rising - ayanamsha);
}
