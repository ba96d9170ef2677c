// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ExactSettings.h"

#include <cmath>

#include "engine/clsPlanets.h"
#include "persons/PlaceSearch.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace {

constexpr int Raman = 2, Krishnamurti = 3, Lahiri = 1, NoAyanamsha = 12, NoAyanamshaEither = 14;

bool IsLetter(const QString &hemisphere, char letter) { return hemisphere.compare(QLatin1Char(letter), Qt::CaseInsensitive) == 0; }

Ephemeris::Observer ObserverOf(const clsPerson &person) {
  const double latitude = person.LatDeg() + person.LatMT() / 60.0, longitude = person.LongDeg() + person.LongMT() / 60.0;
  return {IsLetter(person.TextNS(), 'S') ? -latitude : latitude, IsLetter(person.TextEW(), 'W') ? -longitude : longitude, 0};
}

// Of several places of one name, the nearest.
QString ZoneNameOf(const clsPerson &person) {
  if (!person.GetDB() || person.PLOB().isEmpty()) return {};
  const int north = person.LatDeg() * 60 + person.LatMT(), east = person.LongDeg() * 60 + person.LongMT();
  try {
    const std::optional<Place> place =
        PlaceSearch::At(*person.GetDB(), person.PLOB(), person.Country(), IsLetter(person.TextNS(), 'S') ? -north : north,
                        IsLetter(person.TextEW(), 'W') ? -east : east);
    return place ? place->Zone : QString();
  } catch (const StoreError &) {
    return {};  // without the list of places the chart's own difference holds
  }
}

ExactZone ZoneOf(const clsPerson &person) {
  const double hours = TextToNumber(person.GMTDIFF(), QStringLiteral("time zone (GMTDIFF)"));
  const int minutes = static_cast<int>(std::lround(hours * 60));
  const ExactZone fixed(minutes);
  const QString name = ZoneNameOf(person);
  if (name.isEmpty()) return fixed;
  const ExactZone history(name, minutes);
  // A difference that the zone does not know in the year around the day is the user's own choice. Summer time may hold for eight
  // months and standard time for four, so that the year is asked every two.
  constexpr double halfYear = 183, step = 61;
  const double moment = fixed.UniversalOf(person.GetBirthDate());
  for (double off = -halfYear; off <= halfYear; off += step)
    if (history.SecondsEastAt(moment + off) == minutes * 60) return history;
  return fixed;
}

Ephemeris::Zodiac ZodiacOf(const clsPlanets &chart) {
  using Kind = Ephemeris::Zodiac::Kind;
  switch (chart.AyanType()) {
    case Lahiri: return {Kind::Lahiri, 0};
    case Raman: return {Kind::Raman, 0};
    case Krishnamurti: return {Kind::Krishnamurti, 0};
    case NoAyanamsha:
    case NoAyanamshaEither: return {Kind::Tropical, 0};
    default: return {Kind::Fixed, chart.PlanetLongi(13)};
  }
}

}  // namespace

ExactRules ExactRulesOf(const clsPlanets &chart) {
  constexpr int upperLimb = 2;
  ExactRules rules;
  rules.place = ObserverOf(chart.clsPerson());
  rules.zone = ZoneOf(chart.clsPerson());
  if (chart.Settings().IntValue(SettingKeys::SunriseRule) == upperLimb) rules.disc = Ephemeris::DiscRule::UpperLimbRefraction;
  rules.zodiac = ZodiacOf(chart);
  return rules;
}

bool ExactDivisionsChosen(const clsPlanets &chart) {
  constexpr int exact = 2;
  return chart.Settings().IntValue(SettingKeys::DayDivisions) == exact;
}

double UniversalMoment(const clsPlanets &chart, const ExactRules &rules) {
  return rules.zone.UniversalOf(chart.clsPerson().GetBirthDate());
}
