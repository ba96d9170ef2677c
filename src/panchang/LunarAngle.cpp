// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Table: Motions, of which the mean ones are those of Meeus, Astronomical Algorithms, chapters 25 and 47.
#include "panchang/LunarAngle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace {

using Ephemeris::Body;
using Ephemeris::Zodiac;

constexpr double Epoch = 2451545;  // 2000 January 1, noon
// Near enough to any ayanamsha but a chosen one to begin a search: degrees at the epoch, and a day.
constexpr double UsualAyanamsha = 24, Precession = 3.825e-5;
constexpr double ToleranceDays = 1e-7;  // 0.009 seconds
constexpr int MostRounds = 60;

// The mean angle at the epoch in the tropical zodiac, and how many ayanamshas less it is in a sidereal one; its mean motion, and motions
// a little beyond the extremes, of which the Moon has 11.76 to 15.39 and the Sun 0.953 to 1.020. Degrees and degrees a day.
struct Motion {
  double atEpoch;
  int ayanamshas;
  double mean, slowest, fastest;
};
constexpr std::array<Motion, 4> Motions{{
    {297.8502, 0, 12.19074912, 10.6, 14.6},  // Elongation
    {218.3165, 1, 13.17639648, 11.6, 15.6},  // Moon
    {138.7830, 2, 14.16204384, 12.5, 16.6},  // Sum
    {280.4665, 1, 0.98564736, 0.94, 1.03},   // Sun
}};

double Wrap360(double degrees) {
  const double rest = std::fmod(degrees, 360);
  return rest < 0 ? rest + 360 : rest;
}

double Wrap180(double degrees) {
  const double rest = Wrap360(degrees);
  return rest >= 180 ? rest - 360 : rest;
}

// Secant steps, each kept within the angle's motions: the curve is so nearly straight that four or five positions do.
double Search(LunarAngle angle, double target, double start, const Zodiac &zodiac) {
  const Motion &motion = Motions[static_cast<size_t>(angle)];
  const auto pastAt = [&](double day) { return Wrap180(AngleAt(angle, day, zodiac) - target); };
  double day = start, past = pastAt(day), pace = motion.mean;
  for (int round = 0; round < MostRounds; ++round) {
    const double next = day - past / pace;
    if (std::abs(next - day) < ToleranceDays) return next;
    const double pastNext = pastAt(next);
    pace = std::clamp((pastNext - past) / (next - day), motion.slowest, motion.fastest);
    day = next;
    past = pastNext;
  }
  return day;
}

// The moments found last, all of one zodiac: two days share the ends of what runs at the sunrise between them, and all days of a lunar
// month its new Moons.
class KeptMoments {
 public:
  using Key = std::tuple<LunarAngle, double, long>;  // angle, target, and the number of its round

  template <typename Find>
  double Get(const Key &key, const Zodiac &wanted, Find find) {
    if (!(zodiac == wanted) || moments.size() >= Most) moments.clear();
    zodiac = wanted;
    const auto found = moments.find(key);
    return found != moments.end() ? found->second : moments.emplace(key, find()).first->second;
  }

 private:
  static constexpr size_t Most = 2000;  // some four months

  Zodiac zodiac;
  std::map<Key, double> moments;
};

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

// Always from the mean moment of the same round, so that a moment is the same to the last digit whichever day asked for it first.
double MomentNear(LunarAngle angle, double target, double estimate, const Zodiac &zodiac) {
  static KeptMoments kept;
  const Motion &motion = Motions[static_cast<size_t>(angle)];
  double atEpoch = motion.atEpoch, mean = motion.mean;
  if (zodiac.kind == Zodiac::Kind::Fixed) {
    atEpoch -= motion.ayanamshas * zodiac.fixedDegrees;
  } else if (zodiac.kind != Zodiac::Kind::Tropical) {
    atEpoch -= motion.ayanamshas * UsualAyanamsha;
    mean -= motion.ayanamshas * Precession;
  }
  const long round = std::lround((atEpoch + mean * (estimate - Epoch) - target) / 360);
  return kept.Get({angle, target, round}, zodiac,
                  [&] { return Search(angle, target, Epoch + (target + 360.0 * static_cast<double>(round) - atEpoch) / mean, zodiac); });
}

double NextMoment(LunarAngle angle, double target, double universalDay, const Zodiac &zodiac) {
  const double rest = Wrap360(target - AngleAt(angle, universalDay, zodiac));
  return MomentNear(angle, target, universalDay + rest / Motions[static_cast<size_t>(angle)].mean, zodiac);
}

double LastMoment(LunarAngle angle, double target, double universalDay, const Zodiac &zodiac) {
  const double gone = Wrap360(AngleAt(angle, universalDay, zodiac) - target);
  return MomentNear(angle, target, universalDay - gone / Motions[static_cast<size_t>(angle)].mean, zodiac);
}
