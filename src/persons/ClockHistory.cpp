// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/ClockHistory.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimeZone>
#include <algorithm>
#include <cmath>

#include "persons/PersonFields.h"

namespace {

using Reading = ClockHistory::Reading;

QString tr(const char *text) { return QCoreApplication::translate("ClockHistory", text); }

// A local time by the sun carries odd seconds; no standard ever did.
Reading::Kind KindOf(const QTimeZone &zone, const QDateTime &utc, int secondsEast) {
  if (zone.isDaylightTime(utc)) {
    const int year = utc.date().year();
    const bool warYear = (year >= 1916 && year <= 1918) || (year >= 1940 && year <= 1945);
    return warYear ? Reading::Kind::War : Reading::Kind::Daylight;
  }
  return secondsEast % 60 != 0 || zone.abbreviation(utc) == QLatin1String("LMT") ? Reading::Kind::LocalMean : Reading::Kind::Standard;
}

QString Words(Reading::Kind kind, bool differs) {
  switch (kind) {
    case Reading::Kind::Daylight: return tr("daylight saving time");
    case Reading::Kind::War: return tr("war time or daylight saving");
    case Reading::Kind::LocalMean: return tr("local mean time");
    case Reading::Kind::Standard: break;
  }
  return differs ? tr("the standard of those days") : tr("standard time");
}

}  // namespace

int ClockHistory::Reading::MinutesEast() const { return static_cast<int>(std::lround(secondsEast / 60.0)); }

std::optional<ClockHistory::Reading> ClockHistory::At(const QString &zone, const QDate &date, const QTime &time) {
  const QTimeZone history(zone.toLatin1());
  if (zone.isEmpty() || !history.isValid() || !date.isValid() || !time.isValid()) return std::nullopt;
  const QDateTime shown(date, time, Qt::UTC);

  // Only a difference that was in force a day before or after can be the one; each is tried on the moment that it would give.
  const int before = history.offsetFromUtc(shown.addDays(-1)), after = history.offsetFromUtc(shown.addDays(1));
  const auto inForce = [&](int seconds) { return history.offsetFromUtc(shown.addSecs(-seconds)) == seconds; };
  Reading reading;
  reading.secondsEast = reading.laterSecondsEast = inForce(before) || !inForce(after) ? before : after;
  if (before != after && inForce(before) && inForce(after)) {
    reading.certainty = Reading::Certainty::Twice;
    reading.laterSecondsEast = after;
  } else if (!inForce(before) && !inForce(after)) {
    reading.certainty = Reading::Certainty::Never;
    reading.kind = KindOf(history, shown.addDays(-1), before);
    return reading;
  }
  reading.kind = KindOf(history, shown.addSecs(-reading.secondsEast), reading.secondsEast);
  return reading;
}

std::optional<ClockHistory::Advice> ClockHistory::Advise(const QString &place, const QString &zone, const QDate &date, const QTime &time,
                                                         const QString &present) {
  const std::optional<Reading> reading = At(zone, date, time);
  if (!reading) return std::nullopt;
  const std::optional<int> shown = PersonFields::ReadDifference(present);
  Advice advice;
  advice.offered = PersonFields::DifferenceText(reading->MinutesEast());
  const int later = static_cast<int>(std::lround(reading->laterSecondsEast / 60.0));
  advice.differs = shown != reading->MinutesEast() && shown != later;
  const QString day = QLocale::c().toString(date, QStringLiteral("d MMMM yyyy"));
  if (advice.differs) {
    advice.sentence = tr("On %1 the clocks of %2 showed %3 (%4), not %5.")
                          .arg(day, place, advice.offered, Words(reading->kind, advice.differs), shown ? present.trimmed() : tr("this"));
  } else {
    advice.sentence = tr("On %1 the clocks of %2 showed %3 (%4).").arg(day, place, advice.offered, Words(reading->kind, advice.differs));
  }
  if (reading->certainty == Reading::Certainty::Twice) {
    advice.sentence += tr(" They were put back that day and showed this time twice, first with %1 and then with %2.")
                           .arg(advice.offered, PersonFields::DifferenceText(later));
  } else if (reading->certainty == Reading::Certainty::Never) {
    advice.sentence += tr(" They were put on that day and left this time out: please check the time of birth.");
  }
  return advice;
}
