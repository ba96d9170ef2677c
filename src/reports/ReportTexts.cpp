// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The predictions of the daily report: each topic with its heading, in running text.
#include "analysis/PredictionPages.h"
#include "analysis/SelvaniDailyMod.h"
#include "panchang/DailyYogas.h"
#include "reports/clsDailyPrinter.h"

void clsDailyPrinter::PrintPredictions(const ReportTopics &topics) {
  PageHeader();
  PageFooter();
  printer.SetCurrent(LeftMargin + Inches(0.375), TopMargin + Inches(1.75));
  const clsPlanets &birth = session.BirthChart(), &today = session.TodayChart();
  const int weekday = today.clsPerson().WeekDayOfBirth();
  const auto head = [this](const char *key) {
    PrintMyText(PageTitle(key), QLatin1String(NormFont), setup.language.NormalSize, setup.language.HeadBold, true);
  };
  const ::PrintMyText onPaper = [this](const QString &text, bool bold) {
    PrintMyText(text, QLatin1String(NormFont), setup.language.SmallSize, bold, false);
  };
  // The paper's finance and journey go by the Moon's signs, where the screen's go by the ascendants.
  if (topics.Has("FinancialAnalysis")) PrintTopic(PageTitle("FinancialAnalysis"), FinanceText(today, weekday, birth.RashiNum()));
  if (topics.Has("TithiResult")) PrintTopic(PageTitle("TithiResult"), TithiText(today, DailyYogas::RunningTithi(today.Tithi())));
  if (topics.Has("Nakshatra")) PrintTopic(PageTitle("NakshatraResult"), NakshatraText(today, today.Nakshatra()));
  if (topics.Has("Journey")) PrintTopic(PageTitle("Journey"), JourneyText(today, weekday, clsPlanets::GetRashiElement(today.RashiNum())));
  if (topics.Has("Yogas")) PrintYogas();
  if (topics.Has("Rashifala")) PrintTopic(PageTitle("Rashifala"), RashifalaText(today, birth.RashiNum(), today.RashiNum()));
  if (topics.Has("Yogas")) {
    head("SuryaYogaResults");
    SuryaYogaText(today, today.YogaNumber(), &onPaper);
  }
  if (topics.Has("WeekdayRes")) {
    head("WeekdayResult");
    WeekdayText(today, weekday, &onPaper);
  }
}

void clsDailyPrinter::PrintTopic(const QString &title, const QString &body) {
  PrintMyText(title, QLatin1String(NormFont), setup.language.NormalSize, setup.language.HeadBold, true);
  PrintMyText(body, QLatin1String(NormFont), setup.language.SmallSize, false, false);
}

void clsDailyPrinter::PrintYogas() {
  PrintMyText(PageTitle("YogaResults"), QLatin1String(NormFont), setup.language.NormalSize, setup.language.HeadBold, true);
  const ::PrintMyText onPaper = [this](const QString &text, bool bold) {
    PrintMyText(text, QLatin1String(NormFont), NormSize, bold, bold);
  };
  ShowYogas(session.TodayChart(), &onPaper);
}
