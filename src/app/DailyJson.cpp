// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/DailyJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "analysis/PredictionPages.h"
#include "analysis/SelvaniDailyMod.h"
#include "app/ExactOutput.h"
#include "app/JsonEach.h"
#include "app/StudyJson.h"
#include "panchang/DailyYogas.h"

namespace {

constexpr int Points = 12;  // planets beside the ascendant

QString IsoText(const QDateTime &moment) { return moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")); }

QJsonObject PersonObject(const clsPerson &person) {
  return {
      {"Name", person.Name()},     {"Sex", person.Sex()},       {"Day", person.Day()},           {"Month", person.Month()},
      {"Year", person.Year()},     {"Hour", person.Hour()},     {"Minutes", person.Minutes()},   {"seconds", person.seconds()},
      {"AMPM", person.AMPM()},     {"City", person.PLOB()},     {"Country", person.Country()},   {"GMTDIFF", person.GMTDIFF()},
      {"LatDeg", person.LatDeg()}, {"LatMT", person.LatMT()},   {"TextNS", person.TextNS()},     {"LongDeg", person.LongDeg()},
      {"LongMT", person.LongMT()}, {"TextEW", person.TextEW()}, {"TimeCorr", person.TimeCorr()},
  };
}

QJsonObject NamesObject(const clsPlanets &chart) {
  double tithi = chart.Tithi(), nakshatra = chart.Nakshatra();
  const int month = clsPlanets::VikramiMonth(chart.PlanetLongi(1), chart.clsPerson().GetBirthDate());
  return {
      {"tithi", chart.GetTithiName(tithi)},
      {"nakshatra", chart.GetNakshatraName(nakshatra)},
      {"yoga", chart.YogaName()},
      {"karana", chart.KaranName()},
      {"month", chart.GetVikramiMonth(month)},
      {"weekday", chart.GetHeadValue(1, chart.clsPerson().WeekDayOfBirth() - 1, QStringLiteral("Day"))},
      {"sign", chart.RashiName()},
  };
}

QJsonObject ChartObject(const clsPlanets &chart) {
  const int weekday = chart.clsPerson().WeekDayOfBirth();
  return {
      {"date", IsoText(chart.clsPerson().GetBirthDate())},
      {"PlanetLongi", Each(0, 25, [&](int i) { return chart.PlanetLongi(i); })},
      {"BhavMid", Each(0, Points, [&](int i) { return chart.BhavMid(i); })},
      {"BhavBegin", Each(0, Points, [&](int i) { return chart.BhavBegin(i); })},
      {"KPHouse", Each(0, Points, [&](int i) { return chart.KPHouse(i); })},
      {"Obliq", chart.Obliq()},
      {"SidrealTime", chart.SidrealTime()},
      {"RetroGrade", Each(0, Points, [&](int i) { return chart.RetroGrade(i); })},
      {"NakOf", Each(0, Points, [&](int i) { return chart.NakOf(i); })},
      {"PrediVarga",
       Each(1, 17, [&](int varga) { return Each(0, Points, [&](int point) { return chart.PrediVarga(point, varga).value_or(0); }); })},
      {"Tithi", chart.Tithi()},
      {"Pada", chart.Pada()},
      {"YogaNumber", chart.YogaNumber()},
      {"KaranNumber", chart.KaranNumber()},
      {"VikramiMonth", clsPlanets::VikramiMonth(chart.PlanetLongi(1), chart.clsPerson().GetBirthDate())},
      {"Nakshatra", chart.Nakshatra()},
      {"WeekDayOfBirth", weekday},
      {"SunRiseTime", chart.SunRiseTime()},
      {"SunSetTime", chart.SunSetTime()},
      {"DayDuration", chart.DayDuration()},
      {"NightDuration", chart.NightDuration()},
      {"DayBirth", chart.DayBirth()},
      {"Hora", Each(1, 24,
                    [&](int n) {
                      return QJsonObject{{"start", chart.GetHoraStart(n)}, {"type", clsPlanets::GetHoraType(n, weekday)}};
                    })},
      {"Chogadiya", Each(1, 16,
                         [&](int n) {
                           return QJsonObject{{"start", chart.GetChogadiyaStart(n)},
                                              {"span", chart.GetChogadiyaSpan(n)},
                                              {"type", clsPlanets::GetChogadiyaType(n, weekday)}};
                         })},
      {"RahuKaal", QJsonObject{{"start", chart.GetRahuKaalStartToday()}, {"span", chart.GetRahuKaalSpanToday()}}},
      {"EvilMuhurtha", Each(1, 4,
                            [&](int kind) {
                              return QJsonObject{{"start", chart.GetEvilMuhurthaStart(kind)}, {"length", chart.GetMuhurthaLength()}};
                            })},
      {"names", NamesObject(chart)},
  };
}

QJsonObject DashaObject(SelvaniDailyMod &session) {
  clsDashas &dashas = session.DashaCalc();
  const QString current = dashas.CalcCurrentDasha(session.BirthChart());
  dashas.CalcDashaVimshottari(session.BirthChart());
  QJsonArray mahadasha;
  for (const DashaPeriod &period : dashas.Records())
    mahadasha.append(QJsonObject{{"lord", period.Lord}, {"start", IsoText(period.Start)}, {"length", period.Length}});
  return {{"balance", session.BirthChart().VimBalAtBirth()}, {"mahadasha", mahadasha}, {"current", current}};
}

QJsonObject OverviewObject(SelvaniDailyMod &session) {
  QJsonObject overview;
  for (const auto &[element, caption] : session.FillMainPage().Captions()) overview.insert(element, caption);
  const PersonHeader header = session.ShowPersonHeader();
  overview.insert(QStringLiteral("lblPersonName"), header.lblPersonName);
  overview.insert(QStringLiteral("lblBDate"), header.lblBDate);
  overview.insert(QStringLiteral("lblNowIn"), header.lblNowIn);
  overview.insert(QStringLiteral("lblNowInfo"), session.NowInfo());
  return overview;
}

// The muhurtha yogas that hold, with their paragraphs.
QJsonArray MuhurthaArray(const clsPlanets &today) {
  QJsonArray yogas;
  for (const QString &head : DailyYogas::HeadsThatHold(today))
    yogas.append(QJsonObject{{"key", head},
                             {"title", today.GetHeadValue(11, head, QStringLiteral("Yoganame"))},
                             {"text", today.GetHeadValue(11, head, QStringLiteral("MuhuYoga"))}});
  return yogas;
}

// The day's paragraphs, family by family; a family that asks nothing of this day is left out.
QJsonObject TextsObject(const clsPlanets &birth, const clsPlanets &today) {
  QJsonObject texts;
  for (const PredictionFamily &family : PredictionFamilies()) {
    const std::optional<PredictionKeys::Key> key = PredictionKeyOf(family.page, birth, today);
    if (!key) continue;
    const QString text = today.GetHeadValue(key->kind, key->head, key->category);
    texts.insert(QLatin1String(family.name), QJsonObject{{"key", key->head}, {"text", text}});
  }
  texts.insert(QStringLiteral("muhurtha"), MuhurthaArray(today));
  return texts;
}

QJsonArray YogasArray(const clsPlanets &today) {
  QJsonArray heads;
  for (const QString &head : DailyYogas::HeadsThatHold(today)) heads.append(head);
  return heads;
}

}  // namespace

QByteArray DailyJson(SelvaniDailyMod &session) {
  const UserSettings &settings = session.Settings();
  QJsonObject birthChart = ChartObject(session.BirthChart()), dayChart = ChartObject(session.TodayChart());
  AddStudy(birthChart, session.BirthChart());
  AddStudy(dayChart, session.TodayChart());
  const QJsonObject day{
      {"person", PersonObject(session.BirthChart().clsPerson())},
      {"residence", PersonObject(session.TodayChart().clsPerson())},
      {"moment", IsoText(session.TodayChart().clsPerson().GetBirthDate())},
      {"settings", QJsonObject{{"AyanType", settings.IntValue(SettingKeys::AyanType)},
                               {"RahuKetuMode", settings.IntValue(SettingKeys::RahuKetuMode)},
                               {"CustAyan", settings.Value(SettingKeys::CustAyan)},
                               {"UpagrahaMode", settings.IntValue(SettingKeys::UpagrahaMode)},
                               {"CalcMangMod", settings.IntValue(SettingKeys::CalcMangMod)},
                               {"CalcVarMod", settings.IntValue(SettingKeys::CalcVarMod)},
                               {"DayDivisions", settings.IntValue(SettingKeys::DayDivisions)},
                               {"SunriseRule", settings.IntValue(SettingKeys::SunriseRule)},
                               {"KundStyle", settings.IntValue(SettingKeys::KundStyle)}}},
      {"overview", OverviewObject(session)},
      {"birth", birthChart},
      {"day", dayChart},
      {"dasha", DashaObject(session)},
      {"texts", TextsObject(session.BirthChart(), session.TodayChart())},
      {"yogas", YogasArray(session.TodayChart())},
      {"exact", ExactOutput::Json(session.TodayChart())},
      {"scores", ScoresObject(session.BirthChart(), session.TodayChart())},
  };
  return QJsonDocument(day).toJson();
}
