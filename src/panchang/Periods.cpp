// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The good and bad periods of the exact day, by parts of true daylight and night.
// Tables: DurMuhurtas, VarjyamGhatis, AmritaGhatis; the eighths of the day in panchang/Eighths.h.
#include "panchang/Periods.h"

#include <algorithm>

#include "engine/clsPlanets.h"
#include "panchang/Eighths.h"
#include "platform/Errors.h"

namespace {

// Fifteenths of daylight, or of the night, that are unfit for a beginning. The Muhurta Chintamani names them by the deities of the
// muhurtas: on Sunday Aryaman (14 of the day), on Monday Brahma (9) and Rakshasa (12), on Tuesday Agni (7 of the night) and Pitri (4),
// on Wednesday Abhijit (8), on Thursday Toya (6) and Rakshasa (12), on Friday Brahma (9) and Pitri (4), on Saturday Isha (1) and Sarpa
// (2). A deity has one muhurta of the day, so that the same name is the same number on each weekday.
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

// Ghatis after the beginning of a nakshatra of 60 at which its four ghatis of Varjyam (the poison ghatis) and of Amrita begin. A
// nakshatra is seldom sixty ghatis long: both the distance and the four ghatis are taken in its own proportion.
// The Muhurta Chintamani gives the poison ghatis by number words, a group of nakshatras to each; 25 of the 27 are those below. The
// southern lists, which have Amrita beside them and are followed here, part from it in two: Ardra has 11 (21 in the verses, and in
// some printed lists), Mula 20 and a second one at 56 (56 alone in the verses). Hasta is 22 in some lists. By the southern lists
// Amrita comes 24 ghatis after Varjyam wherever the nakshatra goes on so long, Ardra's 35 after 11 too, so that the two lists vouch
// for each other; Ashwini and Rohini, whose Varjyam is late, have Amrita at numbers of their own, before and after it.
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
constexpr int GhatisOfNakshatra = 60, GhatisOfPeriod = 4, FromVarjyamToAmrita = 24;

constexpr bool AmritaFollowsVarjyam() {
  for (size_t n = 0; n < VarjyamGhatis.size(); ++n) {
    const int amrita = VarjyamGhatis[n] + FromVarjyamToAmrita;
    if (amrita <= GhatisOfNakshatra - GhatisOfPeriod && AmritaGhatis[n] != amrita) return false;
  }
  return true;
}
static_assert(AmritaFollowsVarjyam(), "a cell of one of the two tables is mistyped");

constexpr int EighthsOfDay = 8, MuhurtasOfDay = 15;
constexpr int AbhijitMuhurta = 8;  // the one that holds noon
constexpr int BrahmaMuhurta = 14;  // of the night: the last but one before sunrise
constexpr int Wednesday = 4;

int EighthOf(int evilMuhurtha, int weekday) { return Eighths::Of(Eighths::EvilMuhurthas[static_cast<size_t>(evilMuhurtha - 1)], weekday); }

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
  add(Kind::RahuKaal, day, Eighths::Of(Eighths::RahuKaal, weekday), EighthsOfDay);
  for (const auto &[kind, row] : {std::pair{Kind::Yamaghanta, Eighths::Yamghant}, {Kind::Gulika, Eighths::Kulik}})
    add(kind, day, EighthOf(row, weekday), EighthsOfDay);
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

Stretch EvilMuhurtha(int kind, int weekday, const Stretch &day) {
  SubscriptError::Check("evil muhurtha", kind, Eighths::Kulik, Eighths::Kantak);
  SubscriptError::Check("weekday", weekday, 1, 7);
  const int eighth = EighthOf(kind, weekday);
  return {day.Part(eighth - 1, EighthsOfDay), day.Part(eighth, EighthsOfDay)};
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

Judgement ChogadiyaJudgement(int type) {
  using enum Judgement;
  constexpr std::array<Judgement, 7> judgements{Bad, Fair, Good, Good, Bad, Good, Bad};  // Udveg Chara Laabh Amrit Kaal Shubh Rog
  SubscriptError::Check("chogadiya", type, 1, 7);
  return judgements[static_cast<size_t>(type - 1)];
}

}  // namespace Periods
