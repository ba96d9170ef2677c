// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The good and bad periods of the exact day, by parts of true daylight and night.
// Tables: Eighths, DurMuhurtas, VarjyamGhatis, SecondVarjyamGhatis, AmritaGhatis.
#include "panchang/Periods.h"

#include <algorithm>

#include "engine/clsPlanets.h"

namespace {

// Eighths of daylight, counted from 1, by weekday:   Sun Mon Tue Wed Thu Fri Sat
// Gulika is the eighth that Saturn rules, Yamaghanta Jupiter's, both counted from the day's lord; Rahu has a row of his own.
// B. V. Raman, Muhurtha (Electional Astrology), gives all three for a day of 6 to 18 o'clock.
constexpr std::array<std::array<int, 7>, 3> Eighths{{
    {8, 2, 7, 5, 6, 4, 3},  // Rahu Kaal
    {5, 4, 3, 2, 1, 7, 6},  // Yamaghanta
    {7, 6, 5, 4, 3, 2, 1},  // Gulika
}};

// Fifteenths of daylight, or of the night, that are unfit for a beginning; the Muhurta Chintamani (chapter 1) names them by the
// deities of the muhurtas: Aryaman 14, Brahma 9 and Rakshasa 12, Pitri 4 and Agni of the night 7, Abhijit 8, Toya 6 and
// Rakshasa 12, Pitri 4 and Brahma 9, Rudra 1 and Sarpa 2.
struct DurMuhurtaRow {
  int first, second;  // 0: none
  bool secondOfNight;
};
constexpr std::array<DurMuhurtaRow, 7> DurMuhurtas{{
    {14, 0, false},  // Sunday
    {9, 12, false},  // Monday
    {4, 7, true},    // Tuesday
    {8, 0, false},   // Wednesday
    {6, 12, false},  // Thursday
    {4, 9, false},   // Friday
    {1, 2, false},   // Saturday
}};

// Ghatis after the beginning of a nakshatra of 60 at which its four ghatis of Varjyam (visha ghati) and of Amrita begin. A nakshatra
// is seldom sixty ghatis long: both the distance and the four ghatis are taken in its own proportion. Muhurta Chintamani and, in the
// south, Kalaprakasika; printed lists part at Ardra (11 or 21) and Hasta (21 or 22). Mula has a second Varjyam at 56.
constexpr std::array<int, 27> VarjyamGhatis{
    50, 24, 30,  // Ashwini, Bharani, Krittika
    40, 14, 11,  // Rohini, Mrigashira, Ardra
    30, 20, 32,  // Punarvasu, Pushya, Ashlesha
    30, 20, 18,  // Magha, Purva Phalguni, Uttara Phalguni
    21, 20, 14,  // Hasta, Chitra, Swati
    14, 10, 14,  // Vishakha, Anuradha, Jyeshtha
    20, 24, 20,  // Mula, Purva Ashadha, Uttara Ashadha
    10, 10, 18,  // Shravana, Dhanishta, Shatabhisha
    16, 24, 30,  // Purva Bhadrapada, Uttara Bhadrapada, Revati
};
constexpr int Mula = 19, SecondVarjyamOfMula = 56;
constexpr std::array<int, 27> AmritaGhatis{
    42, 48, 54,  // Ashwini, Bharani, Krittika
    52, 38, 35,  // Rohini, Mrigashira, Ardra
    54, 44, 56,  // Punarvasu, Pushya, Ashlesha
    54, 44, 42,  // Magha, Purva Phalguni, Uttara Phalguni
    45, 44, 38,  // Hasta, Chitra, Swati
    38, 34, 38,  // Vishakha, Anuradha, Jyeshtha
    44, 48, 44,  // Mula, Purva Ashadha, Uttara Ashadha
    34, 34, 42,  // Shravana, Dhanishta, Shatabhisha
    40, 48, 54,  // Purva Bhadrapada, Uttara Bhadrapada, Revati
};
constexpr int GhatisOfNakshatra = 60, GhatisOfPeriod = 4;

constexpr int MuhurtasOfDay = 15;
constexpr int AbhijitMuhurta = 8;  // the one that holds noon
constexpr int BrahmaMuhurta = 14;  // of the night: the last but one before sunrise
constexpr int Wednesday = 4;

template <typename Table>
auto Of(const Table &byWeekday, int weekday) {
  return byWeekday[static_cast<size_t>(weekday - 1)];
}

}  // namespace

namespace Periods {

std::vector<Period> Find(int weekday, const std::optional<Stretch> &nightBefore, const std::optional<Stretch> &day,
                         const std::optional<Stretch> &night, const std::vector<LimbSpan> &nakshatras, double begins, double ends) {
  using Kind = Period::Kind;
  std::vector<Period> periods;
  const auto add = [&](Kind kind, const std::optional<Stretch> &of, int part, int count) {
    if (of && part > 0) periods.push_back({kind, of->Part(part - 1, count), of->Part(part, count), false});
  };
  for (const auto &[kind, row] : {std::pair{Kind::RahuKaal, 0}, std::pair{Kind::Yamaghanta, 1}, std::pair{Kind::Gulika, 2}})
    add(kind, day, Of(Eighths[static_cast<size_t>(row)], weekday), 8);
  const DurMuhurtaRow dur = Of(DurMuhurtas, weekday);
  add(Kind::DurMuhurta, day, dur.first, MuhurtasOfDay);
  add(Kind::DurMuhurta, dur.secondOfNight ? night : day, dur.second, MuhurtasOfDay);

  const auto addGhatis = [&](Kind kind, const LimbSpan &nakshatra, int ghati) {
    const double one = (nakshatra.ends - nakshatra.begins) / GhatisOfNakshatra;
    const double from = nakshatra.begins + ghati * one, to = from + GhatisOfPeriod * one;
    if (to > begins && from < ends) periods.push_back({kind, from, to, false});
  };
  for (const LimbSpan &nakshatra : nakshatras) {
    addGhatis(Kind::Varjyam, nakshatra, VarjyamGhatis[static_cast<size_t>(nakshatra.number - 1)]);
    if (nakshatra.number == Mula) addGhatis(Kind::Varjyam, nakshatra, SecondVarjyamOfMula);
  }
  add(Kind::Abhijit, day, AbhijitMuhurta, MuhurtasOfDay);
  if (day) periods.back().setAside = weekday == Wednesday;
  add(Kind::BrahmaMuhurta, nightBefore, BrahmaMuhurta, MuhurtasOfDay);
  add(Kind::BrahmaMuhurta, night, BrahmaMuhurta, MuhurtasOfDay);
  for (const LimbSpan &nakshatra : nakshatras) addGhatis(Kind::Amrita, nakshatra, AmritaGhatis[static_cast<size_t>(nakshatra.number - 1)]);
  std::stable_sort(periods.begin(), periods.end(),
                   [](const Period &a, const Period &b) { return a.IsGood() != b.IsGood() ? b.IsGood() : a.begins < b.begins; });
  return periods;
}

std::vector<DayPart> Chogadiyas(int weekday, const std::optional<Stretch> &day, const std::optional<Stretch> &night) {
  std::vector<DayPart> parts;
  for (int n = 0; n < 8 && day; ++n)
    parts.push_back({clsPlanets::GetChogadiyaType(n + 1, weekday), day->Part(n, 8), day->Part(n + 1, 8), false});
  for (int n = 0; n < 8 && night; ++n)
    parts.push_back({clsPlanets::GetChogadiyaType(n + 9, weekday), night->Part(n, 8), night->Part(n + 1, 8), true});
  return parts;
}

std::vector<DayPart> Horas(int weekday, const std::optional<Stretch> &day, const std::optional<Stretch> &night) {
  std::vector<DayPart> parts;
  for (int n = 0; n < 12 && day; ++n)
    parts.push_back({clsPlanets::GetHoraType(n + 1, weekday), day->Part(n, 12), day->Part(n + 1, 12), false});
  for (int n = 0; n < 12 && night; ++n)
    parts.push_back({clsPlanets::GetHoraType(n + 13, weekday), night->Part(n, 12), night->Part(n + 1, 12), true});
  return parts;
}

bool IsGoodChogadiya(int type) {
  constexpr std::array<bool, 8> good{false, false, true, true, true, false, true, false};  // Udveg Chara Laabh Amrit Kaal Shubh Rog
  return type >= 1 && type <= 7 && good[static_cast<size_t>(type)];
}

}  // namespace Periods
