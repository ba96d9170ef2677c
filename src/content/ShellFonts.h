// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/SetFonts.h"

// The font roles of the screens that stand outside any language: start-up, messages, wizard, drop-downs.
inline SetFonts ShellFonts() {
  LanguageRow row;
  row.HeaderSize = 18;
  row.SubHeadSize = 13;
  row.NormalSize = 11;
  row.SmallSize = 10;
  row.KundliSize = 10;
  row.HeadBold = row.SubHeadBold = true;
  return SetFonts(row);
}
