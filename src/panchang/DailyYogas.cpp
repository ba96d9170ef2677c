// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Tables: the weekday rows of nakshatras, tithis and tithi types; ShunyaTithis, ShunyaNakshatras, ShunyaRashis;
// VajraRows, DwipushkarRows, TripushkarRows; TithiNakshatras, DagdhaLagnas; Yogas.
#include "panchang/DailyYogas.h"

#include <array>

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"

namespace DailyYogas {
namespace {

// A number for each weekday, Sunday first; 0 is none.
using WeekdayRow = std::array<int, 7>;
using WeekdaySets = std::array<NumberSet, 7>;

bool IsOf(const WeekdayRow &row, int weekday, int number) {
  return number > 0 && weekday >= 1 && weekday <= 7 && row[static_cast<size_t>(weekday - 1)] == number;
}

bool IsAmong(const WeekdaySets &row, int weekday, int number) {
  return weekday >= 1 && weekday <= 7 && row[static_cast<size_t>(weekday - 1)].Has(number);
}

// Nakshatra by weekday:                                Sun Mon Tue Wed Thu Fri Sat
constexpr WeekdayRow AmritSiddhiNakshatras{13, 5, 1, 17, 8, 27, 4};
constexpr WeekdayRow YamghantNakshatras{10, 16, 6, 19, 3, 4, 13};
constexpr WeekdayRow DagdhaNakshatras{2, 14, 21, 23, 12, 18, 27};
constexpr WeekdayRow UtpaatNakshatras{16, 20, 23, 27, 4, 8, 12};
constexpr WeekdayRow MrityuNakshatras{17, 21, 24, 1, 5, 9, 13};
constexpr WeekdayRow KaanNakshatras{18, 28, 25, 2, 6, 10, 14};  // Abhijit, 28, is no nakshatra of the Moon here: never on a Monday
constexpr WeekdayRow SiddhiNakshatras{19, 22, 26, 3, 7, 11, 15};

// Tithis by weekday:              Sun  Mon  Tue  Wed  Thu  Fri  Sat
constexpr WeekdaySets KrakachTithis{{{12, 27}, {11, 26}, {10, 25}, {9, 24}, {8, 23}, {7, 22}, {6, 21}}};
constexpr WeekdaySets HutashanTithis{{{12, 27}, {6, 21}, {7, 22}, {8, 23}, {9, 24}, {10, 25}, {11, 26}}};
constexpr WeekdaySets AdhamTithis{{{7, 9, 12, 22, 27}, {11, 26}, {10, 25}, {1}, {8, 23}, {7, 22}, {6}}};
constexpr WeekdaySets VishaTithis{{{4, 19}, {6, 21}, {7, 22}, {2, 17}, {8, 23}, {9, 24}, {7, 22}}};
constexpr WeekdaySets SamvartakTithis{{{7}, {}, {}, {1}, {}, {}, {}}};
constexpr WeekdaySets DagdhaTithis{{{12, 27}, {11, 26}, {5, 20}, {3, 18}, {6, 21}, {8, 23}, {9, 24}}};

// Tithi type by weekday:                 Sun Mon Tue Wed Thu Fri Sat
// The first two are alike, so that both are told on the same days. No tithi has the type 5.
constexpr WeekdayRow MrityuTypes{1, 2, 1, 3, 4, 2, 5};
constexpr WeekdayRow AmritTypes{1, 2, 1, 3, 4, 2, 5};
constexpr WeekdayRow SiddhiTypes{0, 0, 3, 2, 5, 1, 4};

// By lunar month; row 0 is none.
constexpr std::array<NumberSet, 13> ShunyaTithis{{
    {},
    {12, 27},
    {13, 23, 29},
    {7, 21},
    {2, 3, 17, 18},
    {1, 2, 16, 17},
    {7, 8, 22, 23},
    {14, 20, 23},
    {7, 8, 20, 22},
    {4, 5, 19},
    {6, 20},
    {3, 19},
    {8, 9, 23, 24},
}};
constexpr std::array<NumberSet, 13> ShunyaNakshatras{{
    {},
    {14, 15},
    {8, 21},
    {11, 23},
    {21, 22},
    {24, 27},
    {25},
    {1, 10},
    {14, 16},
    {1, 6, 13},
    {19, 22},
    {2, 18},
    {1, 4},
}};
// Month:                                      0   1  2  3  4  5  6  7  8  9  10 11  12
constexpr std::array<int, 13> ShunyaRashis{0, 12, 2, 3, 1, 6, 8, 7, 9, 4, 10, 5, 11};

struct TripleRow {
  NumberSet tithis;
  int weekday;
  NumberSet nakshatras;
};
constexpr std::array<TripleRow, 7> VajraRows{{
    {{5, 20}, 1, {13}},
    {{6, 21}, 2, {5}},
    {{7, 22}, 3, {1}},
    {{8, 23}, 4, {17}},
    {{9, 24}, 5, {8}},
    {{10, 25}, 6, {27}},
    {{11, 26}, 7, {4}},
}};
constexpr std::array<TripleRow, 3> DwipushkarRows{{
    {{2, 17}, 1, {23}},
    {{7, 22}, 2, {14}},
    {{12, 27}, 3, {5}},
}};
constexpr std::array<TripleRow, 3> TripushkarRows{{
    {{2, 17}, 1, {3, 7}},
    {{7, 22}, 2, {12, 16}},
    {{12, 27}, 3, {21, 26}},
}};

template <size_t N>
bool AnyRow(const std::array<TripleRow, N> &rows, int weekday, int tithi, int nakshatra) {
  for (const TripleRow &row : rows)
    if (row.weekday == weekday && row.tithis.Has(tithi) && row.nakshatras.Has(nakshatra)) return true;
  return false;
}

struct PairRow {
  NumberSet tithis, partners;
};
constexpr std::array<PairRow, 11> TithiNakshatras{{
    {{1}, {21}},
    {{2, 17}, {17}},
    {{3, 18}, {12, 21, 26}},
    {{5, 20}, {10}},
    {{6, 21}, {4}},
    {{7, 22}, {13, 19}},
    {{8, 23}, {25}},
    {{9, 24}, {3}},
    {{11, 26}, {4}},
    {{12, 27}, {9}},
    {{13, 28}, {14, 15}},
}};
// The first tithi of the dark half, 16, is not in the first row.
constexpr std::array<PairRow, 7> DagdhaLagnas{{
    {{1}, {7, 10}},
    {{3, 18}, {5, 10}},
    {{5, 20}, {3, 6}},
    {{7, 22}, {4, 9}},
    {{9, 24}, {4, 5}},
    {{11, 26}, {9, 12}},
    {{13, 28}, {2, 12}},
}};

template <size_t N>
bool AnyPair(const std::array<PairRow, N> &rows, int tithi, int partner) {
  for (const PairRow &row : rows)
    if (row.tithis.Has(tithi) && row.partners.Has(partner)) return true;
  return false;
}

constexpr NumberSet PanchakaNakshatras{23, 24, 25, 26, 27};
constexpr NumberSet VidalRemainders{3, 6};
constexpr NumberSet RaviDistances{4, 6, 9, 10, 13, 20};

int DistanceFromMoon(int sunNakshatra, int moonNakshatra) {
  const int distance = sunNakshatra - moonNakshatra;
  return distance < 0 ? distance + 27 : distance;
}

}  // namespace

bool IsAmritSiddhi(int weekday, int nakshatra) { return IsOf(AmritSiddhiNakshatras, weekday, nakshatra); }
bool IsYamghant(int weekday, int nakshatra) { return IsOf(YamghantNakshatras, weekday, nakshatra); }
bool IsDagdhaNakshatra(int weekday, int nakshatra) { return IsOf(DagdhaNakshatras, weekday, nakshatra); }
bool IsUtpaat(int weekday, int nakshatra) { return IsOf(UtpaatNakshatras, weekday, nakshatra); }
bool IsMrityuNak(int weekday, int nakshatra) { return IsOf(MrityuNakshatras, weekday, nakshatra); }
bool IsKaan(int weekday, int nakshatra) { return IsOf(KaanNakshatras, weekday, nakshatra); }
bool IsSiddhi(int weekday, int nakshatra) { return IsOf(SiddhiNakshatras, weekday, nakshatra); }

bool IsKrakach(int weekday, int tithi) { return IsAmong(KrakachTithis, weekday, tithi); }
bool IsHutashan(int weekday, int tithi) { return IsAmong(HutashanTithis, weekday, tithi); }
bool IsAdham(int weekday, int tithi) { return IsAmong(AdhamTithis, weekday, tithi); }
bool IsVisha(int weekday, int tithi) { return IsAmong(VishaTithis, weekday, tithi); }
bool IsSamvartak(int weekday, int tithi) { return IsAmong(SamvartakTithis, weekday, tithi); }
bool IsDagdha(int weekday, int tithi) { return IsAmong(DagdhaTithis, weekday, tithi); }

bool IsShunyaTithi(int tithi, int month) { return RowOf(ShunyaTithis, month).Has(tithi); }
bool IsShunyaNakshatra(int nakshatra, int month) { return RowOf(ShunyaNakshatras, month).Has(nakshatra); }
bool IsShunyaRashi(int month, int moonSign) { return moonSign > 0 && RowOf(ShunyaRashis, month) == moonSign; }

bool IsMrityuTithi(int weekday, int tithiType) { return IsOf(MrityuTypes, weekday, tithiType); }
bool IsSiddhiTithi(int weekday, int tithiType) { return IsOf(SiddhiTypes, weekday, tithiType); }
bool IsAmritTithi(int tithiType, int weekday) { return IsOf(AmritTypes, weekday, tithiType); }

bool IsVajra(int weekday, int tithi, int nakshatra) { return AnyRow(VajraRows, weekday, tithi, nakshatra); }
bool IsDwipushkar(int weekday, int tithi, int nakshatra) { return AnyRow(DwipushkarRows, weekday, tithi, nakshatra); }
bool IsTripushkar(int weekday, int tithi, int nakshatra) { return AnyRow(TripushkarRows, weekday, tithi, nakshatra); }

bool IsTithiNakshatropann(int tithi, int nakshatra) { return AnyPair(TithiNakshatras, tithi, nakshatra); }
bool IsDagdhaLagna(int tithi, int ascendantSign) { return AnyPair(DagdhaLagnas, tithi, ascendantSign); }
bool IsPanchaka(int nakshatra) { return PanchakaNakshatras.Has(nakshatra); }

bool IsVidal(int sunNakshatra, int moonNakshatra) { return VidalRemainders.Has(DistanceFromMoon(sunNakshatra, moonNakshatra) % 7); }
bool IsRavi(int sunNakshatra, int moonNakshatra) { return RaviDistances.Has(DistanceFromMoon(sunNakshatra, moonNakshatra)); }

bool IsJupVenCombust(bool jupiterCombust, bool venusCombust) { return jupiterCombust && venusCombust; }

bool IsGandMool(int moonNakshatra, double moonLongitude) {
  if (moonNakshatra != 9 && moonNakshatra != 18 && moonNakshatra != 27) {
    // The stars that open a group have no span of their own but the point 0.
    constexpr NumberSet openers{1, 10, 19};
    return openers.Has(moonNakshatra) && moonLongitude <= 0 && moonLongitude >= -360.0 / 27;
  }
  const double span = 360.0 / 27;
  const double end = span * moonNakshatra;
  return end - span <= moonLongitude && moonLongitude <= end;
}

bool IsBhumiSupt(bool sunBeyondZero) {
  // True counts as -1; both are brought into 1 to 30.
  const int day = sunBeyondZero ? 29 : 30;
  constexpr NumberSet sleepingDays{5, 7, 9, 10, 21, 28};
  return sleepingDays.Has(day);
}

int RunningTithi(double tithi) {
  const int running = Functions::Whole(Functions::Int(tithi)) + (tithi != Functions::Int(tithi) ? 1 : 0);
  return running == 0 ? 30 : running;
}

Inputs InputsOf(const clsPlanets &chart) {
  constexpr int ascendant = 0, sun = 1, venus = 3, jupiter = 5, moon = 7;
  Inputs inputs;
  inputs.weekday = chart.clsPerson().WeekDayOfBirth();
  inputs.tithi = RunningTithi(chart.Tithi());
  inputs.tithiType = clsPlanets::GetTithiType(inputs.tithi);
  inputs.nakshatra = chart.Nakshatra();
  inputs.month = clsPlanets::VikramiMonth(chart.PlanetLongi(sun), chart.clsPerson().GetBirthDate());
  inputs.sunNakshatra = chart.NakOf(sun);
  inputs.moonNakshatra = chart.NakOf(moon);
  inputs.moonSign = Functions::Whole(chart.PlanetSign(moon));
  inputs.ascendantSign = Functions::Whole(chart.PlanetSign(ascendant));
  inputs.sunLongitude = chart.PlanetLongi(sun);
  inputs.moonLongitude = chart.PlanetLongi(moon);
  inputs.jupiterCombust = chart.Combust(jupiter).has_value();
  inputs.venusCombust = chart.Combust(venus).has_value();
  return inputs;
}

const std::vector<Yoga> &All() {
  using I = const Inputs &;
  static const std::vector<Yoga> yogas{
      {1, "AMRIT SIDDHI YOGA", [](I i) { return IsAmritSiddhi(i.weekday, i.nakshatra); }},
      {2, "KRAKACH YOGA", [](I i) { return IsKrakach(i.weekday, i.tithi); }},
      {3, "Hutashan Yoga", [](I i) { return IsHutashan(i.weekday, i.tithi); }},
      {4, "Yamghant Yoga", [](I i) { return IsYamghant(i.weekday, i.nakshatra); }},
      {5, "Shunya Tithi Yoga", [](I i) { return IsShunyaTithi(i.tithi, i.month); }},
      {6, "Shunya Nakshatra Yoga", [](I i) { return IsShunyaNakshatra(i.nakshatra, i.month); }},
      {7, "Mrityu Yoga", [](I i) { return IsMrityuTithi(i.weekday, i.tithiType); }},
      {8, "Jupiter-Venus Combust", [](I i) { return IsJupVenCombust(i.jupiterCombust, i.venusCombust); }},
      {9, "VIDAL YOGA", [](I i) { return IsVidal(i.sunNakshatra, i.moonNakshatra); }},
      {10, "PANCHAKA YOGA", [](I i) { return IsPanchaka(i.nakshatra); }},
      {11, "VAJRA YOGA", [](I i) { return IsVajra(i.weekday, i.tithi, i.nakshatra); }},
      {12, "Dwipushkar YOGA", [](I i) { return IsDwipushkar(i.weekday, i.tithi, i.nakshatra); }},
      {13, "Tripushkar YOGA", [](I i) { return IsTripushkar(i.weekday, i.tithi, i.nakshatra); }},
      {14, "BhumiSupt Yoga", [](I i) { return IsBhumiSupt(i.sunLongitude != 0); }},
      {15, "Siddhi Tithi", [](I i) { return IsSiddhiTithi(i.weekday, i.tithiType); }},
      {16, "Adham Yoga", [](I i) { return IsAdham(i.weekday, i.tithi); }},
      {17, "Visha Yoga", [](I i) { return IsVisha(i.weekday, i.tithi); }},
      {18, "Ravi Yoga", [](I i) { return IsRavi(i.sunNakshatra, i.moonNakshatra); }},
      {19, "GandMool Nakshatra", [](I i) { return IsGandMool(i.moonNakshatra, i.moonLongitude); }},
      {20, "AMRIT TITHI", [](I i) { return IsAmritTithi(i.tithiType, i.weekday); }},
      {21, "Dagdha Nakshatra", [](I i) { return IsDagdhaNakshatra(i.weekday, i.nakshatra); }},
      {22, "Samvartak", [](I i) { return IsSamvartak(i.weekday, i.tithi); }},
      {23, "Dagdha", [](I i) { return IsDagdha(i.weekday, i.tithi); }},
      {24, "Tithi Nakshatropann", [](I i) { return IsTithiNakshatropann(i.tithi, i.nakshatra); }},
      {25, "Shunya Rashi", [](I i) { return IsShunyaRashi(i.month, i.moonSign); }},
      {26, "Dagdha Lagna", [](I i) { return IsDagdhaLagna(i.tithi, i.ascendantSign); }},
      {27, "Utpaat Yoga", [](I i) { return IsUtpaat(i.weekday, i.nakshatra); }},
      {28, "Mrityu Yoga", [](I i) { return IsMrityuNak(i.weekday, i.nakshatra); }},
      {29, "Kaan Yoga", [](I i) { return IsKaan(i.weekday, i.nakshatra); }},
      {30, "Siddhi Yoga", [](I i) { return IsSiddhi(i.weekday, i.nakshatra); }},
  };
  return yogas;
}

std::vector<QString> HeadsThatHold(const Inputs &inputs) {
  std::vector<QString> heads;
  for (const Yoga &yoga : All())
    if (yoga.holds(inputs)) heads.push_back(QLatin1String(yoga.head));
  return heads;
}

std::vector<QString> HeadsThatHold(const clsPlanets &chart) { return HeadsThatHold(InputsOf(chart)); }

}  // namespace DailyYogas
