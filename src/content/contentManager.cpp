// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/contentManager.h"

#include <QLabel>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "content/PageNumber.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

const std::vector<contentManager::Row> &contentManager::Table() {
  static const std::vector<Row> table{
      {PageNumber::ChartList, "ChartList", "picChartList"},
      {PageNumber::PredictionList, "PredictionList", "picPrediList"},
      {PageNumber::Credits, "Credits", "picCredits"},
      {PageNumber::BirthKundali, "BirthKundali", "Kundali"},
      {PageNumber::SunriseKundali, "SunriseKundali", "Kundali"},
      {PageNumber::TransitKundali, "TransitKundali", "Kundali"},
      {PageNumber::BirthPlanets, "BirthPlanets", "framPlPos"},
      {PageNumber::TodayPlanets, "TodayPlanets", "framPlPos"},
      {PageNumber::VimshottariDasha, "VimshottariDasha", "framVimsot"},
      {PageNumber::TrishulChakra, "TrishulChakra", "framTrishulChakra"},
      {PageNumber::Panchang, "Panchang", "framPanchaang"},
      {PageNumber::Journey, "Journey", "rtf"},
      {PageNumber::Chowgadiya, "Chowgadiya", "framChog"},
      {PageNumber::HoraChart, "HoraChart", "framHoraChrt"},
      {PageNumber::TodayOverview, "TodayOverview", "framMainPage"},
      {PageNumber::Rashifala, "Rashifala", "rtf"},
      {PageNumber::MoonTransits, "MoonTransits", "rtf"},
      {PageNumber::FinancialAnalysis, "FinancialAnalysis", "rtf"},
      {PageNumber::EvilMuhurthas, "EvilMuhurthas", "framKulik"},
      {PageNumber::YogaResults, "YogaResults", "rtf"},
      {PageNumber::SuryaYogaResults, "SuryaYogaResults", "rtf"},
      {PageNumber::TithiResult, "TithiResult", "rtf"},
      {PageNumber::NakshatraResult, "NakshatraResult", "rtf"},
      {PageNumber::WeekdayResult, "WeekdayResult", "rtf"},
      {PageNumber::DivisionalCharts, "DivisionalCharts", "framVargas"},
      {PageNumber::Ashtakavarga, "Ashtakavarga", "framAshtak"},
      {PageNumber::Upagrahas, "Upagrahas", "framUpagrahas"},
      {PageNumber::Aspects, "Aspects", "framAspects"},
      {PageNumber::BirthAttributes, "BirthAttributes", "framBirthAttributes"},
      {PageNumber::DayScores, "DayScores", "framScores"},
      {PageNumber::VakyaPositions, "VakyaPositions", "framVakya"},
      {PageNumber::ExactDay, "ExactDay", "framExactDay"},
      {PageNumber::Month, "Month", "framMonth"},
      {PageNumber::StudyList, "StudyList", "picStudyList"},
  };
  return table;
}

contentManager::contentManager(SelvaniDailyMod &theSession, QLabel &lblMainChartName, QObject *parent)
    : QObject(parent), session(theSession), title(lblMainChartName) {}

void contentManager::AddPage(int page, Page content) {
  content.widget->hide();
  pages[page] = std::move(content);
}

QRect contentManager::ContentRect(const QSize &inner) {
  const double w = inner.width(), h = inner.height();
  return QRect(qRound(0.335 * w), qRound(0.285 * h), qRound(0.62 * w), qRound(0.575 * h));
}

QString contentManager::TitleOf(int page) const {
  if (page == PageNumber::Help) return tr("Help");
  const auto row = std::find_if(Table().begin(), Table().end(), [page](const Row &r) { return r.page == page; });
  if (row == Table().end() || !session.HasAnalysis()) return {};
  return session.TodayChart().GetHeadValue(11, QLatin1String(row->titleKey), QStringLiteral("GEN"));
}

void contentManager::ShowPage(int page) {
  const auto found = pages.find(page);
  if (found == pages.end()) return;
  const Page &content = found->second;
  const std::shared_ptr<void> guard = fillGuard ? fillGuard() : nullptr;
  PreviousPage = CurrentPage;
  fonts.SetHeadFont(title);
  HideCurrentPage();
  if (leaving) leaving();
  CurrentPage = page;
  if (page == PageNumber::TodayOverview) content.widget->show();
  Tell([&] {
    if (content.fill) content.fill();
  });
  QString titleText;
  Tell([&] { titleText = TitleOf(page); });
  SetPageTitle(titleText);
  ApplyPageFonts(page);
  content.widget->show();
  emit PageShown(page);
}

QWidget *contentManager::CurrentWidget() const {
  const auto current = pages.find(CurrentPage);
  return current == pages.end() ? nullptr : current->second.widget;
}

void contentManager::Tell(const std::function<void()> &step) {
  try {
    step();
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  } catch (const std::exception &error) {
    Notices::Show({Notice::Kind::Warning, QString(), QString::fromLocal8Bit(error.what())});
  }
}

void contentManager::HideCurrentPage() {
  const auto current = pages.find(CurrentPage);
  if (current != pages.end()) current->second.widget->hide();
}

void contentManager::SetPageTitle(const QString &text) { title.setText(text); }

// The credits are the program's own words in the program's own fonts, whatever the language.
void contentManager::ApplyPageFonts(int page) {
  if (page == PageNumber::Credits) return;
  const Page &content = pages.at(page);
  if (content.applyFonts) content.applyFonts(fonts);
}
