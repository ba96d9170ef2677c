// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>

#include "engine/Ephemeris.h"

// The month of the Moon that a moment lies in, in both reckonings, and its years.
struct LunarMonth {
  int amanta = 0;       // 1 Chaitra to 12 Phalguna, from new Moon to new Moon
  bool adhika = false;  // the Sun enters no sign in it: the added month, named as the one after it
  int kshaya = 0;       // the Sun enters two signs in it: the number of the month left out, else 0
  int purnimanta = 0;   // from full Moon to full Moon, in whose reckoning the dark half comes first
  bool purnimantaAdhika = false;
  bool bright = false;          // the waxing half
  double begins = 0, ends = 0;  // the new Moons around it, Julian days in universal time
  int vikrama = 0;              // years that begin with Chaitra, as in northern India
  int shaka = 0;
};

// date: the civil date of the moment.
LunarMonth FindLunarMonth(double universalDay, const QDate &date, const Ephemeris::Zodiac &zodiac);
