// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ScoresPage.h"

#include "analysis/StudyWords.h"
#include "analysis/clsDayGraph.h"

namespace {

constexpr std::array<const char *, ScoresPage::Themes> Heads{"Family",  "Happiness",    "Investment", "Collaboration",
                                                             "Journey", "Transactions", "Education"};

const char *LevelHead(ScoresPage::Level level) {
  switch (level) {
    case ScoresPage::Level::Favourable: return "LevelFavourable";
    case ScoresPage::Level::Adverse: return "LevelAdverse";
    default: return "LevelMixed";
  }
}

}  // namespace

ScoresPage::Level LevelOfScore(double score) {
  constexpr double third = 100.0 / 3;
  return score < third ? ScoresPage::Level::Adverse : score <= 2 * third ? ScoresPage::Level::Mixed : ScoresPage::Level::Favourable;
}

ScoresPage::Scores ScoresOf(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  const clsDayGraph::Facts facts = clsDayGraph::FactsOf(birthChart, todayChart);
  return {clsDayGraph::FamilyScore(facts),
          clsDayGraph::HappinessScore(facts),
          clsDayGraph::FinancialInvestmentScore(facts),
          clsDayGraph::FinancialCollaborationScore(facts),
          clsDayGraph::JourneyScore(facts),
          clsDayGraph::FinancialTransScore(facts),
          clsDayGraph::EducationScore(facts)};
}

std::array<ScoresPage::Scores, ScoresPage::DaysAhead + 1> ScoresAhead(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  std::array<ScoresPage::Scores, ScoresPage::DaysAhead + 1> days{};
  days[0] = ScoresOf(birthChart, todayChart);
  const QDateTime moment = todayChart.clsPerson().GetBirthDate();
  for (int day = 1; day <= ScoresPage::DaysAhead; ++day) {
    // The person is copied whole, hemispheres too; its time has the correction in it already.
    const auto person = std::make_shared<clsPerson>(todayChart.clsPerson());
    person->SetTimeCorr({});
    person->SetBirthDate(moment.addDays(day));
    clsPlanets chart(todayChart.Settings());
    chart.SetclsPerson(person);
    chart.Calculate();
    days[static_cast<size_t>(day)] = ScoresOf(birthChart, chart);
  }
  return days;
}

ScoresPage FillScores(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  ScoresPage page;
  page.firstDay = todayChart.clsPerson().GetBirthDate().date();
  const auto days = ScoresAhead(birthChart, todayChart);
  for (size_t i = 0; i < page.themes.size(); ++i) {
    ScoresPage::Theme &theme = page.themes[i];
    const QString head = QStringLiteral("Score") + QLatin1String(Heads[i]);
    theme.name = StudyWord(todayChart, head);
    theme.help = StudyWord(todayChart, head + QStringLiteral("Help"));
    for (size_t day = 0; day < days.size(); ++day) theme.course[day] = days[day][i];
    theme.today = theme.course[0];
    theme.level = LevelOfScore(theme.today);
    theme.levelWord = StudyWord(todayChart, LevelHead(theme.level));
  }
  return page;
}
