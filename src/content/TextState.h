// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

// Words that a chart has fetched once and keeps, even when its language is changed; empty means not yet.
struct TextState {
  std::array<QString, 14> rashi;
  std::array<QString, 29> nakshatra;
  std::array<QString, 14> planetAbbreviation;
  std::array<QString, 14> planetFull;
  std::array<QString, 14> planetSmall;
  std::array<QString, 11> vimshottariName;
  std::array<int, 11> vimshottariYears{};
  std::array<QString, 11> muddaCycle;
  QString direct;
  QString retrograde;
};
