// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "engine/Ephemeris.h"

#include <swephexp.h>

namespace Ephemeris {
namespace {

int lastFlags = -1;

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
  swe_set_sid_mode(static_cast<int>(mode), 0, 0);
  return swe_get_ayanamsa(julianDay);
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
