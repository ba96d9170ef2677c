// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

class clsPlanets;

// The thirty muhurtha yogas of a moment. Weekdays are 1 Sunday to 7 Saturday, tithis 1 to 30, nakshatras 1 to 27,
// lunar months and signs 1 to 12; a number outside its range matches nothing. Tested is the moment alone: no yoga
// has a span, and one that ends an hour later still holds.
namespace DailyYogas {

// What the tests ask of a chart.
struct Inputs {
  int weekday = 0;
  int tithi = 0;             // the running one
  int tithiType = 0;         // 1 to 4, 0 none
  int nakshatra = 0;         // the Moon's
  int month = 0;             // 1 to 12; 0 and -1 at the edges of the intercalary month
  int sunNakshatra = 0;      // s of the distances from the Sun
  int moonNakshatra = 0;     // c
  int moonSign = 0;          // r
  int ascendantSign = 0;     // l
  double sunLongitude = 0;   // degrees
  double moonLongitude = 0;  // degrees
  bool jupiterCombust = false;
  bool venusCombust = false;
};

Inputs InputsOf(const clsPlanets &chart);

// The running tithi, 1 to 30, of the chart's tithi term with its fraction; the very start of the cycle is the end of the 30th.
int RunningTithi(double tithi);

struct Yoga {
  int number;        // 1 to 30, the order of the page
  const char *head;  // key of the title and of the paragraph; the two Mrityu yogas share theirs
  bool (*holds)(const Inputs &);
};
const std::vector<Yoga> &All();

// The heads of the yogas that hold, in order; a head can come twice.
std::vector<QString> HeadsThatHold(const Inputs &inputs);
std::vector<QString> HeadsThatHold(const clsPlanets &chart);

// Weekday and nakshatra.
bool IsAmritSiddhi(int weekday, int nakshatra);
bool IsYamghant(int weekday, int nakshatra);
bool IsDagdhaNakshatra(int weekday, int nakshatra);
bool IsUtpaat(int weekday, int nakshatra);
bool IsMrityuNak(int weekday, int nakshatra);
bool IsKaan(int weekday, int nakshatra);
bool IsSiddhi(int weekday, int nakshatra);

// Weekday and tithi.
bool IsKrakach(int weekday, int tithi);
bool IsHutashan(int weekday, int tithi);
bool IsAdham(int weekday, int tithi);
bool IsVisha(int weekday, int tithi);
bool IsSamvartak(int weekday, int tithi);
bool IsDagdha(int weekday, int tithi);

// Month with tithi, nakshatra or the Moon's sign.
bool IsShunyaTithi(int tithi, int month);
bool IsShunyaNakshatra(int nakshatra, int month);
bool IsShunyaRashi(int month, int moonSign);

// Weekday and type of tithi; the order of the arguments differs on purpose.
bool IsMrityuTithi(int weekday, int tithiType);
bool IsSiddhiTithi(int weekday, int tithiType);
bool IsAmritTithi(int tithiType, int weekday);

// Weekday, tithi and nakshatra together.
bool IsVajra(int weekday, int tithi, int nakshatra);
bool IsDwipushkar(int weekday, int tithi, int nakshatra);
bool IsTripushkar(int weekday, int tithi, int nakshatra);

bool IsTithiNakshatropann(int tithi, int nakshatra);
bool IsDagdhaLagna(int tithi, int ascendantSign);
bool IsPanchaka(int nakshatra);

// The distance from the Moon's nakshatra to the Sun's.
bool IsVidal(int sunNakshatra, int moonNakshatra);
bool IsRavi(int sunNakshatra, int moonNakshatra);

bool IsJupVenCombust(bool jupiterCombust, bool venusCombust);

// Ashlesha, Jyeshtha and Revati in full; the other stars of the group, and all others, never.
bool IsGandMool(int moonNakshatra, double moonLongitude);

// Never holds: the Sun's longitude comes in as a truth value, and neither of its two numbers is on the list.
bool IsBhumiSupt(bool sunBeyondZero);

}  // namespace DailyYogas
