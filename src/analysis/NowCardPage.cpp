// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/NowCardPage.h"

#include <QLocale>
#include <cmath>
#include <functional>

#include "analysis/ExactSettings.h"
#include "analysis/ExactTimes.h"
#include "analysis/TimeText.h"
#include "engine/Functions.h"
#include "engine/clsPlanets.h"

namespace {

constexpr int Sun = 1, Moon = 7;

// The moment at which an angle that grows all the time has gone the rest of its step. Each round takes the present
// speed, so a few rounds come within seconds.
QDateTime EndOfStep(const clsPlanets &chart, double step, const std::function<double(const clsPlanets &)> &angle,
                    const std::function<double(const clsPlanets &)> &degreesPerHour) {
  const double begin = angle(chart);
  const double rest = step - std::fmod(begin, step);
  QDateTime moment = chart.clsPerson().GetBirthDate();
  double travelled = 0, speed = degreesPerHour(chart);
  for (int round = 0; round < 4; ++round) {
    moment = moment.addSecs(std::llround((rest - travelled) / speed * 3600));
    clsPlanets later(chart.Settings());
    chart.CopySettingTo(later);
    later.clsPerson().SetBirthDate(moment);
    later.Calculate();
    // The record holds whole minutes: what lies beyond them is added at the present speed.
    speed = degreesPerHour(later);
    travelled = Functions::ModPos(angle(later) - begin, 360) + moment.time().second() / 3600.0 * speed;
    if (travelled > 300) travelled -= 360;
  }
  return moment;
}

// The time alone on the same day, with the day's short name later on.
QString ClockText(const QDateTime &moment, const QDateTime &now) {
  return QLocale::c().toString(moment, moment.date() == now.date() ? QStringLiteral("H:mm") : QStringLiteral("ddd H:mm"));
}

QString RahuKaalText(const clsPlanets &chart) {
  if (ExactDivisionsChosen(chart)) {
    const ExactTimes times(chart);
    for (const Period &period : times.day.periods)
      if (period.kind == Period::Kind::RahuKaal) return times.words.RangeAlone(period.begins, period.ends);
    return times.words.NoDaylight(times.day);
  }
  return TimeRangeText(chart.GetRahuKaalStartToday(), chart.GetRahuKaalSpanToday())
      .remove(QStringLiteral(" AM"))
      .remove(QStringLiteral(" PM"));
}

}  // namespace

QDateTime EndOfTithi(const clsPlanets &chart) {
  return EndOfStep(
      chart, 12, [](const clsPlanets &c) { return c.TithiValue(); },
      [](const clsPlanets &c) {
        const double moon = c.PlanetSpeed(Moon), sun = c.PlanetSpeed(Sun);
        return Functions::ModPos(moon, 360) - Functions::ModPos(sun, 360);
      });
}

QDateTime EndOfNakshatra(const clsPlanets &chart) {
  return EndOfStep(
      chart, 360.0 / 27, [](const clsPlanets &c) { return c.PlanetLongi(Moon); },
      [](const clsPlanets &c) { return Functions::ModPos(c.PlanetSpeed(Moon), 360); });
}

NowCardPage FillNowCard(const clsPlanets &todayChart) {
  NowCardPage page;
  const QString inSign = clsPlanets::ConvertValNoDeg(todayChart.PlanetLongi(Moon));
  page.moon = todayChart.RashiName() + QLatin1Char(' ') + inSign.left(inSign.lastIndexOf(QLatin1Char(':')));
  double nakshatra = todayChart.Nakshatra(), tithi = todayChart.Tithi();
  page.nakshatra = todayChart.GetNakshatraName(nakshatra);
  page.tithi = todayChart.GetTithiName(tithi);

  const QDateTime tithiEnd = EndOfTithi(todayChart), nakshatraEnd = EndOfNakshatra(todayChart);
  double nextTithi = tithi >= 30 ? 1 : tithi + 1, nextNakshatra = nakshatra >= 27 ? 1 : nakshatra + 1;
  const QDateTime now = todayChart.clsPerson().GetBirthDate();
  page.nextChange = tithiEnd <= nakshatraEnd
                        ? todayChart.GetTithiName(nextTithi).section(QLatin1Char(' '), -1) + QLatin1Char(' ') + ClockText(tithiEnd, now)
                        : todayChart.GetNakshatraName(nextNakshatra) + QLatin1Char(' ') + ClockText(nakshatraEnd, now);
  page.rahuKaal = RahuKaalText(todayChart);
  for (int planet = 0; planet <= 9; ++planet) {
    page.longitudes[static_cast<size_t>(planet)] = todayChart.PlanetLongi(planet);
    page.names[static_cast<size_t>(planet)] = todayChart.PlanetName(planet);
  }
  return page;
}
