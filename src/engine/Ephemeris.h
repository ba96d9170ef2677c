// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <optional>

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
// The same by whatever mode was set last; the library starts with Fagan and Bradley's.
double Ayanamsha(double julianDay);

// --- the sky of the exact day: every moment below is a Julian day in universal time, to which the library adds its delta T ---

// Where sidereal longitudes are counted from.
struct Zodiac {
  enum class Kind { Lahiri, Raman, Krishnamurti, Tropical, Fixed };
  Kind kind = Kind::Lahiri;
  double fixedDegrees = 0;  // ayanamsha of Kind::Fixed

  bool operator==(const Zodiac &) const = default;
};

// Apparent geocentric longitude in degrees, 0 up to 360.
double ApparentLongitude(double universalDay, Body body, const Zodiac &zodiac);

// A place on the earth: degrees, north and east positive; metres above the sea.
struct Observer {
  double latitude = 0, longitude = 0, altitude = 0;

  bool operator==(const Observer &) const = default;
};

enum class Crossing { Rise, Set };

// What of the disc meets the horizon.
enum class DiscRule {
  CentreNoRefraction,   // the disc's centre at the true horizon
  UpperLimbRefraction,  // the disc's upper limb at the seen horizon, in air of 1013.25 mbar and 15 C
};

// The next rise or set after the moment, as seen from the place itself; nothing where the library finds none within the
// next day or so.
std::optional<double> NextCrossing(double universalDay, Body body, Crossing crossing, DiscRule rule, const Observer &observer);

// Degrees of the body's centre above the true horizon, negative below it.
double TrueAltitude(double universalDay, Body body, const Observer &observer);

// Lets the library read its data files in share/libswe/ephe of the program's folder, where a portable copy has them. To be called
// before the first position. A folder that the user names in the environment variable SE_EPHE_PATH goes before it.
void UseFilesBeside(const QString &programDir);

// Which ephemeris answered the last position: "Swiss Ephemeris files", "Moshier (built in)" or "JPL file";
// empty before the first.
QString Source();

// The library's own version text.
QString Version();

}  // namespace Ephemeris
