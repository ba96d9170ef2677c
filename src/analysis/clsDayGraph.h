// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

class clsPlanets;

// Rates a day from 0 to 100 on seven themes of life. Each score is a sum of rules of equal weight; a rule gives its
// weight or nothing, and a few give a part of it.
class clsDayGraph {
 public:
  // What the rules ask of the two charts.
  struct Facts {
    std::array<int, 10> house{};  // of planets 1 to 9 in the day's chart, 1 to 12 counted from the birth Moon's sign
    int distance = 0;             // from the birth nakshatra to the day's, 1 to 27, both ends counted
    int tara = 0;                 // the same way, 1 to 9
    int weekday = 0;              // 1 Sunday to 7 Saturday
    int nakshatra = 0;            // the day's
  };
  static Facts FactsOf(const clsPlanets &birthChart, const clsPlanets &todayChart);

  static double FamilyScore(const Facts &facts);
  static double HappinessScore(const Facts &facts);
  static double FinancialInvestmentScore(const Facts &facts);
  static double FinancialCollaborationScore(const Facts &facts);
  static double JourneyScore(const Facts &facts);
  static double FinancialTransScore(const Facts &facts);  // a whole number
  static double EducationScore(const Facts &facts);       // a whole number

  double GetFamilyScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetHappinessScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetFinancialInvestmentScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetFinancialCollaborationScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetJourneyScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetFinancialTransScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;
  double GetEducationScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const;

  // The place where a drawing of the scores belongs; it draws nothing.
  void PlotChart(double first, double second, double third) const;
};
