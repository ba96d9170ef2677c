// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

// A cell of a table that lists signs, houses, planets or tithis: whole numbers from 0 to 63.
class NumberSet {
 public:
  constexpr NumberSet() = default;
  constexpr NumberSet(std::initializer_list<int> numbers) {
    for (const int number : numbers) bits |= std::uint64_t{1} << number;
  }

  // A number outside 0 to 63, or between two whole ones, is in no set.
  constexpr bool Has(double number) const {
    return number >= 0 && number <= 63 && number == static_cast<int>(number) && (bits >> static_cast<int>(number) & 1) != 0;
  }

 private:
  std::uint64_t bits = 0;
};

// The row of a table that runs from number 0 on; an empty row for a number beyond it.
template <typename Row, std::size_t N>
constexpr Row RowOf(const std::array<Row, N> &table, int number) {
  return number >= 0 && number < static_cast<int>(N) ? table[static_cast<std::size_t>(number)] : Row{};
}
