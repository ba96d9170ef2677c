// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

// Times, or ratios of times, of one thing that was done many times.
class Samples {
 public:
  // Does the work once and keeps how many milliseconds it took.
  template <typename Work>
  double Time(Work &&work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const double took = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    Add(took);
    return took;
  }

  void Add(double value) { values.push_back(value); }

  // The middle one: a neighbour who takes the processor for a moment does not move it. 0 without samples.
  double Median() const {
    if (values.empty()) return 0;
    std::vector<double> sorted = values;
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    return *middle;
  }

 private:
  std::vector<double> values;
};
