// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/contentManager.h"

#include <QLabel>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace {

constexpr int Overview = 18, Credits = 5;

}  // namespace

const std::vector<contentManager::Row> &contentManager::Table() {
  static const std::vector<Row> table{
      {1, "ChartList", "picChartList"},
      {2, "PredictionList", "picPrediList"},
      {5, "Credits", "picCredits"},
      {6, "BirthKundali", "Kundali"},
      {7, "SunriseKundali", "Kundali"},
      {8, "TransitKundali", "Kundali"},
      {9, "BirthPlanets", "framPlPos"},
      {10, "TodayPlanets", "framPlPos"},
      {11, "VimshottariDasha", "framVimsot"},
      {12, "TrishulChakra", "framTrishulChakra"},
      {13, "Panchang", "framPanchaang"},
      {15, "Journey", "rtf"},
      {16, "Chowgadiya", "framChog"},
      {17, "HoraChart", "framHoraChrt"},
      {18, "TodayOverview", "framMainPage"},
      {19, "Rashifala", "rtf"},
      {20, "MoonTransits", "rtf"},
      {21, "FinancialAnalysis", "rtf"},
      {22, "EvilMuhurthas", "framKulik"},
      {23, "YogaResults", "rtf"},
      {24, "SuryaYogaResults", "rtf"},
      {25, "TithiResult", "rtf"},
      {27, "NakshatraResult", "rtf"},
      {28, "WeekdayResult", "rtf"},
      {29, "DivisionalCharts", "framVargas"},
      {30, "Ashtakavarga", "framAshtak"},
      {31, "Upagrahas", "framUpagrahas"},
      {32, "Aspects", "framAspects"},
      {33, "BirthAttributes", "framBirthAttributes"},
      {34, "DayScores", "framScores"},
      {35, "VakyaPositions", "framVakya"},
      {36, "ExactDay", "framExactDay"},
      {37, "Month", "framMonth"},
      {StudyListPage, "StudyList", "picStudyList"},
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
  if (page == HelpPage) return tr("Help");
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
  if (page == Overview) content.widget->show();
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
  if (page == Credits) return;
  const Page &content = pages.at(page);
  if (content.applyFonts) content.applyFonts(fonts);
}
