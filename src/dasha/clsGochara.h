// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <memory>
#include <optional>

#include "engine/clsPlanets.h"

// Finds the moment at which a point of the chart reaches a longitude: a guided search on a copy of the chart.
// It makes 26 moves at most and ends with what it has; nothing tells the caller that the tolerance was not met.
// The copies take moment and place as CopySettingTo gives them, without hemispheres.
class clsGochara {
 public:
  // planet 0 (ascendant) to 12; target in degrees; tolerance in minutes of arc. The answer is the calculated
  // chart whose person holds the found moment. Throws ArithmeticError where a motion comes out as 0.
  std::unique_ptr<clsPlanets> Gochara(int planet, double target, double tolerance, const clsPlanets &chart);

  // The same search for the ascendant, for callers that only want the moment: the answer holds the ascendant
  // and the found moment, and no planets.
  std::unique_ptr<clsPlanets> FindAscendant(double target, double tolerance, const clsPlanets &chart);

 private:
  struct Round {
    double distance = 0;   // minutes of arc
    double longitude = 0;  // degrees; 0 means that there was no round before
    double rate = 0;       // minutes of time per degree
    QDateTime date;
  };

  void ResetSearch();
  void Search(int planet, double target, double tolerance, const clsPlanets &chart);
  void SearchStep();
  bool Reached() const;
  void CalcStep();
  void AdvanceChart();
  double EstimateRate() const;
  bool CrossedZero();
  double ZeroWindow() const;
  bool StartBeyondTarget() const;
  void CalculateChart(clsPlanets &chart) const;

  int Planet = 0;
  double Target = 0;     // degrees
  double Tolerance = 0;  // minutes of arc
  std::unique_ptr<clsPlanets> StartChart;
  std::unique_ptr<clsPlanets> WorkChart;
  double Distance = 0;     // minutes of arc
  double StepMinutes = 0;  // minutes of time
  double Rate = 0;         // minutes of time per degree
  double Longitude = 0;    // degrees, as this round reckons it
  Round previous;
  int Rounds = 0;
  bool Wrapped = false;  // measuring across the 0 degree point
};
