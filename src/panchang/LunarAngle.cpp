// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Table: Speeds.
#include "panchang/LunarAngle.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Ephemeris::Body;
using Ephemeris::Zodiac;

struct Range {
  double slowest, fastest;
};

// Degrees a day, a little beyond the extremes: the Moon 11.76 to 15.39, the Sun 0.953 to 1.020.
constexpr std::array<Range, 4> Speeds{{
    {10.6, 14.6},  // Elongation
    {11.6, 15.6},  // Moon
    {12.5, 16.6},  // Sum
    {0.94, 1.03},  // Sun
}};

constexpr double ToleranceDays = 1e-7;  // 0.009 seconds

double Wrap360(double degrees) {
  const double rest = std::fmod(degrees, 360);
  return rest < 0 ? rest + 360 : rest;
}

double Wrap180(double degrees) {
  const double rest = Wrap360(degrees);
  return rest >= 180 ? rest - 360 : rest;
}

// The moment at which an angle reaches its target, which it is `rest` degrees short of at the first moment, or past of where negative.
// Secant steps, each kept within the angle's speeds: the curve is so nearly straight that four or five positions do.
double MomentOf(LunarAngle angle, double target, double from, double rest, const Zodiac &zodiac) {
  const Range &speed = Speeds[static_cast<size_t>(angle)];
  double day = from, past = -rest, pace = (speed.slowest + speed.fastest) / 2;
  for (int round = 0; round < 60; ++round) {
    const double next = day - past / pace;
    if (std::abs(next - day) < ToleranceDays) return next;
    const double pastNext = Wrap180(AngleAt(angle, next, zodiac) - target);
    pace = std::clamp((pastNext - past) / (next - day), speed.slowest, speed.fastest);
    day = next;
    past = pastNext;
  }
  return day;
}

}  // namespace

double AngleAt(LunarAngle angle, double universalDay, const Zodiac &zodiac) {
  constexpr Zodiac tropical{Zodiac::Kind::Tropical, 0};
  const auto at = [&](Body body, const Zodiac &from) { return Ephemeris::ApparentLongitude(universalDay, body, from); };
  switch (angle) {
    case LunarAngle::Elongation: return Wrap360(at(Body::Moon, tropical) - at(Body::Sun, tropical));
    case LunarAngle::Moon: return at(Body::Moon, zodiac);
    case LunarAngle::Sum: return Wrap360(at(Body::Moon, zodiac) + at(Body::Sun, zodiac));
    case LunarAngle::Sun: return at(Body::Sun, zodiac);
  }
  return 0;
}

double NextMoment(LunarAngle angle, double target, double universalDay, const Zodiac &zodiac) {
  return MomentOf(angle, target, universalDay, Wrap360(target - AngleAt(angle, universalDay, zodiac)), zodiac);
}

double LastMoment(LunarAngle angle, double target, double universalDay, const Zodiac &zodiac) {
  return MomentOf(angle, target, universalDay, -Wrap360(AngleAt(angle, universalDay, zodiac) - target), zodiac);
}
