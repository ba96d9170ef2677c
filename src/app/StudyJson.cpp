// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/StudyJson.h"

#include <QJsonArray>

#include "analysis/AshtakavargaPage.h"
#include "analysis/AspectsPage.h"
#include "analysis/ScoresPage.h"
#include "analysis/UpagrahasPage.h"
#include "analysis/VakyaPage.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

namespace {

constexpr int LastPoint = 12;      // the ascendant and the twelve planets
constexpr int LastDignified = 9;   // dignity knows the Sun to Ketu
constexpr int LastAshtakBody = 8;  // reference bodies: the ascendant, the seven planets, Rahu
constexpr int LastUpagraha = UpagrahasPage::Points;

template <typename Answer>
QJsonArray Each(int first, int last, Answer answer) {
  QJsonArray array;
  for (int index = first; index <= last; ++index) array.append(answer(index));
  return array;
}

// One row for each point, one column for each of firstOther to lastOther.
template <typename Answer>
QJsonArray Pairs(int firstOther, int lastOther, Answer answer) {
  return Each(0, LastPoint, [&](int point) { return Each(firstOther, lastOther, [&](int other) { return answer(point, other); }); });
}

QJsonValue OrNull(const std::optional<int> &number) { return number ? QJsonValue(*number) : QJsonValue(); }

void AddUpagrahas(QJsonObject &chart, const clsPlanets &planets) {
  chart.insert(QStringLiteral("UpagrahaLongi"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaLongi(n); }));
  chart.insert(QStringLiteral("UpagrahaSign"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaSign(n); }));
  chart.insert(QStringLiteral("UpagrahaNak"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaNak(n); }));
  chart.insert(QStringLiteral("UpaNakPada"), Each(1, LastUpagraha, [&](int n) { return planets.UpaNakPada(n); }));
}

void AddAshtakavarga(QJsonObject &chart, const clsPlanets &planets) {
  const std::unique_ptr<clsPlanets> counted = WithAshtakavarga(planets);
  chart.insert(QStringLiteral("AshVarga"),
               Each(0, LastAshtakBody, [&](int body) { return Each(1, 12, [&](int sign) { return counted->AshVarga(body, sign); }); }));
  chart.insert(QStringLiteral("AshTotal"), Each(1, 12, [&](int sign) { return counted->AshTotal(sign); }));
}

// Dignity by planet 1 to 9.
void AddDignity(QJsonObject &chart, const clsPlanets &planets) {
  const std::pair<const char *, bool (clsPlanets::*)(int) const> members[] = {
      {"Exalted", &clsPlanets::Exalted},
      {"Debilitated", &clsPlanets::Debilitated},
      {"InOwnHouse", &clsPlanets::InOwnHouse},
      {"InFriendHouse", &clsPlanets::InFriendHouse},
      {"InEnemyHouse", &clsPlanets::InEnemyHouse},
      {"InSamaHouse", &clsPlanets::InSamaHouse},
      {"IsMoolTrikona", &clsPlanets::IsMoolTrikona},
      {"WithinOrbOfSun", &clsPlanets::WithinOrbOfSun},
  };
  for (const auto &[name, member] : members)
    chart.insert(QLatin1String(name), Each(1, LastDignified, [&, m = member](int planet) { return (planets.*m)(planet); }));
  chart.insert(QStringLiteral("ExaltClassEng"), Each(1, LastDignified, [&](int planet) { return planets.ExaltClassEng(planet); }));
  chart.insert(QStringLiteral("Combust"), Each(1, LastDignified, [&](int planet) { return planets.Combust(planet).value_or(false); }));
}

// The first index is the point looked at, as in the members.
void AddAspects(QJsonObject &chart, const clsPlanets &planets) {
  chart.insert(QStringLiteral("CheckIfPlanetAspects"), Pairs(1, 7, [&](int a, int b) { return planets.CheckIfPlanetAspects(a, b); }));
  chart.insert(QStringLiteral("IfPlanetAspects"), Pairs(1, LastDignified, [&](int a, int b) { return planets.IfPlanetAspects(a, b); }));
  chart.insert(QStringLiteral("PlanetInSameSign"), Pairs(0, LastPoint, [&](int a, int b) { return planets.PlanetInSameSign(a, b); }));
  chart.insert(QStringLiteral("PlanetDegAspect"), Pairs(0, LastPoint, [&](int a, int b) { return planets.PlanetDegAspect(a, b); }));
  chart.insert(QStringLiteral("FindRelation"), Pairs(0, LastPoint, [&](int a, int b) {
                 return clsPlanets::FindRelation(planets.PlanetLongi(a) - planets.PlanetLongi(b));
               }));
  chart.insert(QStringLiteral("PlanetOrb"), Each(0, LastPoint, [&](int planet) { return planets.PlanetOrb(planet); }));
}

void AddCompatibility(QJsonObject &chart, const clsPlanets &planets) {
  int nakshatra = 0;
  const std::optional<int> gana = planets.Gana(nakshatra), nadi = planets.NadiNo();
  chart.insert(QStringLiteral("Gana"), OrNull(gana));
  chart.insert(QStringLiteral("AssignGana"), gana ? planets.AssignGana(*gana) : QString());
  chart.insert(QStringLiteral("NadiNo"), OrNull(nadi));
  chart.insert(QStringLiteral("AssignNadi"), nadi ? planets.AssignNadi(*nadi) : QString());
  chart.insert(QStringLiteral("NadiPada"), planets.NadiPada());
  chart.insert(QStringLiteral("YoniNo"), OrNull(planets.YoniNo()));
  chart.insert(QStringLiteral("YoniName"), planets.YoniName());
  chart.insert(QStringLiteral("VarnaNo"), OrNull(planets.VarnaNo()));
  chart.insert(QStringLiteral("Varna"), planets.Varna());
  chart.insert(QStringLiteral("VasyaNo"), OrNull(planets.VasyaNo()));
  chart.insert(QStringLiteral("Vasya"), planets.Vasya());
  chart.insert(QStringLiteral("RajjuType"), planets.RajjuType());
  chart.insert(QStringLiteral("Rajju"), planets.Rajju());
  chart.insert(QStringLiteral("Paya"), planets.Paya());
  chart.insert(QStringLiteral("Vihag"), planets.Vihag());
  chart.insert(QStringLiteral("Tatwa"), planets.Tatwa());
}

// Null where the Sun does not rise.
QJsonValue VakyaValue(const clsPlanets &planets) {
  constexpr std::array<const char *, VakyaPage::Rows> names{"Ascendant", "Sun",  "Mercury", "Venus", "Mars",     "Jupiter",
                                                            "Saturn",    "Moon", "Rahu",    "Ketu",  "Ayanamsha"};
  try {
    const std::array<double, VakyaPage::Rows> degrees = VakyaPositionsOf(planets);
    QJsonObject vakya;
    for (size_t i = 0; i < names.size(); ++i) vakya.insert(QLatin1String(names[i]), degrees[i]);
    return vakya;
  } catch (const ArithmeticError &) {
    return {};
  }
}

QJsonObject ScoresOfDay(const ScoresPage::Scores &scores) {
  constexpr std::array<const char *, ScoresPage::Themes> names{
      "GetFamilyScore",         "GetHappinessScore", "GetFinancialInvestmentScore", "GetFinancialCollaborationScore", "GetJourneyScore",
      "GetFinancialTransScore", "GetEducationScore"};
  QJsonObject day;
  for (size_t i = 0; i < names.size(); ++i) day.insert(QLatin1String(names[i]), scores[i]);
  return day;
}

}  // namespace

void AddStudy(QJsonObject &chart, const clsPlanets &planets) {
  chart.insert(QStringLiteral("PlanetVargottama"), Each(0, LastPoint, [&](int point) { return planets.PlanetVargottama(point); }));
  chart.insert(QStringLiteral("PlanetGopuramsa"), Each(0, LastPoint, [&](int point) { return planets.PlanetGopuramsa(point); }));
  AddAshtakavarga(chart, planets);
  AddUpagrahas(chart, planets);
  AddDignity(chart, planets);
  AddAspects(chart, planets);
  AddCompatibility(chart, planets);
  chart.insert(QStringLiteral("Vakya"), VakyaValue(planets));
}

QJsonObject ScoresObject(const clsPlanets &birth, const clsPlanets &today) {
  const auto days = ScoresAhead(birth, today);
  QJsonObject scores = ScoresOfDay(days[0]);
  const QDate first = today.clsPerson().GetBirthDate().date();
  QJsonArray ahead;
  for (int day = 1; day <= ScoresPage::DaysAhead; ++day) {
    QJsonObject of = ScoresOfDay(days[static_cast<size_t>(day)]);
    of.insert(QStringLiteral("date"), first.addDays(day).toString(Qt::ISODate));
    ahead.append(of);
  }
  scores.insert(QStringLiteral("days"), ahead);
  return scores;
}
