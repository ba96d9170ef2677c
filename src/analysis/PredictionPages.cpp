// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/PredictionPages.h"

#include "engine/clsPlanets.h"
#include "panchang/DailyYogas.h"

namespace {

constexpr int Ascendant = 0;
constexpr int YogaPage = 23;

QString Fetch(const clsPlanets &words, const PredictionKeys::Key &key) { return words.GetHeadValue(key.kind, key.head, key.category); }

}  // namespace

const std::vector<PredictionFamily> &PredictionFamilies() {
  static const std::vector<PredictionFamily> families{
      {28, "weekday", "WeekdayResult"},      {25, "tithi", "TithiResult"},   {27, "nakshatra", "NakshatraResult"},
      {24, "suryayoga", "SuryaYogaResults"}, {19, "rashifala", "Rashifala"}, {20, "moontransit", "MoonTransits"},
      {21, "finance", "FinancialAnalysis"},  {15, "journey", "Journey"},
  };
  return families;
}

std::optional<PredictionKeys::Key> PredictionKeyOf(int page, const clsPlanets &birthChart, const clsPlanets &todayChart) {
  const int weekday = todayChart.clsPerson().WeekDayOfBirth();
  switch (page) {
    case 15: return PredictionKeys::JourneyKey(weekday, clsPlanets::GetRashiElement(todayChart.PlanetRashiNum(Ascendant)));
    case 19:
      return PredictionKeys::RashifalaKey(todayChart.ConvertRashiEng(birthChart.RashiNum()),
                                          todayChart.ConvertRashiEng(todayChart.RashiNum()));
    case 20: return PredictionKeys::MoonTransitKey(static_cast<int>(birthChart.PlanetSign(7)), static_cast<int>(todayChart.PlanetSign(7)));
    case 21: return PredictionKeys::FinanceKey(weekday, todayChart.ConvertRashiEng(birthChart.PlanetSign(Ascendant)));
    case 24: return PredictionKeys::SuryaYogaKey(todayChart.YogaNumber());
    case 25: return PredictionKeys::TithiKey(DailyYogas::RunningTithi(todayChart.Tithi()));
    case 27: return PredictionKeys::NakshatraKey(todayChart.Nakshatra());
    case 28: return PredictionKeys::WeekdayKey(weekday);
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
  const std::optional<PredictionKeys::Key> key = PredictionKeyOf(20, birthChart, todayChart);
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
  if (page == YogaPage) return ShowYogas(todayChart);
  PredictionPage filled;
  const std::optional<PredictionKeys::Key> key = PredictionKeyOf(page, birthChart, todayChart);
  if (key) filled.AppendBody(Fetch(todayChart, *key));
  return filled;
}
