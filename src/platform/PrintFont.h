// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// A font as printing code names it.
struct PrintFont {
  QString name = QStringLiteral("Arial");
  double size = 10;  // points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeout = false;

  bool operator==(const PrintFont &) const = default;
};
