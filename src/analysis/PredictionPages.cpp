// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/PredictionPages.h"

#include "content/PageNumber.h"
#include "engine/clsPlanets.h"
#include "panchang/DailyYogas.h"

namespace {

constexpr int Ascendant = 0;

QString Fetch(const clsPlanets &words, const PredictionKeys::Key &key) { return words.GetHeadValue(key.kind, key.head, key.category); }

}  // namespace

const std::vector<PredictionFamily> &PredictionFamilies() {
  static const std::vector<PredictionFamily> families{
      {PageNumber::WeekdayResult, "weekday", "WeekdayResult"},
      {PageNumber::TithiResult, "tithi", "TithiResult"},
      {PageNumber::NakshatraResult, "nakshatra", "NakshatraResult"},
      {PageNumber::SuryaYogaResults, "suryayoga", "SuryaYogaResults"},
      {PageNumber::Rashifala, "rashifala", "Rashifala"},
      {PageNumber::MoonTransits, "moontransit", "MoonTransits"},
      {PageNumber::FinancialAnalysis, "finance", "FinancialAnalysis"},
      {PageNumber::Journey, "journey", "Journey"},
  };
  return families;
}

std::optional<PredictionKeys::Key> PredictionKeyOf(int page, const clsPlanets &birthChart, const clsPlanets &todayChart) {
  const int weekday = todayChart.clsPerson().WeekDayOfBirth();
  switch (page) {
    case PageNumber::Journey: return PredictionKeys::JourneyKey(weekday, clsPlanets::GetRashiElement(todayChart.PlanetRashiNum(Ascendant)));
    case PageNumber::Rashifala:
      return PredictionKeys::RashifalaKey(todayChart.ConvertRashiEng(birthChart.RashiNum()),
                                          todayChart.ConvertRashiEng(todayChart.RashiNum()));
    case PageNumber::MoonTransits:
      return PredictionKeys::MoonTransitKey(static_cast<int>(birthChart.PlanetSign(7)), static_cast<int>(todayChart.PlanetSign(7)));
    case PageNumber::FinancialAnalysis:
      return PredictionKeys::FinanceKey(weekday, todayChart.ConvertRashiEng(birthChart.PlanetSign(Ascendant)));
    case PageNumber::SuryaYogaResults: return PredictionKeys::SuryaYogaKey(todayChart.YogaNumber());
    case PageNumber::TithiResult: return PredictionKeys::TithiKey(DailyYogas::RunningTithi(todayChart.Tithi()));
    case PageNumber::NakshatraResult: return PredictionKeys::NakshatraKey(todayChart.Nakshatra());
    case PageNumber::WeekdayResult: return PredictionKeys::WeekdayKey(weekday);
    default: return std::nullopt;
  }
}

QString JourneyText(const clsPlanets &today, int weekday, int element) {
  return Fetch(today, PredictionKeys::JourneyKey(weekday, element));
}

QString RashifalaText(const clsPlanets &today, int birthSign, int todaySign) {
  return Fetch(today, PredictionKeys::RashifalaKey(today.ConvertRashiEng(birthSign), today.ConvertRashiEng(todaySign)));
}

QString FinanceText(const clsPlanets &today, int weekday, int sign) {
  return Fetch(today, PredictionKeys::FinanceKey(weekday, today.ConvertRashiEng(sign)));
}

QString TithiText(const clsPlanets &today, int tithi) { return Fetch(today, PredictionKeys::TithiKey(tithi)); }
QString NakshatraText(const clsPlanets &today, int nakshatra) { return Fetch(today, PredictionKeys::NakshatraKey(nakshatra)); }

QString WeekdayText(const clsPlanets &today, int weekday, const PrintMyText *printing) {
  const QString text = Fetch(today, PredictionKeys::WeekdayKey(weekday));
  if (printing) (*printing)(text, false);
  return text;
}

QString SuryaYogaText(const clsPlanets &today, int yoga, const PrintMyText *printing) {
  const std::optional<PredictionKeys::Key> key = PredictionKeys::SuryaYogaKey(yoga);
  if (!key) return {};
  const QString text = Fetch(today, *key);
  if (printing) (*printing)(text, false);
  return text;
}

QString MoonTransitText(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  const std::optional<PredictionKeys::Key> key = PredictionKeyOf(PageNumber::MoonTransits, birthChart, todayChart);
  return Fetch(todayChart, *key);
}

PredictionPage ShowYogas(const clsPlanets &todayChart, const PrintMyText *printing) {
  PredictionPage page;
  for (const QString &head : DailyYogas::HeadsThatHold(todayChart)) {
    page.AppendHead(todayChart.GetHeadValue(11, head, QStringLiteral("Yoganame")));
    page.AppendBody(todayChart.GetHeadValue(11, head, QStringLiteral("MuhuYoga")));
  }
  if (printing)
    for (const PredictionPage::Line &line : page.lines) (*printing)(line.text, line.isHead);
  return page;
}

PredictionPage FillPredictionPage(int page, const clsPlanets &birthChart, const clsPlanets &todayChart) {
  if (page == PageNumber::YogaResults) return ShowYogas(todayChart);
  PredictionPage filled;
  const std::optional<PredictionKeys::Key> key = PredictionKeyOf(page, birthChart, todayChart);
  if (key) filled.AppendBody(Fetch(todayChart, *key));
  return filled;
}
