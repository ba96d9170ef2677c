// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QVariant>

class QPalette;

// What the desktop asks programs to look like.
struct DesktopScheme {
  bool dark = false;
  bool highContrast = false;

  // Asks the desktop's settings service, and waits for it no longer than a fifth of a second; where there is none, or it has
  // no preference, a palette with dark windows is dark.
  static DesktopScheme Ask(const QPalette &palette);

  // colourScheme: 1 dark, 2 light, anything else for no preference. contrast: 1 high. As the service of the freedesktop
  // portals answers them, each wrapped in any number of variants.
  static DesktopScheme From(const QVariant &colourScheme, const QVariant &contrast, const QPalette &palette);
};
