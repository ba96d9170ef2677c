// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Divisional charts: the table of seventeen vargas, and the lords of single ones by rules of their own.
// Tables: OddTrimshamsha, EvenTrimshamsha, PanchamAmshaLords, SastamshaLords, VarAshtamamshaLords, MaleficSashtiAmshas.
#include <algorithm>
#include <array>
#include <cmath>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

using Functions::Fix;
using Functions::FracVar;
using Functions::Int;
using Functions::ModPos;
using Functions::Norm30;

namespace {

// Varga numbers.
enum Varga {
  Rashi = 1,
  Hora,
  Drekkana,
  Chaturthamsha,
  Saptamsha,
  Navamsha,
  Dashamsha,
  Dwadashamsha,
  Shodashamsha,
  Vimshamsha,
  Chaturvimshamsha,
  Bhamsha,
  Trimshamsha,
  Khavedamsha,
  Akshavedamsha,
  Shashtiamsha,
  Ekadashamsha
};

struct DegreeSign {
  double upTo;  // degrees inside the sign, included
  int sign;
};

constexpr std::array<DegreeSign, 5> OddTrimshamsha{{{5, 1}, {10, 11}, {18, 9}, {25, 3}, {30, 7}}};
constexpr std::array<DegreeSign, 5> EvenTrimshamsha{{{5, 2}, {12, 6}, {20, 12}, {25, 10}, {30, 8}}};

// Lords by degrees inside the sign, whatever the sign: each serves an equal part.
constexpr std::array<int, 5> PanchamAmshaLords{3, 2, 5, 6, 4};
constexpr std::array<int, 6> SastamshaLords{3, 4, 5, 6, 6, 5};

// Eight parts of 3.75 degrees, by the class of the sign: movable, fixed, dual.
constexpr std::array<std::array<int, 8>, 3> VarAshtamamshaLords{{
    {4, 3, 2, 7, 1, 2, 3, 4},
    {1, 2, 3, 4, 5, 6, 6, 5},
    {5, 6, 6, 5, 4, 3, 2, 7},
}};

constexpr std::array<int, 26> MaleficSashtiAmshas{1,  2,  7,  8,  9,  10, 11, 12, 15, 16, 30, 31, 32,
                                                  33, 36, 40, 41, 42, 43, 44, 47, 48, 51, 52, 55, 59};

// A sign's number brought into 1 to 12. All numbers here are whole: counted in integers a table of signs costs a third.
int W(int sign) {
  while (sign > 12) sign -= 12;
  while (sign < 1) sign += 12;
  return sign;
}

int W(double sign) { return std::abs(sign) < 1e6 ? W(static_cast<int>(sign)) : Functions::Whole16(Functions::Norm12(sign)); }

int Int16(double value) { return Functions::Whole16(Int(value)); }

// The lord of the part that the degrees fall in; every upper bound is included and the last part is open.
template <size_t N>
int LordOfPart(const std::array<int, N> &lords, double part, double degrees) {
  size_t i = 0;
  while (i + 1 < N && degrees > part * static_cast<double>(i + 1)) ++i;
  return lords[i];
}

}  // namespace

void clsPlanets::FillVargaTable() {
  for (size_t point = 0; point <= 12; ++point) {
    CalcVargaPositions(LysPlnt(static_cast<int>(point)));
    for (size_t varga = 1; varga <= 17; ++varga) vargas.table[varga][point] = vargas.work[varga];
  }
}

void clsPlanets::CalcVargaPositions(double degrees) {
  const double x = degrees;
  const int s = Int16(x / 30) + 1;
  const int s0 = s - 1;
  const bool odd = s0 % 2 == 0;
  const int triad = s0 % 3;    // 0 movable, 1 fixed, 2 dual
  const int element = s0 % 4;  // 0 fire, 1 earth, 2 air, 3 water
  const double r = Norm30(x);
  std::array<int, 19> &sign = vargas.work;

  sign[Rashi] = s;
  sign[Hora] = (r <= 15) == odd ? 5 : 4;
  // On the first point, what no rule assigns reads 12; later it keeps the value of the point before.
  for (size_t varga = 1; varga <= 16; ++varga)
    if (sign[varga] == 0) sign[varga] = 12;

  if (r <= 10)
    sign[Drekkana] = s;
  else if (r <= 20)
    sign[Drekkana] = W(s + 4);
  else if (r <= 30)
    sign[Drekkana] = W(s + 8);

  // Nothing is assigned exactly on 0, 7.5, 15, 22.5 and 30.
  if (r > 0 && r < 7.5)
    sign[Chaturthamsha] = s;
  else if (r > 7.5 && r < 15)
    sign[Chaturthamsha] = W(s + 3);
  else if (r > 15 && r < 22.5)
    sign[Chaturthamsha] = W(s + 6);
  else if (r > 22.5 && r < 30)
    sign[Chaturthamsha] = W(s + 9);

  sign[Saptamsha] = W(Int(7 * x / 30 + 1));
  sign[Navamsha] = W(Int(9 * x / 30 + 1));
  sign[Dashamsha] = W(Int16(FracVar(x / 30) * 10.0) + s0 + (odd ? 1 : 9));
  sign[Dwadashamsha] = W(Int16(FracVar(x / 30) * 12.0) + s0 + 1);
  sign[Shodashamsha] = W(Int(16 * (x / 30) + 1));
  sign[Vimshamsha] = W(Int16(r / 1.5) + std::array{1, 9, 5}[static_cast<size_t>(triad)]);
  sign[Chaturvimshamsha] = W(Int16(r / 1.25) + (odd ? 5 : 4));
  sign[Bhamsha] = W(Int16(r / (30.0 / 27)) + std::array{1, 4, 7, 10}[static_cast<size_t>(element)]);
  const auto &thirtieths = odd ? OddTrimshamsha : EvenTrimshamsha;
  const auto part = std::find_if(thirtieths.begin(), thirtieths.end(), [r](const DegreeSign &row) { return r <= row.upTo; });
  if (part != thirtieths.end()) sign[Trimshamsha] = part->sign;
  sign[Khavedamsha] = W(Int16(r / (30.0 / 40)) + (odd ? 1 : 7));
  sign[Akshavedamsha] = W(Int16(r / (30.0 / 45)) + std::array{1, 5, 9}[static_cast<size_t>(triad)]);
  const double m = ModPos(r, 6.0);
  sign[Shashtiamsha] = W(s + Int(m + m) + 1 - 1);
  const int q = Int16(r / (30.0 / 11)) + 1;
  if (q >= 1 && q <= 11) sign[Ekadashamsha] = W(s - q);
}

std::optional<int> clsPlanets::PrediVarga(int planet, int varga) const {
  SubscriptError::Check("varga table point", planet, 0, VargaState::Columns - 1);
  SubscriptError::Check("varga table", varga, 0, VargaState::Rows - 1);
  return vargas.table[static_cast<size_t>(varga)][static_cast<size_t>(planet)];
}

int clsPlanets::PlanetInNavamsha(int planet) const { return PrediVarga(planet, Navamsha).value_or(0); }

bool clsPlanets::PlanetVargottama(int planet) const { return PrediVarga(planet, Rashi) == PrediVarga(planet, Navamsha); }

int clsPlanets::PlanetGopuramsa(int planet) const {
  int count = 0;
  for (int varga = 1; varga <= 16; ++varga) count += PrediVarga(planet, varga) == PrediVarga(planet, Rashi);
  return count <= 13 ? count : 0;
}

double clsPlanets::KrishAmsha(int planet) const {
  SubscriptError::Check("KrishAmsha", planet, 0, 26);
  double &degrees = vargas.krishAmsha[static_cast<size_t>(planet)];
  if (degrees == 0) degrees = Norm30(PlanetLongi(planet));
  return degrees;
}

int clsPlanets::NavamshSign(int planet) const {
  // A cycle of 40 degrees holds twelve navamshas, so no wrap is needed; an exact multiple stays in the lower one.
  double q = ModPos(PlanetLongi(planet), 40.0) / (10.0 / 3);
  if (Fix(q) < q) q = Fix(q) + 1;
  return Functions::Whole16(q);
}

int clsPlanets::NavamshLord(int planet) const { return SignLord(NavamshSign(planet)).value_or(0); }
int clsPlanets::SaptamshaLord(int planet) const { return SignLord(PrediVarga(planet, Saptamsha).value_or(0)).value_or(0); }
int clsPlanets::DashamamshaLord(int planet) const { return SignLord(PrediVarga(planet, Dashamsha).value_or(0)).value_or(0); }
int clsPlanets::DwaDashamamshaLord(int planet) const { return SignLord(PrediVarga(planet, Dwadashamsha).value_or(0)).value_or(0); }
int clsPlanets::EkaDashamAmshaLord(int planet) const { return SignLord(PrediVarga(planet, Ekadashamsha).value_or(0)).value_or(0); }

int clsPlanets::DrekkanaLord(int planet) const {
  const double r = KrishAmsha(planet);
  const double s = Sign(planet);
  if (r <= 10) return SignLord(s).value_or(0);
  if (r <= 20) return SignLord(W(s + 4)).value_or(0);
  return SignLord(W(s + 8)).value_or(0);
}

int clsPlanets::ChaturthamshLord(int planet) const {
  const double r = KrishAmsha(planet);
  const double s = Sign(planet);
  if (r <= 7.5) return SignLord(s).value_or(0);
  if (r <= 15) return SignLord(W(s + 3)).value_or(0);
  if (r <= 22.5) return SignLord(W(s + 6)).value_or(0);
  return SignLord(W(s + 9)).value_or(0);
}

int clsPlanets::PanchamAmshLord(int planet) const { return LordOfPart(PanchamAmshaLords, 6, KrishAmsha(planet)); }
int clsPlanets::SastamshLord(int planet) const { return LordOfPart(SastamshaLords, 5, KrishAmsha(planet)); }

int clsPlanets::VarAshtamamshaLord(int planet) const {
  const int signClass = RashiClass(Sign(planet));
  const size_t row = signClass == 1 ? 0 : signClass == 2 ? 1 : 2;
  return LordOfPart(VarAshtamamshaLords[row], 3.75, KrishAmsha(planet));
}

bool clsPlanets::SashtiAmshaBenefic(int planet) const {
  double d = 2 * Norm30(PlanetLongi(planet));
  if (d != Fix(d)) d = Fix(d) + 1;
  if (PlanetRashiNum(planet) % 2 == 0) d = 60 - d + 1;
  return std::find(MaleficSashtiAmshas.begin(), MaleficSashtiAmshas.end(), Functions::Whole(d)) == MaleficSashtiAmshas.end();
}

std::optional<int> clsPlanets::Decanate() const {
  const int rest = Functions::Whole(PlanetLongi(1) + PlanetLongi(13)) % 30;
  if (rest > 0 && rest <= 10) return 1;
  if (rest > 10 && rest <= 20) return 2;
  if (rest > 20 && rest <= 30) return 3;
  return std::nullopt;
}
