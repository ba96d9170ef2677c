// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "persons/Numbered.h"
#include "persons/Place.h"

// What one of several programs that edit the same files at the same time does with its n-th person and its n-th place: each is added,
// every third is changed, every fourth is deleted.
struct EditPlan {
  static constexpr int Rounds = 200;
  // Without a pause between their edits, as no user works, they can keep each other waiting on a slow disk.
  static constexpr int LongestWaitMs = 60000;

  static bool Changes(int n) { return n % 3 == 1; }
  static bool Deletes(int n) { return n % 4 == 3; }
  static QString Name(const QString &editor, int n) { return QStringLiteral("%1 O'%2").arg(editor).arg(n, 3, 10, QLatin1Char('0')); }
  static PersonRecord Person(const QString &editor, int n, bool changed) { return Numbered(Name(editor, n), changed ? n + 700 : n); }
  static Place City(const QString &editor, int n, bool changed) {
    Place place;
    place.City = Name(editor, n);
    place.Country = QStringLiteral("India");
    place.Lat = QStringLiteral("0%1").arg(1000 + n);
    place.Longy = QStringLiteral("0%1").arg(changed ? 8000 : 7000);
    place.GMTDIFF = QStringLiteral("+05.30");
    return place;
  }
};
