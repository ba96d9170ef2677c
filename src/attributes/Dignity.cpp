// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Dignity and the relations of planets: exaltation, own signs, friends, combustion, strength, speed.
// Tables: DignitySigns, OwnSigns, OwnSignsNarrow, DignitySpans, HighestExaltEnds, HighestDebiEnds, SignRelations, Relations,
// Enemies, AdhiRelations, CombustionOrbs, AstaOrbs, DigBalaHouses, SpeedPoints.
// Several questions have two tables that look alike and part in some cells; each member keeps its own.
#include <array>
#include <cmath>

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

using Functions::Norm12;
using Functions::NormDeg360;

namespace {

const QString Cnvt = QStringLiteral("CNVT");

enum Planet { Ascendant, Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu };

struct DignitySign {
  int exalted, debilitated;
};
constexpr std::array<DignitySign, 10> DignitySigns{{
    {0, 0},   // ascendant
    {1, 7},   // Sun
    {6, 12},  // Mercury
    {12, 6},  // Venus
    {10, 4},  // Mars
    {4, 10},  // Jupiter
    {7, 1},   // Saturn
    {2, 8},   // Moon
    {2, 8},   // Rahu
    {8, 2},   // Ketu
}};

constexpr std::array<NumberSet, 13> OwnSigns{{
    {},        // ascendant
    {5},       // Sun
    {3, 6},    // Mercury
    {2, 7},    // Venus
    {1, 8},    // Mars
    {9, 12},   // Jupiter
    {10, 11},  // Saturn
    {4},       // Moon
    {11},      // Rahu
    {8},       // Ketu
    {11},      // Uranus
    {12},      // Neptune
    {8},       // Pluto
}};

// The narrow form: Virgo does not count for Mercury, and the outer planets own nothing.
constexpr std::array<NumberSet, 10> OwnSignsNarrow{{
    {},        // ascendant
    {5},       // Sun
    {3},       // Mercury
    {2, 7},    // Venus
    {1, 8},    // Mars
    {9, 12},   // Jupiter
    {10, 11},  // Saturn
    {4},       // Moon
    {11},      // Rahu
    {8},       // Ketu
}};

// Degrees above the first value and up to the second, so that nothing begins at 0 Aries itself.
struct Span {
  double above = 0, upTo = 0;
  constexpr bool Holds(double degrees) const { return degrees > above && degrees <= upTo; }
};
struct DignitySpan {
  Span exalted, mooltrikona, own, ownToo, debilitated;
};
constexpr std::array<DignitySpan, 10> DignitySpans{{
    // exalted    mooltrikona  own house               debilitated
    {{0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}},                    // ascendant
    {{0, 10}, {120, 140}, {140, 150}, {0, 0}, {190, 200}},       // Sun
    {{150, 165}, {165, 170}, {170, 180}, {60, 90}, {330, 345}},  // Mercury
    {{330, 357}, {180, 195}, {195, 210}, {30, 60}, {150, 177}},  // Venus
    {{270, 298}, {0, 12}, {18, 30}, {210, 240}, {90, 118}},      // Mars
    {{90, 95}, {240, 250}, {250, 270}, {330, 360}, {270, 275}},  // Jupiter
    {{180, 200}, {300, 320}, {320, 330}, {270, 300}, {0, 20}},   // Saturn
    {{30, 33}, {33, 60}, {90, 120}, {0, 0}, {210, 213}},         // Moon
    {{30, 60}, {0, 0}, {0, 0}, {0, 0}, {210, 240}},              // Rahu
    {{210, 240}, {0, 0}, {0, 0}, {0, 0}, {30, 60}},              // Ketu
}};

// The last half degree before the deepest point counts, both ends included.
// Planet:                                              0  1   2    3    4    5   6    7
constexpr std::array<double, 8> HighestExaltEnds{0, 10, 165, 357, 298, 95, 200, 33};
constexpr std::array<double, 8> HighestDebiEnds{0, 190, 345, 177, 118, 275, 20, 213};

bool InLastHalfDegree(const std::array<double, 8> &ends, int planet, double degrees) {
  if (planet < Sun || planet > Moon) return false;
  const double end = ends[static_cast<size_t>(planet)];
  return degrees >= end - 0.5 && degrees <= end;
}

// Lists of signs of their own, which do not follow from the relations of planets below.
struct SignRelation {
  NumberSet friendly, hostile, neutral;
};
constexpr std::array<SignRelation, 10> SignRelations{{
    {{}, {}, {}},                             // ascendant
    {{3, 4, 6, 8, 9, 12}, {2, 10, 11}, {}},   // Sun
    {{4}, {1, 8, 9}, {2, 5, 7, 10, 11}},      // Mercury
    {{10, 11}, {5, 9}, {1, 3, 4, 8}},         // Venus
    {{5, 9, 12}, {11}, {2, 3, 6, 7}},         // Mars
    {{1, 5, 8}, {}, {2, 3, 6, 7, 11}},        // Jupiter
    {{2}, {5}, {3, 4, 6, 8, 9, 12}},          // Saturn
    {{1, 3, 5, 6, 9, 12}, {}, {7, 10, 11}},   // Moon
    {{7, 10}, {1, 4, 5}, {3, 6, 9, 12}},      // Rahu
    {{1}, {4, 5}, {3, 6, 7, 9, 10, 11, 12}},  // Ketu
}};

// 1 friend, 2 neutral, 3 enemy, 0 not listed. Venus counts Mars and Jupiter as friends, and Saturn has no enemy
// here, only neutrals: the tradition differs in these two rows, this program's texts rest on them.
constexpr std::array<std::array<int, 9>, 9> Relations{{
    // P1 P2 P3 P4 P5 P6 P7 P8 P9
    {0, 2, 3, 1, 1, 3, 1, 0, 0},  // Sun
    {1, 0, 1, 2, 2, 2, 3, 0, 0},  // Mercury
    {3, 1, 0, 1, 1, 1, 3, 0, 0},  // Venus
    {1, 3, 2, 0, 1, 2, 1, 0, 0},  // Mars
    {1, 3, 3, 1, 0, 2, 1, 0, 0},  // Jupiter
    {2, 1, 1, 2, 2, 0, 2, 0, 0},  // Saturn
    {1, 1, 2, 2, 2, 2, 0, 0, 0},  // Moon
    {3, 1, 1, 3, 3, 1, 3, 0, 3},  // Rahu
    {3, 1, 1, 3, 3, 1, 3, 3, 0},  // Ketu
}};

// A table of its own beside Relations: Jupiter has no enemy here.
constexpr std::array<NumberSet, 10> Enemies{{
    {},            // ascendant
    {3, 6, 8, 9},  // Sun
    {4, 5},        // Mercury
    {1, 5},        // Venus
    {6, 8},        // Mars
    {},            // Jupiter
    {1, 9},        // Saturn
    {2},           // Moon
    {1, 4, 7, 9},  // Rahu
    {1, 6, 7, 8},  // Ketu
}};

// The natural half of the compound relation, asked of the lord of the planet's sign. As no sign has a node for its
// lord, the 8 and 9 are never met.
struct AdhiRelation {
  NumberSet friends, enemies;
};
constexpr std::array<AdhiRelation, 10> AdhiRelations{{
    {{}, {}},                   // ascendant
    {{4, 5, 7}, {3, 6, 8, 9}},  // Sun
    {{1, 3}, {7}},              // Mercury
    {{2, 6, 8, 9}, {1, 7}},     // Venus
    {{1, 5, 7, 9}, {2, 8}},     // Mars
    {{1, 4, 7}, {2, 3}},        // Jupiter
    {{2, 3, 8}, {1, 4, 7, 9}},  // Saturn
    {{1, 2}, {8, 9}},           // Moon
    {{3, 6}, {1, 4, 7, 9}},     // Rahu
    {{3, 4}, {1, 6, 8}},        // Ketu
}};

// A temporary friend stands 2, 3, 4, 10, 11 or 12 signs away counted with both ends; the difference of the sign
// numbers is one less.
constexpr NumberSet TemporaryFriends{1, 2, 3, 9, 10, 11};

// Degrees from the Sun, without a wrap at 0 Aries; 0 for a planet that is never combust.
// Planet:                                           0  1  2  3  4  5  6  7
constexpr std::array<double, 8> CombustionOrbs{0, 0, 7, 7, 8, 9, 9, 12};
struct AstaOrb {
  double retrograde, direct;
};
constexpr std::array<AstaOrb, 8> AstaOrbs{{{0, 0}, {0, 0}, {12, 14}, {8, 10}, {17, 17}, {8, 11}, {15, 15}, {12, 12}}};

bool WithinOrb(double sun, double planet, double orb) { return orb > 0 && std::abs(sun - planet) <= orb; }

// The house of directional strength, as signs after the ascendant.
// Planet:                                      0   1  2  3  4  5  6  7
constexpr std::array<int, 8> DigBalaHouses{-1, 9, 0, 3, 9, 0, 6, 3};

// Planet:                                    0  1  2  3  4  5  6  7
constexpr std::array<int, 8> SpeedPoints{0, 4, 6, 5, 3, 2, 1, 7};

constexpr NumberSet Benefics{Mercury, Venus, Jupiter, Moon};
constexpr NumberSet Malefics{Sun, Mars, Saturn, Rahu, Ketu};

// The class of a longitude, in the order in which the classes are tried.
enum class Dignity { None, Exalted, Mooltrikona, Own, Debilitated };
Dignity DignityAt(int planet, double degrees) {
  const DignitySpan row = RowOf(DignitySpans, planet);
  if (row.exalted.Holds(degrees)) return Dignity::Exalted;
  if (row.mooltrikona.Holds(degrees)) return Dignity::Mooltrikona;
  if (row.own.Holds(degrees) || row.ownToo.Holds(degrees)) return Dignity::Own;
  if (row.debilitated.Holds(degrees)) return Dignity::Debilitated;
  return Dignity::None;
}

// Dignity:                                              None Exalted    Mooltrikona    Own          Debilitated
constexpr std::array<const char *, 5> DignityHeads{"-", "Exalted", "Mooltrikona", "Own House", "Debilitated"};
constexpr std::array<const char *, 5> DignityMarks{"", "Exalt", "Mool", "Own", "Debi"};

std::optional<bool> TrueOrNone(bool holds) { return holds ? std::optional(true) : std::nullopt; }

}  // namespace

// --- by sign ------------------------------------------------------------------------------------------------

bool clsPlanets::CheckIfExalted(int planet, double sign) {
  const int exalted = RowOf(DignitySigns, planet).exalted;
  return exalted != 0 && sign == exalted;
}

bool clsPlanets::CheckIfDebi(int planet, double sign) {
  const int debilitated = RowOf(DignitySigns, planet).debilitated;
  return debilitated != 0 && sign == debilitated;
}

bool clsPlanets::Exalted(int planet) const { return CheckIfExalted(planet, PlanetRashiNum(planet)); }
bool clsPlanets::Debilitated(int planet) const { return CheckIfDebi(planet, PlanetRashiNum(planet)); }

bool clsPlanets::CheckOwnHouse(int planet, double sign) { return RowOf(OwnSigns, planet).Has(sign); }
bool clsPlanets::InOwnHouse(int planet) const { return RowOf(OwnSignsNarrow, planet).Has(PlanetRashiNum(planet)); }

bool clsPlanets::InFriendHouse(int planet) const { return RowOf(SignRelations, planet).friendly.Has(PlanetRashiNum(planet)); }
bool clsPlanets::InEnemyHouse(int planet) const { return RowOf(SignRelations, planet).hostile.Has(PlanetRashiNum(planet)); }
bool clsPlanets::InSamaHouse(int planet) const { return RowOf(SignRelations, planet).neutral.Has(PlanetRashiNum(planet)); }

// --- by degrees ---------------------------------------------------------------------------------------------

QString clsPlanets::ExaltClass(int planet) const {
  const Dignity dignity = DignityAt(planet, PlanetLongi(planet));
  return GetTextBetween(Cnvt, QLatin1String(DignityHeads[static_cast<size_t>(dignity)]), QStringLiteral("EXALTCLASS"));
}

QString clsPlanets::ExaltClassEng(int planet) const {
  return QLatin1String(DignityMarks[static_cast<size_t>(DignityAt(planet, PlanetLongi(planet)))]);
}

bool clsPlanets::IsMoolTrikona(int planet) const { return RowOf(DignitySpans, planet).mooltrikona.Holds(PlanetLongi(planet)); }

bool clsPlanets::CheckHighestExaltDeg(int planet) const { return InLastHalfDegree(HighestExaltEnds, planet, PlanetLongi(planet)); }
bool clsPlanets::CheckHighestDebiDeg(int planet) const { return InLastHalfDegree(HighestDebiEnds, planet, PlanetLongi(planet)); }

// --- natures and relations ------------------------------------------------------------------------------------

bool clsPlanets::PlanetBenefic(int planet) { return Benefics.Has(planet); }
bool clsPlanets::PlanetMalefic(int planet) { return Malefics.Has(planet); }

int clsPlanets::GrahaRelation(int planet, const QString &other) {
  const int column = other.size() == 2 && other.front() == QLatin1Char('P') ? other.back().digitValue() : 0;
  const bool known = planet >= Sun && planet <= Ketu && column >= Sun && column <= Ketu;
  const int relation = known ? Relations[static_cast<size_t>(planet - 1)][static_cast<size_t>(column - 1)] : 0;
  if (relation == 0)
    throw SubscriptError(
        QStringLiteral("The table of planetary relations has no entry for planet %1 and '%2'.").arg(QString::number(planet), other));
  return relation;
}

std::optional<bool> clsPlanets::IsPlanetEnemy(int planet, int other) { return TrueOrNone(RowOf(Enemies, planet).Has(other)); }

int clsPlanets::GrahaMaitriNo() const { return PlanetSerialNumber(PlanetRashiLordNum(PlanetRashiNum(Moon)).value_or(0)); }

// Whether the planet stands in the sign of a temporary friend (or not), and that sign's lord is on the natural list.
bool clsPlanets::CompoundRelation(int planet, bool withFriend) const {
  const int sign = PlanetRashiNum(planet);
  const std::optional<int> lord = PlanetRashiLordNum(sign);
  if (!lord) return false;
  if (TemporaryFriends.Has(Norm12(sign - PlanetRashiNum(*lord))) != withFriend) return false;
  const AdhiRelation row = RowOf(AdhiRelations, planet);
  return (withFriend ? row.friends : row.enemies).Has(*lord);
}

bool clsPlanets::InAdhiMitraHouse(int planet) const { return CompoundRelation(planet, true); }
bool clsPlanets::InAdhiSatruHouse(int planet) const { return CompoundRelation(planet, false); }

// --- combustion -------------------------------------------------------------------------------------------------

bool clsPlanets::CheckIfCombust(double sunLongitude, int planet, double planetLongitude) {
  return WithinOrb(sunLongitude, planetLongitude, RowOf(CombustionOrbs, planet));
}

std::optional<bool> clsPlanets::Combust(int planet) const {
  return TrueOrNone(CheckIfCombust(PlanetLongi(Sun), planet, PlanetLongi(planet)));
}

QString clsPlanets::AstaText(int planet) const {
  const AstaOrb row = RowOf(AstaOrbs, planet);
  const bool set = row.direct > 0 && WithinOrb(PlanetLongi(Sun), PlanetLongi(planet), RetroGrade(planet) ? row.retrograde : row.direct);
  return GetTextBetween(Cnvt, set ? QStringLiteral("True") : QStringLiteral("False"), QStringLiteral("ASTA"));
}

bool clsPlanets::WithinOrbOfSun(int planet) const {
  constexpr double orb = 15;
  const double distance = PlanetLongi(Sun) - PlanetLongi(planet);
  return planet != Sun && (NormDeg360(distance) <= orb || NormDeg360(-distance) <= orb);
}

// --- strength and speed -------------------------------------------------------------------------------------------

bool clsPlanets::CheckDigBala(int planet, double sign, double ascendantSign) {
  if (planet < Sun || planet > Moon) return false;
  const int house = DigBalaHouses[static_cast<size_t>(planet)];
  return sign == (house == 0 ? ascendantSign : Norm12(ascendantSign + house));
}

bool clsPlanets::CheckIfStrong(int planet, double sign) const {
  // A tenth of a sign stands where a sign would be expected, so the third test rarely speaks; it is kept so.
  const double tenths = Functions::Int(PlanetLongi(Ascendant) / 3.0) + 1;
  return CheckIfExalted(planet, sign) || CheckOwnHouse(planet, sign) || CheckDigBala(planet, sign, tenths);
}

int clsPlanets::PlanetSpeedPoints(int planet) { return RowOf(SpeedPoints, planet); }
bool clsPlanets::PlanetIsFaster(int planet, int other) { return PlanetSpeedPoints(planet) > PlanetSpeedPoints(other); }
bool clsPlanets::PlanetIsSlower(int planet, int other) { return PlanetSpeedPoints(planet) < PlanetSpeedPoints(other); }
int clsPlanets::PlanetGetFaster(int planet, int other) { return PlanetIsFaster(planet, other) ? planet : other; }
int clsPlanets::PlanetGetSlower(int planet, int other) { return PlanetIsSlower(planet, other) ? planet : other; }
