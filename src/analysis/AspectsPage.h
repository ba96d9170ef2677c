// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <vector>

class clsPlanets;

// Which points look at each other or stand together, by sign and by degrees, with dignity and combustion beside them.
struct AspectsPage {
  static constexpr int Points = 13;  // the ascendant and the twelve planets
  static constexpr int Kinds = 3;    // of the grid
  enum Kind { BySign, ByDegrees, Western };

  struct Pair {
    bool looks = false;     // the row's planet looks at the column's sign
    bool together = false;  // both in one sign
    int byDegrees = 0;      // 1 conjunction, 2 square, 3 opposition, 4 trine, 5 sextile; 0 for none
    QString western;        // code; empty for none
    double orb = 0;         // degrees from the exact Western angle
    // For the grid.
    std::array<QString, Kinds> text;  // short; empty for none
    std::array<QString, Kinds> told;  // a sentence; empty for none
  };
  struct Row {
    QString name, narrowName;
    QString dignity, dignityMark;  // the language's word; the English mark, empty for none
    QString standing;              // in a friend's, a neutral or an enemy's sign
    QString combustion;
    bool combust = false;
    QString sees, seenBy, with, byDegrees, western;
  };
  struct Code {
    QString code, name;
  };

  std::array<std::array<Pair, Points>, Points> grid;  // row: the one that looks
  std::array<Row, Points> rows;
  std::array<QString, Kinds> kindNames, kindHelp;
  std::vector<Code> codes;  // the Western ones
  QString lblPlanetHead, lblDignityHead, lblStandingHead, lblCombustHead, lblSeesHead, lblSeenByHead, lblWithHead, lblByDegreesHead,
      lblWesternHead;

  // What a grid's figures mean, with the Western codes at theirs.
  QString HelpOf(size_t kind) const;
};

AspectsPage FillAspects(const clsPlanets &chart);

// Degrees between the angle of two longitudes and the exact angle of its Western code; 0 for no code.
double WesternOrb(double angle);
