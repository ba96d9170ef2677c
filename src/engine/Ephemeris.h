// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

// The one gateway to the Swiss Ephemeris library. Positions are geocentric, apparent, tropical ecliptic
// longitudes in degrees, from the library's default data path and its default choice of ephemeris.
namespace Ephemeris {

// The library's body numbers.
enum class Body { Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Uranus, Neptune, Pluto, MeanNode, TrueNode };

// The sidereal modes that the program asks for.
enum class SiderealMode { Raman = 3, Krishnamurti = 5 };

// Julian day of a Gregorian calendar date; the hour is decimal and may pass 24.
double JulianDay(int year, int month, int day, double hour);

// Delta T (TT - UT) in days at a Julian day in universal time.
double DeltaT(double julianDay);

// Ecliptic longitude in degrees, 0 up to 360; 0 where the library has no answer.
double Longitude(double julianDay, Body body);

// The twelve Placidus cusps, tropical, in degrees; entry 0 is unused. Latitude north and longitude east are positive.
std::array<double, 13> PlacidusCusps(double julianDay, double latitude, double longitude);

// The ayanamsha in degrees by the library's sidereal mode. The mode is library-wide state, set here just before the query.
double Ayanamsha(double julianDay, SiderealMode mode);

// Which ephemeris answered the last position: "Swiss Ephemeris files", "Moshier (built in)" or "JPL file";
// empty before the first.
QString Source();

// The library's own version text.
QString Version();

}  // namespace Ephemeris
