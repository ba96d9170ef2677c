// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/clsDayGraph.h"
#include "attributes/TrishulNakClass.h"
#include "figures/Members.h"

// Members of two charts: the birth chart and the day's.
void RegisterScoreFigures() {
  for (const auto &[name, score] :
       {std::pair("GetFamilyScore", &clsDayGraph::GetFamilyScore), std::pair("GetHappinessScore", &clsDayGraph::GetHappinessScore),
        std::pair("GetFinancialInvestmentScore", &clsDayGraph::GetFinancialInvestmentScore),
        std::pair("GetFinancialCollaborationScore", &clsDayGraph::GetFinancialCollaborationScore),
        std::pair("GetJourneyScore", &clsDayGraph::GetJourneyScore),
        std::pair("GetFinancialTransScore", &clsDayGraph::GetFinancialTransScore),
        std::pair("GetEducationScore", &clsDayGraph::GetEducationScore)})
    Members::Register(QLatin1String(name), [s = score](Members &members, const Question &) {
      return Value((clsDayGraph().*s)(members.Birth(), members.Chart()));
    });
  Members::Register("GetTrishulNakClass", [](Members &members, const Question &) {
    return Value(GetTrishulNakClass(members.Birth().Nakshatra(), members.Chart().Nakshatra()));
  });
  Members::Register("Score", [](Members &members, const Question &question) {
    const clsDayGraph::Facts facts = clsDayGraph::FactsOf(members.Birth(), members.Chart());
    QStringList numbers;
    if (question.suffix == QLatin1String(" h"))
      for (size_t planet = 1; planet <= 9; ++planet) numbers << QString::number(facts.house[planet]);
    else
      for (const int number : {facts.distance, facts.tara, facts.weekday, facts.nakshatra}) numbers << QString::number(number);
    return Value(numbers.join(QLatin1Char(',')));
  });
}
