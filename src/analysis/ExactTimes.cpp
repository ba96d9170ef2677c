// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ExactTimes.h"

#include <QLocale>

#include "analysis/ExactSettings.h"
#include "engine/clsPlanets.h"

namespace {
constexpr double DayMinutes = 24 * 60;
}

ExactTimes::ExactTimes(const clsPlanets &todayChart, ExactDay::Extent extent)
    : rules(ExactRulesOf(todayChart)),
      words(todayChart, rules),
      moment(UniversalMoment(todayChart, rules)),
      date(todayChart.clsPerson().GetBirthDate().date()),
      day(ExactDay::At(moment, rules, extent)) {}

double ExactTimes::At(double universalDay) const { return (universalDay - day.begins) * DayMinutes; }

ExactFrame ExactTimes::Frame() const {
  ExactFrame frame;
  frame.head =
      words.Word("ExactHead")
          .arg(QLocale::c().toString(day.date, QStringLiteral("dddd, MMMM d, yyyy")), words.SunriseRule(), words.Offset(day.begins));
  frame.begins = words.TimeAlone(day.begins);
  frame.ends = words.TimeAlone(day.ends);
  if (day.sunset.Happens()) frame.sunset = words.TimeAlone(day.sunset.at);
  frame.none = {words.NoDaylight(day), words.NoNight(day)};
  frame.minutes = At(day.ends);
  frame.dayEnds = day.sunset.Happens() ? At(day.sunset.at) : day.sunset.state == SkyEvent::State::StaysAbove ? frame.minutes : 0;
  if (moment >= day.begins && moment < day.ends) frame.now = At(moment);
  const QDateTime first = rules.zone.LocalOf(day.begins);
  const double toFullHour = 60 - first.time().minute() - first.time().second() / 60.0;
  for (double at = toFullHour; at < frame.minutes; at += 60) {
    const QTime shown = rules.zone.LocalOf(day.begins + at / DayMinutes + 1 / 86400.0).time();
    frame.hours.push_back({at, shown.hour(), QStringLiteral("%1:%2").arg(shown.hour()).arg(shown.minute(), 2, 10, QLatin1Char('0'))});
  }
  return frame;
}
