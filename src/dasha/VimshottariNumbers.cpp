// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The numbers of the Vimshottari cycle and its tribhagi and mudda kin. Tables: Cycle, Years, MuddaDays.
#include <array>
#include <numeric>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

using Functions::Int;

namespace {

const QString Cnvt = QStringLiteral("CNVT");

constexpr int Moon = 7;

// Position in the cycle:                     1  2  3  4  5  6  7  8  9
constexpr std::array<int, 9> CycleLords{9, 3, 1, 7, 4, 8, 5, 6, 2};
constexpr std::array<int, 9> CycleYears{7, 20, 6, 10, 7, 18, 16, 19, 17};
static_assert(std::accumulate(CycleYears.begin(), CycleYears.end(), 0) == 120);

// Days of a year by position. Not the years times three: 61, 55, 49, 58 and 52 each have one day more.
constexpr std::array<int, 9> MuddaDays{21, 61, 18, 30, 21, 55, 49, 58, 52};
static_assert(std::accumulate(MuddaDays.begin(), MuddaDays.end(), 0) == 365);

bool IsPosition(int position) { return position >= 1 && position <= 9; }

double NakshatraSpan() { return 360.0 / 27; }

}  // namespace

int clsPlanets::GetVimSotPlanetLord(int position) { return IsPosition(position) ? CycleLords[static_cast<size_t>(position - 1)] : 0; }

std::optional<int> clsPlanets::GetVimSotPeriods(int planet) {
  for (size_t i = 0; i < CycleLords.size(); ++i)
    if (CycleLords[i] == planet) return CycleYears[i];
  return std::nullopt;
}

std::optional<double> clsPlanets::TriPeriod(int position) {
  if (!IsPosition(position)) return std::nullopt;
  return CycleYears[static_cast<size_t>(position - 1)] * 2 / 3.0;
}

std::optional<int> clsPlanets::MuddaCycleNo(int position) {
  if (!IsPosition(position)) return std::nullopt;
  return MuddaDays[static_cast<size_t>(position - 1)];
}

int clsPlanets::VimPeriod(int key) const {
  SubscriptError::Check("VimPeriod", key, 0, 10);
  int &years = words.vimshottariYears[static_cast<size_t>(key)];
  if (years == 0) {
    const QString text = GetTextBetween(Cnvt, QString::number(key), QStringLiteral("LysY1"));
    if (!text.isEmpty()) years = Functions::Whole16(TextToNumber(text, QStringLiteral("years of a dasha lord")));
  }
  return years;
}

QString clsPlanets::VimName(int key) const {
  SubscriptError::Check("VimName", key, 0, 10);
  QString &name = words.vimshottariName[static_cast<size_t>(key)];
  if (name.isEmpty()) name = GetTextBetween(Cnvt, QString::number(key), QStringLiteral("X1-"));
  return name;
}

double clsPlanets::VimBalAtBirth() const {
  const int nakshatra = NakOf(Moon);
  const double span = NakshatraSpan();
  const double left = (span * nakshatra - PlanetLongi(Moon)) / span;
  return VimPeriod(Functions::Whole(Functions::Norm9(nakshatra))) * left;
}

double clsPlanets::VimBalAtBirthKP() const {
  const double moon = Functions::NormDeg360(PlanetLongi(Moon) + PlanetLongi(13) - KPAyanVal());
  const double span = NakshatraSpan();
  const double nakshatra = Int(moon / span) + 1;
  const double left = (span * nakshatra - moon) / span;
  return VimPeriod(Functions::Whole(Functions::Norm9(nakshatra))) * left;
}

QString clsPlanets::MuddaCycleName(int position) const {
  SubscriptError::Check("MuddaCycleName", position, 0, 10);
  QString &name = words.muddaCycle[static_cast<size_t>(position)];
  if (name.isEmpty()) name = GetTextBetween(Cnvt, QString::number(position), QStringLiteral("Muddacyc"));
  return name;
}

QString clsPlanets::YogiCycleName(int key) const { return GetHeadValue(1, key, QStringLiteral("YogiCycleName")); }
QString clsPlanets::YogiCycleLordName(int key) const { return GetHeadValue(1, key, QStringLiteral("YogiCycleLordName")); }
