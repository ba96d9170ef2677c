// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The ashtakavarga: benefic points by sign, from eight contributors for each of nine reference bodies.
// Tables: Contributors, AshtakavargaRows.
#include <array>

#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

namespace {

//                                              Sun Moon Mars Mercury Jupiter Venus Saturn Ascendant
constexpr std::array<int, 8> Contributors{1, 7, 4, 2, 5, 3, 6, 0};

// The houses that get a point, counted from the contributor's own sign as 1.
struct AshtakavargaRow {
  int body;
  std::array<NumberSet, 8> houses;  // by contributor
};
constexpr std::array<AshtakavargaRow, 9> AshtakavargaRows{{
    {1,  // Sun: 48 points
     {{
         {1, 2, 4, 7, 8, 9, 10, 11},
         {3, 6, 10, 11},
         {1, 2, 4, 7, 8, 9, 10, 11},
         {3, 5, 6, 9, 10, 11, 12},
         {5, 6, 9, 11},
         {6, 7, 12},
         {1, 2, 4, 7, 8, 9, 10, 11},
         {3, 4, 6, 10, 11, 12},
     }}},
    {7,  // Moon: 49
     {{
         {3, 6, 7, 8, 10, 11},
         {1, 3, 6, 7, 10, 11},
         {2, 3, 5, 6, 9, 10, 11},
         {1, 3, 4, 5, 7, 8, 10, 11},
         {1, 4, 7, 8, 10, 11, 12},
         {3, 4, 5, 7, 9, 10, 11},
         {3, 5, 6, 11},
         {3, 6, 10, 11},
     }}},
    {4,  // Mars: 39
     {{
         {3, 5, 6, 10, 11},
         {3, 6, 11},
         {1, 2, 4, 7, 8, 10, 11},
         {3, 5, 6, 11},
         {6, 10, 11, 12},
         {6, 8, 11, 12},
         {1, 4, 7, 8, 9, 10, 11},
         {1, 3, 6, 10, 11},
     }}},
    {2,  // Mercury: 54
     {{
         {5, 6, 9, 11, 12},
         {2, 4, 6, 8, 10, 11},
         {1, 2, 4, 7, 8, 9, 10, 11},
         {1, 3, 5, 6, 9, 10, 11, 12},
         {6, 8, 11, 12},
         {1, 2, 3, 4, 5, 8, 9, 11},
         {1, 2, 4, 7, 8, 9, 10, 11},
         {1, 2, 4, 6, 8, 10, 11},
     }}},
    {5,  // Jupiter: 56
     {{
         {1, 2, 3, 4, 7, 8, 9, 10, 11},
         {2, 5, 7, 9, 11},
         {1, 2, 4, 7, 8, 10, 11},
         {1, 2, 4, 5, 6, 9, 10, 11},
         {1, 2, 3, 4, 7, 8, 10, 11},
         {2, 5, 6, 9, 10, 11},
         {3, 5, 6, 12},
         {1, 2, 4, 5, 6, 7, 9, 10, 11},
     }}},
    {3,  // Venus: 52
     {{
         {8, 11, 12},
         {1, 2, 3, 4, 5, 8, 9, 11, 12},
         {3, 5, 6, 9, 11, 12},
         {3, 5, 6, 9, 11},
         {5, 8, 9, 10, 11},
         {1, 2, 3, 4, 5, 8, 9, 10, 11},
         {3, 4, 5, 8, 9, 10, 11},
         {1, 2, 3, 4, 5, 8, 9, 11},
     }}},
    {6,  // Saturn: 39
     {{
         {1, 2, 4, 7, 8, 10, 11},
         {3, 6, 11},
         {3, 5, 6, 10, 11, 12},
         {6, 8, 9, 10, 11, 12},
         {5, 6, 11, 12},
         {6, 11, 12},
         {3, 5, 6, 11},
         {1, 3, 4, 6, 10, 11},
     }}},
    {8,  // Rahu: 44
     {{
         {1, 2, 3, 5, 7, 8, 10},
         {1, 3, 5, 7, 8, 9, 10},
         {2, 3, 5, 7, 12},
         {2, 4, 7, 8, 12},
         {1, 3, 4, 6, 8},
         {6, 7, 11, 12},
         {3, 5, 7, 10, 11, 12},
         {3, 4, 5, 9, 12},
     }}},
    {0,  // ascendant: 49; outside the totals
     {{
         {3, 4, 6, 10, 11, 12},
         {3, 6, 10, 11, 12},
         {1, 3, 6, 10, 11},
         {1, 2, 4, 6, 8, 10, 11},
         {1, 2, 4, 5, 6, 7, 9, 10, 11},
         {1, 2, 3, 4, 5, 8, 9},
         {1, 3, 4, 6, 10, 11},
         {3, 6, 10, 11},
     }}},
}};

}  // namespace

void clsPlanets::AshComp(const std::array<int, 12> &flags, int baseSign) {
  for (int house = 1; house <= 12; ++house) {
    if (flags[static_cast<size_t>(house - 1)] != 1) continue;
    int sign = baseSign + house - 1;
    if (sign > 12) sign -= 12;
    SetAshtak(sign, Ashtak(sign) + 1);
  }
}

void clsPlanets::AshTable() {
  for (const AshtakavargaRow &row : AshtakavargaRows) {
    for (int sign = 1; sign <= 12; ++sign) SetAshtak(sign, 0);
    for (size_t i = 0; i < Contributors.size(); ++i) {
      std::array<int, 12> flags{};
      for (int house = 1; house <= 12; ++house) flags[static_cast<size_t>(house - 1)] = row.houses[i].Has(house);
      AshComp(flags, PlanetRashiNum(Contributors[i]));
    }
    for (int sign = 1; sign <= 12; ++sign) SetAshVarga(row.body, sign, Ashtak(sign));
  }
  // The totals go on from what they hold, so a second run doubles them.
  for (int sign = 1; sign <= 12; ++sign)
    for (int body = 1; body <= 9; ++body) SetAshTotal(sign, AshTotal(sign) + AshVarga(body, sign));
}

int clsPlanets::Ashtak(int sign) const {
  SubscriptError::Check("Ashtak", sign, 0, 12);
  return ashtakavarga.work[static_cast<size_t>(sign)];
}

void clsPlanets::SetAshtak(int sign, int points) {
  SubscriptError::Check("Ashtak", sign, 0, 12);
  ashtakavarga.work[static_cast<size_t>(sign)] = points;
}

int clsPlanets::AshVarga(int body, int sign) const {
  SubscriptError::Check("AshVarga body", body, 0, 10);
  SubscriptError::Check("AshVarga sign", sign, 0, 13);
  return ashtakavarga.body[static_cast<size_t>(body)][static_cast<size_t>(sign)];
}

void clsPlanets::SetAshVarga(int body, int sign, int points) {
  SubscriptError::Check("AshVarga body", body, 0, 10);
  SubscriptError::Check("AshVarga sign", sign, 0, 13);
  ashtakavarga.body[static_cast<size_t>(body)][static_cast<size_t>(sign)] = points;
}

int clsPlanets::AshTotal(int sign) const {
  SubscriptError::Check("AshTotal", sign, 0, 13);
  return ashtakavarga.total[static_cast<size_t>(sign)];
}

void clsPlanets::SetAshTotal(int sign, int points) {
  SubscriptError::Check("AshTotal", sign, 0, 13);
  ashtakavarga.total[static_cast<size_t>(sign)] = points;
}
