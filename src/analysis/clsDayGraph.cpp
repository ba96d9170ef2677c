// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Tables: FamilyHouses, HappinessPlanets and the sets of houses, distances, taras, weekdays and nakshatras.
#include "analysis/clsDayGraph.h"

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"

namespace {

enum Planet { Sun = 1, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu };

struct FamilyRule {
  int planet;
  NumberSet goodHouses;
};
constexpr std::array<FamilyRule, 6> FamilyHouses{{
    {Moon, {1, 2, 3, 5, 7, 9, 10, 11}},
    {Sun, {1, 3, 6, 10, 11}},
    {Mars, {3, 7, 9, 10, 11}},
    {Jupiter, {2, 5, 7, 9, 10, 11}},
    {Venus, {1, 2, 3, 4, 5, 6, 9, 10, 11, 12}},
    {Saturn, {3, 6, 9, 10, 11}},
}};

// Ketu counts twice.
constexpr std::array<int, 7> HappinessPlanets{Sun, Mars, Jupiter, Saturn, Rahu, Ketu, Ketu};
constexpr NumberSet HappinessHouses{3, 6, 10, 11};

// The 28th distance and the weekday 0 never occur; they stand in the lists for completeness.
constexpr NumberSet BadMoneyDistances{9, 16, 23, 26, 28}, BadMoneyWeekdays{0, 3};
constexpr NumberSet BadMoneyTaras{1, 3, 5}, BadTaras{3, 5, 7};
constexpr NumberSet InvestmentMoons{2, 5, 9}, CollaborationMoons{10, 11}, JourneyBadMoons{6, 8, 12}, TransactionMoons{5, 9, 11};
constexpr NumberSet JourneyBestNakshatras{1, 5, 7, 8, 13, 17, 22, 23, 27}, JourneyGoodNakshatras{4, 12, 21, 26};
constexpr NumberSet JourneyBestWeekdays{5, 6}, JourneyGoodWeekdays{1, 2, 4};
constexpr NumberSet TransactionNakshatras{5, 7, 8, 14, 15, 16, 17, 22, 23, 24, 27}, TransactionWeekdays{4};
constexpr NumberSet EducationNakshatras{1, 5, 7, 8, 9, 11, 14, 15, 19, 20, 22, 23, 24, 25}, EducationWeekdays{2, 4, 5, 6};
constexpr NumberSet EducationFairMoons{3, 6, 9}, EducationBestMoons{5, 11};
constexpr double EducationFairShare = 15;

}  // namespace

clsDayGraph::Facts clsDayGraph::FactsOf(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  Facts facts;
  for (int planet = Sun; planet <= Ketu; ++planet)
    facts.house[static_cast<size_t>(planet)] =
        Functions::Whole(Functions::Norm12(todayChart.PlanetRashiNum(planet) - birthChart.PlanetRashiNum(Moon) + 1));
  const int distance = Functions::Whole(Functions::Norm27(todayChart.Nakshatra() - birthChart.Nakshatra() + 1));
  facts.distance = distance == 0 ? 27 : distance;
  facts.tara = clsPlanets::GetTaraNum(birthChart.Nakshatra(), todayChart.Nakshatra());
  facts.weekday = todayChart.clsPerson().WeekDayOfBirth();
  facts.nakshatra = todayChart.Nakshatra();
  return facts;
}

double clsDayGraph::FamilyScore(const Facts &facts) {
  double score = 0;
  for (const FamilyRule &rule : FamilyHouses)
    if (rule.goodHouses.Has(facts.house[static_cast<size_t>(rule.planet)])) score += 100.0 / 6;
  return score;
}

double clsDayGraph::HappinessScore(const Facts &facts) {
  double score = 0;
  for (const int planet : HappinessPlanets)
    if (HappinessHouses.Has(facts.house[static_cast<size_t>(planet)])) score += 100.0 / 7;
  return score;
}

double clsDayGraph::FinancialInvestmentScore(const Facts &facts) {
  constexpr double weight = 100.0 / 4;
  double score = 0;
  if (!BadMoneyDistances.Has(facts.distance)) score += weight;
  if (InvestmentMoons.Has(facts.house[Moon])) score += weight;
  if (!BadMoneyTaras.Has(facts.tara)) score += weight;
  if (!BadMoneyWeekdays.Has(facts.weekday)) score += weight;
  return score;
}

double clsDayGraph::FinancialCollaborationScore(const Facts &facts) {
  constexpr double weight = 100.0 / 4;
  double score = 0;
  if (!BadMoneyDistances.Has(facts.distance)) score += weight;
  if (CollaborationMoons.Has(facts.house[Moon])) score += weight;
  if (!BadMoneyTaras.Has(facts.tara)) score += weight;
  if (!BadMoneyWeekdays.Has(facts.weekday)) score += weight;
  return score;
}

double clsDayGraph::JourneyScore(const Facts &facts) {
  constexpr double weight = 100.0 / 5;
  double score = weight;  // one share is given every day
  if (JourneyBestNakshatras.Has(facts.nakshatra)) score += weight;
  if (JourneyGoodNakshatras.Has(facts.nakshatra)) score += weight / 2;
  if (JourneyBestWeekdays.Has(facts.weekday)) score += weight;
  if (JourneyGoodWeekdays.Has(facts.weekday)) score += weight / 2;
  if (!JourneyBadMoons.Has(facts.house[Moon])) score += weight;
  if (!BadTaras.Has(facts.tara)) score += weight;
  return score;
}

// This score and the next are kept in whole numbers, so that every step is rounded.
double clsDayGraph::FinancialTransScore(const Facts &facts) {
  constexpr double weight = 100.0 / 4;
  int score = 0;
  const auto give = [&score](bool holds, double points) {
    if (holds) score = Functions::Whole(score + points);
  };
  give(!BadTaras.Has(facts.tara), weight);
  give(TransactionMoons.Has(facts.house[Moon]), weight);
  give(TransactionNakshatras.Has(facts.nakshatra), weight);
  give(TransactionWeekdays.Has(facts.weekday), weight);
  return score;
}

double clsDayGraph::EducationScore(const Facts &facts) {
  constexpr double weight = 100.0 / 4;
  int score = 0;
  const auto give = [&score](bool holds, double points) {
    if (holds) score = Functions::Whole(score + points);
  };
  give(EducationNakshatras.Has(facts.nakshatra), weight);
  give(EducationFairMoons.Has(facts.house[Moon]), EducationFairShare);
  give(EducationBestMoons.Has(facts.house[Moon]), weight);
  give(!BadTaras.Has(facts.tara), weight);
  give(EducationWeekdays.Has(facts.weekday), weight);
  return score;
}

double clsDayGraph::GetFamilyScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return FamilyScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetHappinessScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return HappinessScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetFinancialInvestmentScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return FinancialInvestmentScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetFinancialCollaborationScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return FinancialCollaborationScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetJourneyScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return JourneyScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetFinancialTransScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return FinancialTransScore(FactsOf(birthChart, todayChart));
}
double clsDayGraph::GetEducationScore(const clsPlanets &birthChart, const clsPlanets &todayChart) const {
  return EducationScore(FactsOf(birthChart, todayChart));
}

void clsDayGraph::PlotChart(double, double, double) const {}
