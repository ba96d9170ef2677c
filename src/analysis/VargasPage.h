// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "analysis/KundaliPage.h"

class clsPlanets;

// The divisional charts of one moment: seventeen vargas of the ascendant and the twelve planets.
struct VargasPage {
  static constexpr int Points = 13, Vargas = 17;

  struct Point {
    QString name, narrowName, degrees;
    bool vargottama = false;  // the same sign in rashi and navamsha
    int sameSign = 0;         // vargas of the first sixteen that keep the rashi's sign; more than thirteen count as 0
  };
  struct Varga {
    QString name;                    // "D9 Navamsha"
    std::array<int, Points> sign{};  // 1 to 12; 0 for none
    KundaliPage chart;
  };

  std::array<Point, Points> points;
  std::array<Varga, Vargas> vargas;              // varga number less 1
  std::array<QString, 13> signName, narrowSign;  // by sign; entry 0 is empty
  QString lblPointHead, lblRashiHead, lblDegreesHead, lblVargaHead, lblVargottamaHead, lblSameSign;
  QString vargottamaWord;
  QString lblVargottama;  // the line that names the vargottama points
};

VargasPage FillVargas(const clsPlanets &chart);
