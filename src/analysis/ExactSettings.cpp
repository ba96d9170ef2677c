// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ExactSettings.h"

#include <cmath>
#include <limits>

#include "engine/clsPlanets.h"
#include "platform/Database.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "platform/Recordset.h"

namespace {

constexpr int Raman = 2, Krishnamurti = 3, Lahiri = 1, NoAyanamsha = 12, NoAyanamshaEither = 14;

bool IsLetter(const QString &hemisphere, char letter) { return hemisphere.compare(QLatin1Char(letter), Qt::CaseInsensitive) == 0; }

Ephemeris::Observer ObserverOf(const clsPerson &person) {
  const double latitude = person.LatDeg() + person.LatMT() / 60.0, longitude = person.LongDeg() + person.LongMT() / 60.0;
  return {IsLetter(person.TextNS(), 'S') ? -latitude : latitude, IsLetter(person.TextEW(), 'W') ? -longitude : longitude, 0};
}

double DegreesOf(const QString &stored) {
  const int number = stored.toInt();  // dddmm
  return number / 100 + number % 100 / 60.0;
}

// Of several places of one name, the nearest.
QString ZoneNameOf(const clsPerson &person, const Ephemeris::Observer &place) {
  constexpr double nearby = 2;  // degrees: what lies farther off is another place of the name
  if (!person.GetDB() || person.PLOB().isEmpty()) return {};
  QString name;
  try {
    // The plus keeps the engine from walking through all places of the country for one name.
    Recordset rows = person.GetDB()->OpenRecordset(QStringLiteral("SELECT * FROM City WHERE City = ? AND +Country = ?"),
                                                   {person.PLOB(), person.Country()});
    double least = nearby;
    for (; !rows.AtEnd() && rows.HasColumn(QStringLiteral("Zone")); rows.MoveNext()) {
      const auto text = [&](const char *column) { return rows.Field(QLatin1String(column)).toString(); };
      const double north = DegreesOf(text("Lat")) * (IsLetter(text("NOSO"), 'S') ? -1 : 1);
      const double east = DegreesOf(text("Longy")) * (IsLetter(text("EaWe"), 'W') ? -1 : 1);
      const double distance = std::hypot(north - place.latitude, east - place.longitude);
      if (distance >= least) continue;
      least = distance;
      name = text("Zone");
    }
  } catch (const StoreError &) {
    // Without the list of places the chart's own difference holds.
  }
  return name;
}

ExactZone ZoneOf(const clsPerson &person, const Ephemeris::Observer &place) {
  const double hours = TextToNumber(person.GMTDIFF(), QStringLiteral("time zone (GMTDIFF)"));
  const int minutes = static_cast<int>(std::lround(hours * 60));
  const ExactZone fixed(minutes);
  const QString name = ZoneNameOf(person, place);
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
  rules.zone = ZoneOf(chart.clsPerson(), rules.place);
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
