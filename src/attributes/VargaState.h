// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

// The divisional signs of a chart. Both arrays outlive a calculation: where a rule assigns nothing,
// a varga keeps the value of the point before.
struct VargaState {
  static constexpr int Rows = 18;     // varga 1 to 17; row 0 is not used
  static constexpr int Columns = 14;  // ascendant, planets 1 to 12; column 13 is not filled

  std::array<std::array<std::optional<int>, Columns>, Rows> table{};
  std::array<int, 19> work{};           // the signs of the point in hand
  std::array<double, 27> krishAmsha{};  // degrees inside the sign by planet; 0 means not yet
};
