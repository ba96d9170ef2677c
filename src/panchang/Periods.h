// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "panchang/Limbs.h"

// A named good or bad period of the exact day. Moments are Julian days in universal time.
struct Period {
  enum class Kind { RahuKaal, Yamaghanta, Gulika, DurMuhurta, Varjyam, Abhijit, BrahmaMuhurta, Amrita };
  static constexpr int Kinds = 8;

  Kind kind = Kind::RahuKaal;
  double begins = 0, ends = 0;
  bool setAside = false;  // Abhijit of a Wednesday, which is not used

  bool IsGood() const { return kind >= Kind::Abhijit; }
};

// One of the equal parts of day and night that follow each other.
struct DayPart {
  int type = 0;  // of the chogadiya 1 Udveg to 7 Rog; of the hora 1 Sun, 2 Venus, 3 Mercury, 4 Moon, 5 Saturn, 6 Jupiter, 7 Mars
  double begins = 0, ends = 0;
  bool ofNight = false;
};

// Daylight or night as a stretch of true length.
struct Stretch {
  double begins = 0, ends = 0;

  double Length() const { return ends - begins; }
  // The start of the n-th of `count` equal parts, counted from 0.
  double Part(int n, int count) const { return begins + Length() * n / count; }
};

namespace Periods {

// day and night are missing where the Sun does not rise or set: what is a part of them is then left out. weekday: of the sunrise,
// 1 Sunday to 7 Saturday. nightBefore ends with this day's sunrise. The bad ones come
// first, each half by its time.
std::vector<Period> Find(int weekday, const std::optional<Stretch> &nightBefore, const std::optional<Stretch> &day,
                         const std::optional<Stretch> &night, const std::vector<LimbSpan> &nakshatras, double begins, double ends);

// kind: 1 Kulik, 2 Kalbela, 3 Yamghant, 4 Kantak, an eighth of the daylight each. Throws SubscriptError.
Stretch EvilMuhurtha(int kind, int weekday, const Stretch &day);

// Eight chogadiyas each of day and night.
std::vector<DayPart> Chogadiyas(int weekday, const std::optional<Stretch> &day, const std::optional<Stretch> &night);
// Twelve horas each of day and night: they are as long as the season makes them.
std::vector<DayPart> Horas(int weekday, const std::optional<Stretch> &day, const std::optional<Stretch> &night);

enum class Judgement { Bad, Fair, Good };
// Amrit, Shubh and Laabh are good; Chara, which moves, is fair. type: 1 Udveg to 7 Rog. Throws SubscriptError.
Judgement ChogadiyaJudgement(int type);

}  // namespace Periods
