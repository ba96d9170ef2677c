// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

// Sign numbers worked out once per chart by Sign and PlanetSign, for planets 0 to 13; 0 means not yet.
// Nothing clears them: a chart that is calculated anew goes on giving its first signs.
struct SignState {
  std::array<double, 14> sign{};
};
