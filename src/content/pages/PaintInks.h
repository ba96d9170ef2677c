// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>

// The colours of a drawing that is shown on the screen and on paper alike.
struct PaintInks {
  QColor card, line, ink, muted, maroon, saffron, gold;
  QColor accent;  // saffron where it writes: darker on a light ground
  QColor good, goodBack, bad, badBack;
  QColor day, night;  // grounds of daylight and of the night

  static PaintInks Screen();  // of the theme in force
  static PaintInks Paper();   // light whatever the desktop is
};
