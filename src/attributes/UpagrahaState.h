// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

// The upagrahas of a chart by their number, 1 to 17, kept from the first reading on. 0 means not yet, so a point that
// really is 0 is worked out again at each reading. Only a new UpagrahaMode clears them.
struct UpagrahaState {
  std::array<double, 18> longitude{};
};
