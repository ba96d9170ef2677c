// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/StudyJson.h"

#include <QJsonArray>

#include "analysis/AshtakavargaPage.h"
#include "analysis/AspectsPage.h"
#include "analysis/ScoresPage.h"
#include "analysis/UpagrahasPage.h"
#include "analysis/VakyaPage.h"
#include "app/JsonEach.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

namespace {

constexpr int LastPoint = 12;      // the ascendant and the twelve planets
constexpr int LastDignified = 9;   // dignity knows the Sun to Ketu
constexpr int LastAshtakBody = 8;  // reference bodies: the ascendant, the seven planets, Rahu
constexpr int LastUpagraha = UpagrahasPage::Points;

// One row for each point, one column for each of firstOther to lastOther.
template <typename Answer>
QJsonArray Pairs(int firstOther, int lastOther, Answer answer) {
  return Each(0, LastPoint, [&](int point) { return Each(firstOther, lastOther, [&](int other) { return answer(point, other); }); });
}

template <typename Value>
QJsonValue OrNull(const std::optional<Value> &value) {
  return value ? QJsonValue(*value) : QJsonValue();
}

// A member's answers for the points first to last under its name.
template <typename Answer>
struct Member {
  const char *name;
  Answer (clsPlanets::*member)(int) const;
};

template <typename Members>
void Insert(QJsonObject &chart, const clsPlanets &planets, int first, int last, const Members &members) {
  for (const auto &[name, member] : members)
    chart.insert(QLatin1String(name), Each(first, last, [&, m = member](int index) { return QJsonValue((planets.*m)(index)); }));
}

// Signs and nakshatras of the ascendant and the twelve planets.
void AddSigns(QJsonObject &chart, const clsPlanets &planets) {
  constexpr Member<int> numbers[] = {{"PlanetRashiNum", &clsPlanets::PlanetRashiNum}, {"PlanetHouse", &clsPlanets::PlanetHouse}};
  Insert(chart, planets, 0, LastPoint, numbers);
  chart.insert(QStringLiteral("NakPadaPlanet"), Each(0, LastPoint, [&](int point) { return OrNull(planets.NakPadaPlanet(point)); }));
  chart.insert(QStringLiteral("PlanetSignLord"), Each(0, LastPoint, [&](int point) { return OrNull(planets.PlanetSignLord(point)); }));
  chart.insert(QStringLiteral("CountPlanetInSign"), Each(1, 12, [&](int sign) { return planets.CountPlanetInSign(sign); }));
  chart.insert(QStringLiteral("SignOccupiedNum"), Each(1, 2, [&](int mode) { return planets.SignOccupiedNum(mode); }));
  chart.insert(QStringLiteral("Nak28GetNakshatra"), planets.Nak28GetNakshatra());
}

void AddDivisions(QJsonObject &chart, const clsPlanets &planets) {
  constexpr Member<bool> marks[] = {{"PlanetVargottama", &clsPlanets::PlanetVargottama},
                                    {"SashtiAmshaBenefic", &clsPlanets::SashtiAmshaBenefic}};
  constexpr Member<int> numbers[] = {{"PlanetGopuramsa", &clsPlanets::PlanetGopuramsa},
                                     {"PlanetInNavamsha", &clsPlanets::PlanetInNavamsha},
                                     {"NavamshSign", &clsPlanets::NavamshSign},
                                     {"NavamshLord", &clsPlanets::NavamshLord},
                                     {"SaptamshaLord", &clsPlanets::SaptamshaLord},
                                     {"DashamamshaLord", &clsPlanets::DashamamshaLord},
                                     {"DwaDashamamshaLord", &clsPlanets::DwaDashamamshaLord},
                                     {"EkaDashamAmshaLord", &clsPlanets::EkaDashamAmshaLord},
                                     {"DrekkanaLord", &clsPlanets::DrekkanaLord},
                                     {"ChaturthamshLord", &clsPlanets::ChaturthamshLord},
                                     {"PanchamAmshLord", &clsPlanets::PanchamAmshLord},
                                     {"SastamshLord", &clsPlanets::SastamshLord},
                                     {"VarAshtamamshaLord", &clsPlanets::VarAshtamamshaLord}};
  Insert(chart, planets, 0, LastPoint, marks);
  Insert(chart, planets, 0, LastPoint, numbers);
  chart.insert(QStringLiteral("KrishAmsha"), Each(0, LastPoint, [&](int point) { return planets.KrishAmsha(point); }));
  chart.insert(QStringLiteral("Decanate"), OrNull(planets.Decanate()));
}

void AddUpagrahas(QJsonObject &chart, const clsPlanets &planets) {
  chart.insert(QStringLiteral("UpagrahaLongi"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaLongi(n); }));
  chart.insert(QStringLiteral("UpagrahaSign"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaSign(n); }));
  chart.insert(QStringLiteral("UpagrahaNak"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaNak(n); }));
  chart.insert(QStringLiteral("UpaNakPada"), Each(1, LastUpagraha, [&](int n) { return planets.UpaNakPada(n); }));
  chart.insert(QStringLiteral("UpagrahaName"), Each(1, LastUpagraha, [&](int n) { return planets.UpagrahaName(n); }));
  chart.insert(QStringLiteral("UpagrahaLord"), Each(1, LastUpagraha, [&](int n) { return clsPlanets::UpagrahaLord(n); }));
  chart.insert(QStringLiteral("GulikaSign"), planets.GulikaSign());
  constexpr std::pair<const char *, int (clsPlanets::*)() const> jaimini[] = {{"AtmaKaraka", &clsPlanets::AtmaKaraka},
                                                                              {"AtmaKarakaSign", &clsPlanets::AtmaKarakaSign},
                                                                              {"KarakamsaLagna", &clsPlanets::KarakamsaLagna},
                                                                              {"FindAroodhaLagna", &clsPlanets::FindAroodhaLagna},
                                                                              {"FindUpaPadaLagna", &clsPlanets::FindUpaPadaLagna}};
  for (const auto &[name, member] : jaimini) chart.insert(QLatin1String(name), (planets.*member)());
}

void AddAshtakavarga(QJsonObject &chart, const clsPlanets &planets) {
  const std::unique_ptr<clsPlanets> counted = WithAshtakavarga(planets);
  chart.insert(QStringLiteral("AshVarga"),
               Each(0, LastAshtakBody, [&](int body) { return Each(1, 12, [&](int sign) { return counted->AshVarga(body, sign); }); }));
  chart.insert(QStringLiteral("AshTotal"), Each(1, 12, [&](int sign) { return counted->AshTotal(sign); }));
}

// Dignity by planet 1 to 9.
void AddDignity(QJsonObject &chart, const clsPlanets &planets) {
  constexpr Member<bool> marks[] = {
      {"Exalted", &clsPlanets::Exalted},
      {"Debilitated", &clsPlanets::Debilitated},
      {"InOwnHouse", &clsPlanets::InOwnHouse},
      {"InFriendHouse", &clsPlanets::InFriendHouse},
      {"InEnemyHouse", &clsPlanets::InEnemyHouse},
      {"InSamaHouse", &clsPlanets::InSamaHouse},
      {"IsMoolTrikona", &clsPlanets::IsMoolTrikona},
      {"WithinOrbOfSun", &clsPlanets::WithinOrbOfSun},
      {"CheckHighestExaltDeg", &clsPlanets::CheckHighestExaltDeg},
      {"CheckHighestDebiDeg", &clsPlanets::CheckHighestDebiDeg},
      {"InAdhiMitraHouse", &clsPlanets::InAdhiMitraHouse},
      {"InAdhiSatruHouse", &clsPlanets::InAdhiSatruHouse},
  };
  constexpr Member<QString> words[] = {
      {"ExaltClass", &clsPlanets::ExaltClass}, {"ExaltClassEng", &clsPlanets::ExaltClassEng}, {"AstaText", &clsPlanets::AstaText}};
  Insert(chart, planets, 1, LastDignified, marks);
  Insert(chart, planets, 1, LastDignified, words);
  chart.insert(QStringLiteral("GrahaMaitriNo"), planets.GrahaMaitriNo());
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
  chart.insert(QStringLiteral("PlanetMutOrb"), Pairs(0, LastPoint, [&](int a, int b) { return planets.PlanetMutOrb(a, b); }));
  constexpr std::pair<const char *, bool (clsPlanets::*)(int, int) const> places[] = {{"PlanetInKendra", &clsPlanets::PlanetInKendra},
                                                                                      {"PlanetInTrikona", &clsPlanets::PlanetInTrikona},
                                                                                      {"PlanetInTrika", &clsPlanets::PlanetInTrika}};
  for (const auto &[name, member] : places)
    chart.insert(QLatin1String(name), Pairs(0, LastPoint, [&, m = member](int a, int b) { return (planets.*m)(a, b); }));
  constexpr Member<bool> marks[] = {{"PlanetAspectedByNatBenefic", &clsPlanets::PlanetAspectedByNatBenefic},
                                    {"PlanetAspectedByNatMalefic", &clsPlanets::PlanetAspectedByNatMalefic},
                                    {"PlanetWithBenefic", &clsPlanets::PlanetWithBenefic},
                                    {"PlanetWithMalefic", &clsPlanets::PlanetWithMalefic},
                                    {"WithBenefic", &clsPlanets::WithBenefic},
                                    {"WithMalefic", &clsPlanets::WithMalefic},
                                    {"WithEnemy", &clsPlanets::WithEnemy},
                                    {"PlanetInPanaphara", &clsPlanets::PlanetInPanaphara},
                                    {"PlanetInApoklima", &clsPlanets::PlanetInApoklima}};
  Insert(chart, planets, 0, LastPoint, marks);
  chart.insert(QStringLiteral("AspectedByEnemy"),
               Each(0, LastPoint, [&](int planet) { return planets.AspectedByEnemy(planet).value_or(false); }));
  // By sign: is it looked at by the planet, if that is Mars or Saturn?
  chart.insert(QStringLiteral("CheckMaleficAspects"),
               Pairs(1, 12, [&](int planet, int sign) { return planets.CheckMaleficAspects(planet, sign); }));
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
  AddSigns(chart, planets);
  AddDivisions(chart, planets);
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
