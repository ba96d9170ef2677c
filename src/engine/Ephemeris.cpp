// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "engine/Ephemeris.h"

#include <swephexp.h>

#include <QFile>
#include <QFileInfo>

namespace Ephemeris {
namespace {

int lastFlags = -1;

// Tropical and fixed zodiacs ask no mode of the library.
int ModeOf(Zodiac::Kind kind) {
  switch (kind) {
    case Zodiac::Kind::Raman: return SE_SIDM_RAMAN;
    case Zodiac::Kind::Krishnamurti: return SE_SIDM_KRISHNAMURTI;
    default: return SE_SIDM_LAHIRI;
  }
}

// The library forgets its last positions whenever a mode is set, even the one in force.
void SetSiderealMode(int mode) {
  static std::optional<int> inForce;
  if (inForce == mode) return;
  swe_set_sid_mode(mode, 0, 0);
  inForce = mode;
}

}  // namespace

double JulianDay(int year, int month, int day, double hour) { return swe_julday(year, month, day, hour, SE_GREG_CAL); }

double DeltaT(double julianDay) { return swe_deltat(julianDay); }

double Longitude(double julianDay, Body body) {
  std::array<double, 11> position{};
  std::array<char, 256> message{};
  lastFlags = swe_calc(julianDay, static_cast<int>(body), 0, position.data(), message.data());
  return position[0];
}

std::array<double, 13> PlacidusCusps(double julianDay, double latitude, double longitude) {
  std::array<double, 13> cusps{};
  std::array<double, 10> angles{};
  swe_houses(julianDay, latitude, longitude, 'P', cusps.data(), angles.data());
  return cusps;
}

double Ayanamsha(double julianDay, SiderealMode mode) {
  SetSiderealMode(static_cast<int>(mode));
  return Ayanamsha(julianDay);
}

double Ayanamsha(double julianDay) { return swe_get_ayanamsa(julianDay); }

double ApparentLongitude(double universalDay, Body body, const Zodiac &zodiac) {
  std::array<double, 11> position{};
  std::array<char, 256> message{};
  const bool byLibrary = zodiac.kind != Zodiac::Kind::Tropical && zodiac.kind != Zodiac::Kind::Fixed;
  if (byLibrary) SetSiderealMode(ModeOf(zodiac.kind));
  lastFlags =
      swe_calc_ut(universalDay, static_cast<int>(body), SEFLG_SWIEPH | (byLibrary ? SEFLG_SIDEREAL : 0), position.data(), message.data());
  return zodiac.kind == Zodiac::Kind::Fixed ? swe_degnorm(position[0] - zodiac.fixedDegrees) : position[0];
}

std::optional<double> NextCrossing(double universalDay, Body body, Crossing crossing, DiscRule rule, const Observer &observer) {
  constexpr double seaLevelPressure = 1013.25, temperature = 15;  // mbar, degrees Celsius
  std::array<double, 3> place{observer.longitude, observer.latitude, observer.altitude};
  std::array<char, 256> message{};
  double found = 0;
  int method = crossing == Crossing::Rise ? SE_CALC_RISE : SE_CALC_SET;
  if (rule == DiscRule::CentreNoRefraction) method |= SE_BIT_DISC_CENTER | SE_BIT_NO_REFRACTION;
  const int state = swe_rise_trans(universalDay, static_cast<int>(body), nullptr, SEFLG_SWIEPH, method, place.data(), seaLevelPressure,
                                   temperature, &found, message.data());
  if (state < 0) return std::nullopt;
  return found;
}

double TrueAltitude(double universalDay, Body body, const Observer &observer) {
  std::array<double, 11> position{};
  std::array<char, 256> message{};
  std::array<double, 3> place{observer.longitude, observer.latitude, observer.altitude}, horizontal{};
  swe_calc_ut(universalDay, static_cast<int>(body), SEFLG_SWIEPH | SEFLG_EQUATORIAL, position.data(), message.data());
  swe_azalt(universalDay, SE_EQU2HOR, place.data(), 0, 0, position.data(), horizontal.data());
  return horizontal[1];
}

void UseFilesBeside(const QString &programDir) {
  const QString files = programDir + QStringLiteral("/share/libswe/ephe");
  if (QFileInfo(files).isDir() && qEnvironmentVariableIsEmpty("SE_EPHE_PATH")) qputenv("SE_EPHE_PATH", QFile::encodeName(files));
}

QString Source() {
  if (lastFlags < 0) return {};
  if (lastFlags & SEFLG_MOSEPH) return QStringLiteral("Moshier (built in)");
  if (lastFlags & SEFLG_JPLEPH) return QStringLiteral("JPL file");
  return QStringLiteral("Swiss Ephemeris files");
}

QString Version() {
  std::array<char, AS_MAXCH> text{};
  return QString::fromLatin1(swe_version(text.data()));
}

}  // namespace Ephemeris
