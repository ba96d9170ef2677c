// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <array>

class clsPlanets;

// The seven scores of the day, 0 to 100, and their course over the days that follow, each at the same time of day.
struct ScoresPage {
  static constexpr int Themes = 7, DaysAhead = 30;
  using Scores = std::array<double, Themes>;

  enum class Level { Adverse, Mixed, Favourable };

  struct Theme {
    QString name, help, levelWord;
    double today = 0;
    Level level = Level::Mixed;
    std::array<double, DaysAhead + 1> course{};  // entry 0 is the day itself
  };

  std::array<Theme, Themes> themes;  // family, happiness, investment, collaboration, journey, transactions, education
  QDate firstDay;
};

ScoresPage FillScores(const clsPlanets &birthChart, const clsPlanets &todayChart);

ScoresPage::Scores ScoresOf(const clsPlanets &birthChart, const clsPlanets &todayChart);

// By day, entry 0 the day of todayChart; one chart a day at its place and time of day.
std::array<ScoresPage::Scores, ScoresPage::DaysAhead + 1> ScoresAhead(const clsPlanets &birthChart, const clsPlanets &todayChart);

// Thirds of the scale.
ScoresPage::Level LevelOfScore(double score);
