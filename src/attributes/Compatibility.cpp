// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The attributes that matching and character texts rest on, all by the Moon's nakshatra or sign.
// Tables: Nakshatras, VarnaKeys, Vasyas, NadiPadaKeys, PayaKeys.
#include <array>

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"

using Functions::Norm12;

namespace {

const QString Cnvt = QStringLiteral("CNVT");

constexpr int Ascendant = 0, Moon = 7;

struct NakshatraRow {
  int gana;    // 3 deva, 2 manushya, 1 rakshasa
  int nadi;    // 1 adi, 2 madhya, 3 antya
  char rajju;  // foot, waist, belly, throat, head
  int vihag;   // 0 none
  int yoni;
};
constexpr std::array<NakshatraRow, 28> Nakshatras{{
    {0, 0, 0, 0, 0},    {3, 1, 'F', 1, 1},  // 1 Ashwini
    {2, 2, 'W', 2, 2},                      // 2 Bharani
    {1, 3, 'B', 3, 3},                      // 3 Krittika
    {2, 3, 'T', 4, 4},                      // 4 Rohini
    {3, 2, 'H', 5, 4},                      // 5 Mrigashira
    {2, 1, 'T', 1, 5},                      // 6 Ardra
    {3, 1, 'B', 2, 6},                      // 7 Punarvasu
    {3, 2, 'W', 3, 3},                      // 8 Pushya
    {1, 3, 'F', 4, 6},                      // 9 Ashlesha
    {1, 3, 'F', 5, 7},                      // 10 Magha
    {2, 2, 'W', 1, 7},                      // 11 Purva Phalguni
    {2, 1, 'B', 2, 8},                      // 12 Uttara Phalguni
    {3, 1, 'T', 3, 9},                      // 13 Hasta
    {1, 2, 'H', 4, 10},                     // 14 Chitra
    {3, 3, 'T', 5, 9},                      // 15 Swati
    {1, 3, 'B', 1, 10},                     // 16 Vishakha
    {3, 2, 'W', 2, 11},                     // 17 Anuradha
    {1, 1, 'F', 3, 11},                     // 18 Jyeshtha
    {1, 1, 'F', 4, 5},                      // 19 Mula
    {2, 2, 'W', 5, 13},                     // 20 Purva Ashadha
    {2, 3, 'B', 1, 13},                     // 21 Uttara Ashadha
    {3, 3, 'T', 2, 12},                     // 22 Shravana
    {1, 2, 'H', 3, 14},                     // 23 Dhanishta
    {1, 1, 'T', 4, 1},                      // 24 Shatabhisha
    {2, 1, 'B', 5, 14},                     // 25 Purva Bhadrapada
    {2, 2, 'W', 0, 8},                      // 26 Uttara Bhadrapada
    {3, 3, 'F', 0, 2},                      // 27 Revati
}};

// The varna's key by mode and by the Moon's sign.
constexpr std::array<std::array<int, 13>, 2> VarnaKeys{{
    // 0  1  2  3  4  5  6  7  8  9 10 11 12
    {0, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1},  // mode 1: by the sign's element
    {0, 3, 4, 3, 1, 2, 4, 2, 1, 2, 4, 3, 1},  // mode 2
}};

constexpr std::array<const char *, 6> VasyaWords{"", "MANAV", "CHATUSPAD", "JALCHAR", "KEET", "VANACHAR"};
// Sign:                                   0  1  2  3  4  5  6  7  8  9 10 11 12
constexpr std::array<int, 13> Vasyas{0, 2, 2, 1, 3, 5, 1, 1, 4, 2, 3, 3, 3};

// Navamshas of the Moon inside its cycle of twelve.
//                                               0  1  2  3  4  5  6  7  8  9 10 11 12
constexpr std::array<int, 13> NadiPadaKeys{0, 1, 2, 3, 3, 2, 1, 1, 2, 3, 3, 2, 1};

// Signs from the ascendant to the Moon:    0  1  2  3  4  5  6  7  8  9 10 11
constexpr std::array<int, 12> PayaKeys{1, 2, 3, 4, 2, 1, 3, 4, 2, 3, 1, 4};

// A class of 0 is none.
std::optional<int> ClassOrNone(int number) { return number == 0 ? std::nullopt : std::optional(number); }

}  // namespace

std::optional<int> clsPlanets::Gana(int &nakshatra) const {
  if (nakshatra == 0) nakshatra = Nakshatra();
  return ClassOrNone(RowOf(Nakshatras, nakshatra).gana);
}

QString clsPlanets::AssignGana(int gana) const { return GetTextBetween(Cnvt, QString::number(gana), QStringLiteral("Gana")); }

std::optional<int> clsPlanets::NadiNo() const { return ClassOrNone(RowOf(Nakshatras, Nakshatra()).nadi); }

QString clsPlanets::AssignNadi(int nadi) const { return GetTextBetween(Cnvt, QString::number(nadi), QStringLiteral("Nadi")); }

QString clsPlanets::RajjuType() const {
  const char letter = RowOf(Nakshatras, Nakshatra()).rajju;
  return letter == 0 ? QString() : QString(QLatin1Char(letter));
}

QString clsPlanets::Rajju() const { return GetTextBetween(Cnvt, QString::number(Nakshatra()) + QLatin1Char('H'), QStringLiteral("Rajju")); }

QString clsPlanets::Vihag() const {
  const int key = RowOf(Nakshatras, Nakshatra()).vihag;
  return key == 0 ? QString() : GetTextBetween(Cnvt, QString::number(key), QStringLiteral("VIHAGA"));
}

std::optional<int> clsPlanets::YoniNo() const { return ClassOrNone(RowOf(Nakshatras, Nakshatra()).yoni); }

QString clsPlanets::YoniName() const { return GetTextBetween(Cnvt, QString::number(Nakshatra()), QStringLiteral("Yoni")); }

QString clsPlanets::Varna() const {
  const int mode = CalcModVarna();
  if (mode != 1 && mode != 2) return {};
  const int key = RowOf(VarnaKeys[static_cast<size_t>(mode - 1)], RashiNum());
  return key == 0 ? QString() : GetTextBetween(Cnvt, QString::number(key), QStringLiteral("VARNA"));
}

// The number runs against the key. Every mode but 1 takes the second row here, where the word has none.
std::optional<int> clsPlanets::VarnaNo() const {
  const int key = RowOf(VarnaKeys[CalcModVarna() == 1 ? 0 : 1], RashiNum());
  return key == 0 ? std::nullopt : std::optional(5 - key);
}

QString clsPlanets::Vasya() const {
  const int number = RowOf(Vasyas, RashiNum());
  if (number == 0) return {};
  return GetTextBetween(Cnvt, QLatin1String(VasyaWords[static_cast<size_t>(number)]), QStringLiteral("VASYA"));
}

std::optional<int> clsPlanets::VasyaNo() const { return ClassOrNone(RowOf(Vasyas, RashiNum())); }

QString clsPlanets::NadiPada() const {
  const int key = RowOf(NadiPadaKeys, NavamshSign(Moon));
  return key == 0 ? QString() : GetTextBetween(Cnvt, QString::number(key), QStringLiteral("NADIPADA"));
}

QString clsPlanets::Paya() const {
  for (int distance = 0; distance <= 11; ++distance)
    if (RashiNum() == Norm12(PlanetRashiNum(Ascendant) + distance))
      return GetTextBetween(Cnvt, QString::number(PayaKeys[static_cast<size_t>(distance)]), QStringLiteral("PAYA"));
  return {};
}
