// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/AspectsPage.h"

#include "analysis/StudyWords.h"

namespace {

constexpr int FirstLooking = 1, LastLooking = 9;  // Sun to Ketu

struct WesternCode {
  const char *code;
  double angle;  // degrees
};
constexpr std::array<WesternCode, 11> WesternCodes{{
    {"CNJ", 0},
    {"OPP", 180},
    {"SQU", 90},
    {"TRN", 120},
    {"SXT", 60},
    {"SQQ", 135},
    {"SSQ", 45},
    {"QNC", 150},
    {"SSX", 30},
    {"QNT", 72},
    {"BQT", 144},
}};

QString OrDash(const QStringList &names) { return names.isEmpty() ? QStringLiteral("-") : names.join(QStringLiteral(", ")); }

QString StandingOf(const clsPlanets &chart, int planet) {
  if (chart.InOwnHouse(planet)) return StudyWord(chart, "StandingOwn");
  if (chart.InFriendHouse(planet)) return StudyWord(chart, "StandingFriend");
  if (chart.InEnemyHouse(planet)) return StudyWord(chart, "StandingEnemy");
  if (chart.InSamaHouse(planet)) return StudyWord(chart, "StandingNeutral");
  return QStringLiteral("-");
}

AspectsPage::Pair PairOf(const clsPlanets &chart, int looking, int other) {
  AspectsPage::Pair pair;
  pair.looks = looking >= FirstLooking && looking <= LastLooking && chart.IfPlanetAspects(other, looking);
  pair.together = chart.PlanetInSameSign(looking, other);
  pair.byDegrees = chart.PlanetDegAspect(looking, other);
  const double angle = chart.PlanetLongi(looking) - chart.PlanetLongi(other);
  pair.western = clsPlanets::FindRelation(angle);
  pair.orb = WesternOrb(angle);

  const QString one = chart.PlanetNameFull(looking), two = chart.PlanetNameFull(other);
  if (pair.together || pair.looks) {
    pair.text[AspectsPage::BySign] = StudyWord(chart, pair.together ? "GridTogether" : "GridLooks");
    pair.told[AspectsPage::BySign] = StudyWord(chart, pair.together ? "ToldTogether" : "ToldLooks").arg(one, two);
  }
  const auto tell = [&](AspectsPage::Kind kind, const QString &text, const QString &name) {
    pair.text[kind] = text;
    pair.told[kind] = QStringLiteral("%1 - %2: %3").arg(one, two, name);
  };
  if (pair.byDegrees != 0)
    tell(AspectsPage::ByDegrees, StudyWord(chart, "DegreeCode", pair.byDegrees), StudyWord(chart, "Degree", pair.byDegrees));
  if (!pair.western.isEmpty())
    tell(AspectsPage::Western, pair.western,
         StudyWord(chart, QStringLiteral("West") + pair.western) + QStringLiteral(", ") + StudyWord(chart, "Orb").arg(ArcText(pair.orb)));
  return pair;
}

}  // namespace

double WesternOrb(double angle) {
  const QString code = clsPlanets::FindRelation(angle);
  const double width = std::abs(angle), folded = width > 180 ? 360 - width : width;
  for (const WesternCode &western : WesternCodes)
    if (code == QLatin1String(western.code)) return std::abs(folded - western.angle);
  return 0;
}

AspectsPage FillAspects(const clsPlanets &chart) {
  AspectsPage page;
  const auto index = [](int point) { return static_cast<size_t>(point); };
  for (int looking = 0; looking < AspectsPage::Points; ++looking)
    for (int other = 0; other < AspectsPage::Points; ++other)
      if (looking != other) page.grid[index(looking)][index(other)] = PairOf(chart, looking, other);

  for (int point = 0; point < AspectsPage::Points; ++point) {
    AspectsPage::Row &row = page.rows[index(point)];
    row.name = chart.PlanetNameFull(point);
    row.narrowName = chart.PlanetNameSmall(point);
    row.dignity = chart.ExaltClass(point);
    row.dignityMark = chart.ExaltClassEng(point);
    row.standing = StandingOf(chart, point);
    row.combustion = chart.AstaText(point);
    row.combust = row.combustion == chart.GetHeadValue(1, QStringLiteral("True"), QStringLiteral("ASTA"));
    QStringList sees, seenBy, with, byDegrees, western;
    for (int other = 0; other < AspectsPage::Points; ++other) {
      if (other == point) continue;
      const AspectsPage::Pair &pair = page.grid[index(point)][index(other)];
      const QString name = chart.PlanetName(other);
      if (pair.looks) sees << name;
      if (page.grid[index(other)][index(point)].looks) seenBy << name;
      if (pair.together) with << name;
      if (pair.byDegrees != 0) byDegrees << StudyWord(chart, "Degree", pair.byDegrees) + QLatin1Char(' ') + name;
      if (!pair.western.isEmpty())
        western << QStringLiteral("%1 %2 %3").arg(pair.western, name, ArcText(pair.orb).section('\'', 0, 0) + QLatin1Char('\''));
    }
    row.sees = OrDash(sees);
    row.seenBy = OrDash(seenBy);
    row.with = OrDash(with);
    row.byDegrees = OrDash(byDegrees);
    row.western = OrDash(western);
  }
  for (const WesternCode &western : WesternCodes) {
    const QString code = QString::fromLatin1(western.code);
    page.codes.push_back({code, StudyWord(chart, QStringLiteral("West") + code)});
  }
  for (int kind = 0; kind < AspectsPage::Kinds; ++kind) {
    page.kindNames[index(kind)] = StudyWord(chart, "AspectKind", kind + 1);
    page.kindHelp[index(kind)] = StudyWord(chart, "AspectHelp", kind + 1);
  }
  page.lblPlanetHead = chart.GetGenText(QStringLiteral("TPlanets"));
  page.lblDignityHead = chart.GetGenText(QStringLiteral("State"));
  page.lblStandingHead = StudyWord(chart, "InSignOf");
  page.lblCombustHead = StudyWord(chart, "Combustion");
  page.lblSeesHead = StudyWord(chart, "Sees");
  page.lblSeenByHead = StudyWord(chart, "SeenBy");
  page.lblWithHead = StudyWord(chart, "With");
  page.lblByDegreesHead = StudyWord(chart, "ByDegrees");
  page.lblWesternHead = StudyWord(chart, "WesternCodes");
  return page;
}

QString AspectsPage::HelpOf(size_t kind) const {
  if (kind != Western) return kindHelp[kind];
  QStringList names;
  for (const Code &code : codes) names << code.code + QLatin1Char(' ') + code.name;
  return kindHelp[kind] + QLatin1Char(' ') + names.join(QStringLiteral(", ")) + QLatin1Char('.');
}
