// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Table: TrishulClasses.
#include "attributes/TrishulNakClass.h"

#include <array>

#include "engine/Functions.h"

namespace {

// Distance:                                     1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27
// A 28th distance would be of class 3; a count of 27 nakshatras never comes to it.
constexpr std::array<int, 27> TrishulClasses{3, 3, 2, 1, 1, 2, 3, 3, 3, 2, 1, 1, 2, 3, 3, 3, 2, 1, 1, 2, 3, 3, 3, 2, 1, 1, 2};

}  // namespace

int GetTrishulNakClass(int fromNakshatra, int toNakshatra) {
  const int distance = Functions::Whole(Functions::Norm27(static_cast<double>(toNakshatra) - fromNakshatra + 1));
  return TrishulClasses[static_cast<size_t>(distance == 0 ? 26 : distance - 1)];
}
