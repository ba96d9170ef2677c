// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <memory>

#include "analysis/KundaliPage.h"

class clsPlanets;

// The benefic points by sign: nine bodies as reference and their total, which leaves out the ascendant's row.
struct AshtakavargaPage {
  static constexpr int Bodies = 9, Rows = Bodies + 1, Total = Bodies;  // the row of the total is the last

  struct Row {
    QString name;
    std::array<int, 13> points{};  // by sign; entry 0 is not used
    int sum = 0;
    int least = 0, most = 8;  // of the colouring

    // How warm a sign's number is coloured, 0 to 1.
    double Share(int sign) const;
  };

  std::array<Row, Rows> rows;  // Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, ascendant, total
  int ascendantSign = 1;
  QString ascendantName;                         // as it stands in charts
  std::array<QString, 13> signName, narrowSign;  // by sign; entry 0 is empty
  QString lblSumHead;
  QString lblMost, lblFewest;  // signs with the most and the fewest points of the total

  // A row's points in their signs, and the ascendant.
  KundaliPage ChartOf(size_t row) const;
};

AshtakavargaPage FillAshtakavarga(const clsPlanets &chart);

// A chart with the longitudes of this one and its ashtakavarga worked out. The points of a chart grow with each
// working out, so that those of the charts on show are left alone.
std::unique_ptr<clsPlanets> WithAshtakavarga(const clsPlanets &chart);
