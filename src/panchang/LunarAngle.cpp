// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Table: Speeds.
#include "panchang/LunarAngle.h"

#include <array>
#include <boost/math/tools/toms748_solve.hpp>
#include <cmath>
#include <cstdint>

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

constexpr double Slack = 1e-5;          // days, so that a root at the very edge lies inside the bracket
constexpr double ToleranceDays = 1e-7;  // 0.009 seconds

double Wrap360(double degrees) {
  const double rest = std::fmod(degrees, 360);
  return rest < 0 ? rest + 360 : rest;
}

double Wrap180(double degrees) {
  const double rest = Wrap360(degrees);
  return rest >= 180 ? rest - 360 : rest;
}

// The root between two moments, of which the angle is short of the target at the first and past it at the second.
double Between(LunarAngle angle, double target, double from, double to, const Zodiac &zodiac) {
  const auto past = [&](double day) { return Wrap180(AngleAt(angle, day, zodiac) - target); };
  const double first = past(from), last = past(to);
  if (first >= 0) return from;
  if (last <= 0) return to;
  std::uintmax_t rounds = 60;
  const auto close = [](double a, double b) { return std::abs(a - b) < ToleranceDays; };
  const auto bracket = boost::math::tools::toms748_solve(past, from, to, first, last, close, rounds);
  return (bracket.first + bracket.second) / 2;
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
  const Range &speed = Speeds[static_cast<size_t>(angle)];
  const double rest = Wrap360(target - AngleAt(angle, universalDay, zodiac));
  return Between(angle, target, universalDay + rest / speed.fastest - Slack, universalDay + rest / speed.slowest + Slack, zodiac);
}

double LastMoment(LunarAngle angle, double target, double universalDay, const Zodiac &zodiac) {
  const Range &speed = Speeds[static_cast<size_t>(angle)];
  const double gone = Wrap360(AngleAt(angle, universalDay, zodiac) - target);
  return Between(angle, target, universalDay - gone / speed.slowest - Slack, universalDay - gone / speed.fastest + Slack, zodiac);
}
