// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Aspects and conjunctions: by sign, by degrees with orbs, the Western codes, and the groups of houses.
// Tables: AspectOffsets, WesternAspects, DegreeAspects, SignEnemies, MaleficOffsets.
#include <array>
#include <cmath>

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"

using Functions::Norm12;
using Functions::NormDeg360;

namespace {

enum Planet { Ascendant, Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu };

// Signs after the planet's own on which it looks. The nodes look in IfPlanetAspects and AspectedByEnemy alone.
constexpr std::array<NumberSet, 10> AspectOffsets{{
    {},         // ascendant
    {6},        // Sun
    {6},        // Mercury
    {6},        // Venus
    {3, 6, 7},  // Mars
    {4, 6, 8},  // Jupiter
    {2, 6, 9},  // Saturn
    {6},        // Moon
    {6},        // Rahu
    {6},        // Ketu
}};

// Closed ranges, tried in this order: where QNC and BQT overlap, QNC wins.
struct Range {
  double from = 1, to = 0;
  constexpr bool Holds(double degrees) const { return degrees >= from && degrees <= to; }
};
struct WesternAspect {
  const char *code;
  Range first, second;
};
constexpr std::array<WesternAspect, 11> WesternAspects{{
    {"CNJ", {0, 3.33}, {356.67, 360}},            // 0
    {"OPP", {176.67, 183.33}, {}},                // 180
    {"SQU", {86.67, 93.33}, {266.67, 273.33}},    // 90
    {"TRN", {116.67, 123.33}, {236.67, 243.33}},  // 120
    {"SXT", {56.67, 63.33}, {296.67, 303.33}},    // 60
    {"SQQ", {131.67, 138.33}, {221.67, 228.33}},  // 135
    {"SSQ", {41.67, 48.33}, {311.67, 318.33}},    // 45
    {"QNC", {146.67, 153.33}, {206.67, 213.33}},  // 150
    {"SSX", {26.67, 33.33}, {326.67, 333.33}},    // 30
    {"QNT", {68.67, 75.33}, {284.67, 291.33}},    // 72
    {"BQT", {140.67, 147.33}, {212.67, 219.33}},  // 144
}};

// The aspects by degrees in the order of their tests; a later one that holds wins. The conjunction comes before them.
struct DegreeAspect {
  int code;
  double angle, mirror;
};
constexpr std::array<DegreeAspect, 4> DegreeAspects{{
    {2, 90, 270},   // square
    {4, 120, 240},  // trine
    {5, 60, 300},   // sextile
    {3, 180, 180},  // opposition
}};

// The upper side of a band is one degree wider than the lower.
bool InBand(double distance, double angle, double orb) {
  return distance >= NormDeg360(angle - orb) && distance <= NormDeg360(angle + orb + 1);
}

// A list of its own, apart from IsPlanetEnemy and the compound relations.
constexpr std::array<NumberSet, 10> SignEnemies{{
    {},            // ascendant
    {3, 6, 8, 9},  // Sun
    {7},           // Mercury
    {1, 7},        // Venus
    {2, 8},        // Mars
    {2},           // Jupiter
    {1, 4, 7, 9},  // Saturn
    {8, 9},        // Moon
    {1, 4, 7, 9},  // Rahu
    {1, 6, 7, 8},  // Ketu
}};

struct MaleficOffset {
  int planet;
  std::array<int, 3> retrograde, direct;
};
constexpr std::array<MaleficOffset, 2> MaleficOffsets{{
    {Mars, {3, 6, 7}, {4, 7, 8}},
    {Saturn, {2, 6, 9}, {3, 7, 9}},
}};

// Whether `sign` lies one of the offsets after `from`.
bool LiesAfter(double sign, double from, const NumberSet &offsets) {
  for (int offset = 0; offset <= 11; ++offset)
    if (offsets.Has(offset) && sign == Norm12(from + offset)) return true;
  return false;
}

constexpr NumberSet KendraOffsets{3, 6, 9}, TrikonaOffsets{4, 8}, TrikaOffsets{5, 7, 11};
constexpr NumberSet PanapharaOffsets{1, 4, 7, 10}, ApoklimaOffsets{2, 5, 8, 11};

}  // namespace

// --- by sign ------------------------------------------------------------------------------------------------

bool clsPlanets::CheckIfPlanetAspects(int planet, int aspecting) const {
  if (aspecting < Sun || aspecting > Moon) return false;
  return LiesAfter(Sign(planet), Sign(aspecting), RowOf(AspectOffsets, aspecting));
}

bool clsPlanets::IfPlanetAspects(int planet, int aspecting) const {
  if (aspecting < Sun || aspecting > Ketu) return false;
  return LiesAfter(PlanetSign(planet), PlanetSign(aspecting), RowOf(AspectOffsets, aspecting));
}

// The planet asked about stands in the aspecting place, so its own offsets decide; the nodes and the ascendant have none.
bool clsPlanets::PlanetAspectedByNatBenefic(int planet) const {
  return CheckIfPlanetAspects(Jupiter, planet) || CheckIfPlanetAspects(Venus, planet) || CheckIfPlanetAspects(Moon, planet) ||
         CheckIfPlanetAspects(Mercury, planet);
}

bool clsPlanets::PlanetAspectedByNatMalefic(int planet) const {
  return CheckIfPlanetAspects(Saturn, planet) || CheckIfPlanetAspects(Sun, planet) || CheckIfPlanetAspects(Mars, planet);
}

std::optional<bool> clsPlanets::AspectedByEnemy(int planet) const {
  for (const int enemy : {Sun, Moon, Mercury, Venus, Rahu, Ketu, Mars, Jupiter, Saturn})
    if (IsPlanetEnemy(planet, enemy) && IfPlanetAspects(planet, enemy)) return true;
  return std::nullopt;
}

bool clsPlanets::CheckMaleficAspects(int planet, double sign) const {
  for (const MaleficOffset &row : MaleficOffsets) {
    if (row.planet != planet) continue;
    for (const int offset : RetroGrade(planet) ? row.retrograde : row.direct)
      if (sign == Norm12(Sign(planet) + offset)) return true;
  }
  return false;
}

// --- by degrees ---------------------------------------------------------------------------------------------

double clsPlanets::PlanetOrb(int planet) const {
  switch (planet) {
    case Sun: return 15;
    case Mercury:
    case Venus: return RetroGrade(planet) ? 6 : 7;
    case Mars: return 8;
    case Jupiter:
    case Saturn: return 9;
    case Moon: return 12;
    default: return 0;
  }
}

double clsPlanets::PlanetMutOrb(int planet, int other) const { return (PlanetOrb(planet) + PlanetOrb(other)) / 2; }

int clsPlanets::DegreeAspectOf(double longitude, double otherLongitude, double orb) {
  const double there = NormDeg360(longitude - otherLongitude);
  const double back = NormDeg360(otherLongitude - longitude);
  const auto joined = [orb](double distance) { return distance <= NormDeg360(orb + 1) || distance >= NormDeg360(360 - orb); };
  int code = joined(there) && joined(back) ? 1 : 0;
  for (const DegreeAspect &row : DegreeAspects) {
    const auto holds = [&](double distance) { return InBand(distance, row.angle, orb) || InBand(distance, row.mirror, orb); };
    if (holds(there) && holds(back)) code = row.code;
  }
  return code;
}

int clsPlanets::PlanetDegAspect(int planet, int other) const {
  return DegreeAspectOf(PlanetLongi(planet), PlanetLongi(other), PlanetMutOrb(planet, other));
}

QString clsPlanets::FindRelation(double degrees) {
  const double angle = std::abs(degrees);
  for (const WesternAspect &aspect : WesternAspects)
    if (aspect.first.Holds(angle) || aspect.second.Holds(angle)) return QLatin1String(aspect.code);
  return {};
}

// --- together in a sign ---------------------------------------------------------------------------------------

bool clsPlanets::PlanetInSameSign(int planet, int other) const { return Sign(planet) == Sign(other); }

bool clsPlanets::PlanetWithBenefic(int planet) const {
  for (const int benefic : {Jupiter, Venus, Mercury, Moon})
    if (PlanetInSameSign(planet, benefic)) return true;
  return false;
}

bool clsPlanets::PlanetWithMalefic(int planet) const {
  for (const int malefic : {Sun, Mars, Saturn, Rahu, Ketu})
    if (PlanetInSameSign(planet, malefic)) return true;
  return false;
}

bool clsPlanets::WithBenefic(int planet) const { return PlanetWithBenefic(planet); }
bool clsPlanets::WithMalefic(int planet) const { return PlanetWithMalefic(planet); }

bool clsPlanets::WithEnemy(int planet) const {
  const NumberSet enemies = RowOf(SignEnemies, planet);
  for (int enemy = Sun; enemy <= Ketu; ++enemy)
    if (enemies.Has(enemy) && PlanetRashiNum(planet) == PlanetRashiNum(enemy)) return true;
  return false;
}

// --- groups of houses -----------------------------------------------------------------------------------------

bool clsPlanets::PlanetInKendra(int planet, int from) const {
  return PlanetInSameSign(planet, from) || LiesAfter(Sign(planet), Sign(from), KendraOffsets);
}

bool clsPlanets::PlanetInTrikona(int planet, int from) const {
  return PlanetInSameSign(planet, from) || LiesAfter(Sign(planet), Sign(from), TrikonaOffsets);
}

bool clsPlanets::PlanetInTrika(int planet, int from) const { return LiesAfter(Sign(planet), Sign(from), TrikaOffsets); }
bool clsPlanets::PlanetInPanaphara(int planet) const { return LiesAfter(Sign(planet), Sign(Ascendant), PanapharaOffsets); }
bool clsPlanets::PlanetInApoklima(int planet) const { return LiesAfter(Sign(planet), Sign(Ascendant), ApoklimaOffsets); }
