// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/Limbs.h"

#include <algorithm>
#include <cmath>

#include "panchang/LunarAngle.h"

namespace {

using Ephemeris::Zodiac;

// The steps of an angle that run during the day, counted from 1.
std::vector<LimbSpan> FindSteps(LunarAngle angle, int count, double begins, double ends, const Zodiac &zodiac) {
  const double step = 360.0 / count;
  std::vector<LimbSpan> spans;
  int number = std::min(static_cast<int>(std::floor(AngleAt(angle, begins, zodiac) / step)), count - 1);
  double from = MomentNear(angle, number * step, begins, zodiac);
  constexpr size_t most = 4;  // a day holds three; where the ephemeris ends there is nothing to count by
  while (spans.empty() || (from < ends && spans.size() < most)) {
    const double to = MomentNear(angle, (number + 1) % count * step, std::max(from, begins), zodiac);
    spans.push_back({number + 1, from, to});
    number = (number + 1) % count;
    from = to;
  }
  return spans;
}

void TellCourse(std::vector<LimbSpan> &spans, double begins, double ends, double dayBefore) {
  for (LimbSpan &span : spans) {
    if (span.begins > begins && span.ends < ends) span.course = LimbSpan::Course::Skipped;
    if (span.begins <= begins && span.ends > ends) span.course = LimbSpan::Course::Repeated;
    if (span.begins <= dayBefore) span.course = LimbSpan::Course::Again;
  }
}

// A karana is half a tithi, so that every second border is the tithi's own.
std::vector<LimbSpan> HalvesOf(const std::vector<LimbSpan> &tithis, double begins, double ends, const Zodiac &zodiac) {
  std::vector<LimbSpan> halves;
  for (const LimbSpan &tithi : tithis) {
    const double middle = MomentNear(LunarAngle::Elongation, tithi.number * 12 - 6, tithi.begins, zodiac);
    const int half = 2 * (tithi.number - 1);
    if (middle > begins) halves.push_back({KaranaOfHalf(half), tithi.begins, middle});
    if (middle < ends) halves.push_back({KaranaOfHalf(half + 1), middle, tithi.ends});
  }
  return halves;
}

}  // namespace

int KaranaOfHalf(int half) {
  if (half == 0) return 11;
  return half >= 57 ? half - 49 : (half - 1) % 7 + 1;
}

Limbs FindLimbs(double begins, double ends, double dayBefore, const Zodiac &zodiac) {
  Limbs limbs;
  limbs.tithis = FindSteps(LunarAngle::Elongation, 30, begins, ends, zodiac);
  limbs.nakshatras = FindSteps(LunarAngle::Moon, 27, begins, ends, zodiac);
  limbs.yogas = FindSteps(LunarAngle::Sum, 27, begins, ends, zodiac);
  limbs.karanas = HalvesOf(limbs.tithis, begins, ends, zodiac);
  TellCourse(limbs.tithis, begins, ends, dayBefore);
  TellCourse(limbs.nakshatras, begins, ends, dayBefore);
  return limbs;
}

std::vector<SignChange> FindSignChanges(double begins, double ends, const Zodiac &zodiac) {
  using Ephemeris::Body;
  std::vector<SignChange> changes;
  for (const auto &[body, angle] : {std::pair{Body::Moon, LunarAngle::Moon}, std::pair{Body::Sun, LunarAngle::Sun}}) {
    double from = begins;
    int sign = static_cast<int>(AngleAt(angle, begins, zodiac) / 30) % 12;
    const int last = static_cast<int>(AngleAt(angle, ends, zodiac) / 30) % 12;
    while (sign != last) {
      sign = (sign + 1) % 12;
      from = MomentNear(angle, sign * 30.0, from, zodiac);
      changes.push_back({body, sign + 1, from});
    }
  }
  std::sort(changes.begin(), changes.end(), [](const SignChange &a, const SignChange &b) { return a.at < b.at; });
  return changes;
}
