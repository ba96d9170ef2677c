// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Table: PeriodKeys.
#include "analysis/ExactWords.h"

#include <QLocale>
#include <array>
#include <cmath>

#include "engine/clsPlanets.h"

namespace {

// In the order of Period::Kind; the short forms have "Short" behind.
constexpr std::array<const char *, Period::Kinds> PeriodKeys{"RahuKaal", "Yamaghanta", "Gulika",        "DurMuhurta",
                                                             "Varjyam",  "Abhijit",    "BrahmaMuhurta", "Amrita"};

constexpr double HalfMinute = 30 / 86400.0;  // in days

// The lords of the horas in the order of their types, as planet indexes.
constexpr std::array<int, 7> HoraLords{1, 3, 2, 7, 6, 5, 4};

// Whole degrees and minutes; 59.6 minutes are the next degree.
QString DegreesText(double degrees, const QString &suffix) {
  const long minutes = std::lround(std::abs(degrees) * 60);
  return QStringLiteral("%1°%2'%3")
      .arg(QString::number(minutes / 60), QString::number(minutes % 60).rightJustified(2, QLatin1Char('0')), suffix);
}

}  // namespace

QString ExactWords::Word(const char *key) const { return words.GetHeadValue(1, QLatin1String(key), QStringLiteral("Exact")); }
QString ExactWords::General(const char *key) const { return words.GetGenText(QLatin1String(key)); }

QString ExactWords::Tithi(int number) const {
  double tithi = number;
  return words.GetTithiName(tithi);
}

QString ExactWords::Nakshatra(int number) const {
  double nakshatra = number;
  return words.GetNakshatraName(nakshatra);
}

QString ExactWords::Yoga(int number) const { return words.FindYoga(number); }
QString ExactWords::Karana(int number) const { return words.GetHeadValue(1, number, QStringLiteral("KARAN")); }
QString ExactWords::Sign(int number) const { return words.ConvertRashi(number); }
QString ExactWords::Chogadiya(int type) const { return words.GetChowGadiyaName(type); }
QString ExactWords::HoraLord(int type) const { return words.GetHoraName(type); }
QString ExactWords::HoraLordShort(int type) const { return words.PlanetNameSmall(HoraLords.at(static_cast<size_t>(type - 1))); }
QString ExactWords::Weekday(int weekday) const { return words.GetHeadValue(1, weekday - 1, QStringLiteral("Day")); }
QString ExactWords::Body(Ephemeris::Body body) const { return words.PlanetNameFull(body == Ephemeris::Body::Moon ? 7 : 1); }
QString ExactWords::PeriodName(Period::Kind kind) const { return Word(PeriodKeys[static_cast<size_t>(kind)]); }

QString ExactWords::PeriodShort(Period::Kind kind) const {
  return Word((QByteArray(PeriodKeys[static_cast<size_t>(kind)]) + "Short").constData());
}

QString ExactWords::Remark(LimbSpan::Course course) const {
  switch (course) {
    case LimbSpan::Course::Skipped: return Word("Skipped");
    case LimbSpan::Course::Repeated: return Word("Repeated");
    case LimbSpan::Course::Again: return Word("Again");
    default: return {};
  }
}

QString ExactWords::InSign(double longitude) const {
  // Minutes are cut, as a body is in the sign that it has reached.
  const double minutes = std::floor(longitude * 60 + 1e-7) / 60;
  const int sign = static_cast<int>(minutes / 30);
  return Sign(sign % 12 + 1) + QLatin1Char(' ') + DegreesText(minutes - sign * 30, {});
}

// The table of months begins with Vaishakha, the Sun's month in Aries, and has Chaitra as 0.
QString ExactWords::Month(int number) const { return words.GetVikramiMonth(number - 1); }

QString ExactWords::Amanta(const LunarMonth &month) const {
  if (month.adhika) return Word("Adhika").arg(Month(month.amanta));
  if (month.kshaya) return Word("Kshaya").arg(Month(month.amanta), Month(month.kshaya));
  return Month(month.amanta);
}

QString ExactWords::Purnimanta(const LunarMonth &month) const {
  return month.purnimantaAdhika ? Word("Adhika").arg(Month(month.purnimanta)) : Month(month.purnimanta);
}

QString ExactWords::WithHalf(const QString &month, bool bright) const { return Word(bright ? "MonthWaxing" : "MonthWaning").arg(month); }

QString ExactWords::Clock(double moment, const QDate &date, Precision precision) const {
  // The minute is the nearest one; 59'45" is told as the next hour.
  const QDateTime local = rules.zone.LocalOf(precision == Precision::Minute ? moment + HalfMinute : moment);
  const QString form = precision == Precision::Minute ? QStringLiteral("H:mm") : QStringLiteral("H:mm:ss");
  return QLocale::c().toString(local, local.date() == date ? form : QStringLiteral("d MMM ") + form);
}

QString ExactWords::Time(double moment, const QDate &date) const { return Clock(moment, date, Precision::Minute); }
QString ExactWords::TimeToSecond(double moment, const QDate &date) const { return Clock(moment, date, Precision::Second); }

QString ExactWords::TimeAlone(double moment) const {
  return Clock(moment, rules.zone.LocalOf(moment + HalfMinute).date(), Precision::Minute);
}

QString ExactWords::TimeShort(double moment, const QDate &date) const {
  const bool isNext = rules.zone.LocalOf(moment + HalfMinute).date() == date.addDays(1);
  return isNext ? TimeAlone(moment) + QLatin1Char('+') : Time(moment, date);
}

QString ExactWords::Range(double begins, double ends, const QDate &date) const {
  return Word("Range").arg(Time(begins, date), Time(ends, date));
}

QString ExactWords::RangeAlone(double begins, double ends) const { return TimeAlone(begins) + QLatin1Char('-') + TimeAlone(ends); }

// none: the key of "there is none"; the reason is added to it where there is one.
QString ExactWords::Event(const SkyEvent &event, const QDate &date, const char *none, Precision precision) const {
  switch (event.state) {
    case SkyEvent::State::Happens: return Clock(event.at, date, precision);
    case SkyEvent::State::StaysBelow: return Word((QByteArray(none) + "Below").constData());
    case SkyEvent::State::StaysAbove: return Word((QByteArray(none) + "Above").constData());
    default: return Word(none);
  }
}

QString ExactWords::Sunrise(const ExactDay &day) const { return Event(day.sunrise, day.date, "NoSunrise"); }
QString ExactWords::Sunset(const ExactDay &day) const { return Event(day.sunset, day.date, "NoSunset"); }
QString ExactWords::Moonrise(const ExactDay &day) const { return Event(day.moonrise, day.date, "NoMoonrise"); }
QString ExactWords::Moonset(const ExactDay &day) const { return Event(day.moonset, day.date, "NoMoonset"); }

QString ExactWords::SunriseToMinute(const ExactDay &day, const QDate &date) const {
  return Event(day.sunrise, date, "NoSunrise", Precision::Minute);
}

QString ExactWords::SunsetToMinute(const ExactDay &day, const QDate &date) const {
  return Event(day.sunset, date, "NoSunset", Precision::Minute);
}

QString ExactWords::StateOf(const SkyEvent &first, const SkyEvent &second) const {
  for (const SkyEvent &event : {first, second})
    if (!event.Happens()) return Word(event.state == SkyEvent::State::StaysAbove ? "MidnightSun" : "PolarNight");
  return {};
}

QString ExactWords::None(const QString &state) const { return state.isEmpty() ? QString() : Word("NoneBecause").arg(state); }

QString ExactWords::PolarState(const ExactDay &day) const { return StateOf(day.sunrise, day.sunset); }
QString ExactWords::NoDaylight(const ExactDay &day) const { return None(PolarState(day)); }
QString ExactWords::NoNight(const ExactDay &day) const { return None(StateOf(day.sunset, day.nextSunrise)); }

QString ExactWords::SunriseRule() const {
  return Word(rules.disc == Ephemeris::DiscRule::CentreNoRefraction ? "DiscCentreRule" : "UpperLimbRule");
}

QString ExactWords::Brief() const {
  return Word("ExactBrief").arg(Word(rules.disc == Ephemeris::DiscRule::CentreNoRefraction ? "DiscCentreBrief" : "UpperLimbBrief"));
}

QString ExactWords::Offset(double moment) const {
  const QString clock = ExactZone::OffsetText(rules.zone.SecondsEastAt(moment));
  return rules.zone.HasDaylightSaving(moment) ? QStringLiteral("%1 (%2)").arg(clock, Word("DaylightSaving")) : clock;
}

QString ExactWords::PlaceAndRules(double moment) const {
  const QString latitude = DegreesText(rules.place.latitude, rules.place.latitude < 0 ? QStringLiteral("S") : QStringLiteral("N"));
  const QString longitude = DegreesText(rules.place.longitude, rules.place.longitude < 0 ? QStringLiteral("W") : QStringLiteral("E"));
  // The library's Lahiri is not the polynomial of that name in the charts, so it goes by its plain name.
  const QString ayanamsha = rules.zodiac.kind == Ephemeris::Zodiac::Kind::Lahiri ? Word("Lahiri") : words.AyanamshName();
  return QStringLiteral("%1 %2 %3, %4. %5, %6.")
      .arg(words.clsPerson().PLOB(), latitude, longitude, Offset(moment),
           Word(rules.disc == Ephemeris::DiscRule::CentreNoRefraction ? "DiscCentre" : "UpperLimb"), ayanamsha)
      .trimmed();
}
