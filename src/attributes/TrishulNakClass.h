// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// How the second nakshatra stands to the first on the Trishul Chakra, by their distance counted with both ends:
// 3 on the points of the trident, 2 and 1 away from them.
int GetTrishulNakClass(int fromNakshatra, int toNakshatra);
