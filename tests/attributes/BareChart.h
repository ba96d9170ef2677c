// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <utility>

#include "engine/clsPlanets.h"
#include "figures/Case.h"

// A chart that is not calculated but given: longitudes by planet index, the rest 0. Its words are their keys.
struct BareChart {
  BareChart(std::initializer_list<std::pair<int, double>> longitudes = {}) {
    for (const auto &[index, degrees] : longitudes) chart.SetPlanetLongi(index, degrees);
    chart.setTextDB(std::make_shared<EchoTextDb>(), nullptr);
  }

  clsPlanets *operator->() { return &chart; }

  MemoryUserSettings settings;
  clsPlanets chart{settings};
};
