// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <vector>

#include "engine/Ephemeris.h"

// The limbs of the panchang that run during a day, each with its own true beginning and end. Moments are Julian days in
// universal time.
struct LimbSpan {
  enum class Course {
    Usual,
    Skipped,   // begins and ends within the day, so that no sunrise finds it (kshaya)
    Repeated,  // runs at this sunrise and at the next one (vriddhi)
    Again,     // ran at the sunrise before and runs at this one
  };

  int number = 0;
  double begins = 0, ends = 0;
  Course course = Course::Usual;  // of tithis and nakshatras; Usual for the others
};

struct Limbs {
  std::vector<LimbSpan> tithis;      // 1 to 30, 15 full Moon, 30 new Moon
  std::vector<LimbSpan> nakshatras;  // 1 Ashwini to 27 Revati, of the Moon
  std::vector<LimbSpan> yogas;       // 1 Vishkumbha to 27 Vaidhriti
  std::vector<LimbSpan> karanas;     // 1 Bava to 7 Vishti, 8 Shakuni, 9 Chatushpada, 10 Naga, 11 Kimstughna
};

// Those that run from `begins` up to `ends`; the first of each kind runs at `begins`. A tithi is told as run again where it
// ran at `dayBefore` too.
Limbs FindLimbs(double begins, double ends, double dayBefore, const Ephemeris::Zodiac &zodiac);

// The karana of the n-th half tithi of the lunar month, 0 to 59.
int KaranaOfHalf(int half);

// The Moon or the Sun enters a sign.
struct SignChange {
  Ephemeris::Body body = Ephemeris::Body::Moon;
  int sign = 0;  // 1 Aries to 12 Pisces
  double at = 0;
};

// In the order of time.
std::vector<SignChange> FindSignChanges(double begins, double ends, const Ephemeris::Zodiac &zodiac);
