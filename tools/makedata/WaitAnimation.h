// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>

// The animation of the progress screen.
class WaitAnimation {
 public:
  // A complete AVI file with one plain frame: a player opens it and shows nothing that moves.
  static QByteArray Avi();
};
