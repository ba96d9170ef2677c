// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <array>

#include "analysis/ScoresPage.h"
#include "content/pages/PageView.h"

class QLabel;
class ScoreBar;
class ScoreLine;

// The seven scores of the day as bars, and the course of each over the next thirty days.
class ScoresView : public PageView {
  Q_OBJECT

 public:
  explicit ScoresView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 signals:
  void GoToDay(const QDate &day);

 private:
  struct Theme {
    QLabel *name, *score, *level, *help, *lineName;
    ScoreBar *bar;
    ScoreLine *line;
  };

  QLabel *dayHead, *courseHead;
  std::array<Theme, ScoresPage::Themes> themes{};
};
