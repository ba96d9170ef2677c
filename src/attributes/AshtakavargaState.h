// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

// The points of the ashtakavarga; signs are 1 to 12. Totals are only ever added to.
struct AshtakavargaState {
  std::array<int, 13> work{};                  // of the reference body in hand
  std::array<std::array<int, 14>, 11> body{};  // by reference body 0 to 10; 9 and 10 are never filled
  std::array<int, 14> total{};
};
