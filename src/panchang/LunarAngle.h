// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "engine/Ephemeris.h"

// The four angles of Sun and Moon that the limbs of the panchang are counted on, and the moments at which they reach a value.
// All of them grow all the time. Moments are Julian days in universal time.
enum class LunarAngle {
  Elongation,  // Moon less Sun: tithis and karanas, the same in every zodiac
  Moon,        // nakshatras and the Moon's signs
  Sum,         // Moon and Sun: yogas
  Sun,         // the Sun's signs
};

double AngleAt(LunarAngle angle, double universalDay, const Ephemeris::Zodiac &zodiac);  // degrees, 0 up to 360

// The moment at which the angle is `target` degrees, to a hundredth of a second, of which an estimate is known to less than a third of the
// angle's round.
double MomentNear(LunarAngle angle, double target, double estimate, const Ephemeris::Zodiac &zodiac);
// The first moment from `universalDay` on, or the last up to it, at which the angle is `target` degrees. Where the angle is `target` at the
// moment itself, that moment.
double NextMoment(LunarAngle angle, double target, double universalDay, const Ephemeris::Zodiac &zodiac);
double LastMoment(LunarAngle angle, double target, double universalDay, const Ephemeris::Zodiac &zodiac);
