// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/MonthPage.h"

#include <QLocale>

#include "analysis/ExactSettings.h"
#include "analysis/MonthMarks.h"
#include "engine/clsPlanets.h"

namespace {

// "Kartika and Margashirsha", each once.
QString LunarMonths(const std::vector<ExactDay> &days, const ExactWords &words) {
  QStringList names;
  for (const ExactDay &day : days) {
    const QString name = words.Amanta(day.month);
    if (!names.contains(name)) names << name;
  }
  return names.join(QStringLiteral(", "));
}

QString WithEnd(const QString &name, const LimbSpan &span, const ExactDay &day, const ExactWords &words) {
  return name + QLatin1Char(' ') + words.TimeShort(span.ends, day.date);
}

}  // namespace

MonthPage FillMonth(const clsPlanets &todayChart) {
  const QDate date = todayChart.clsPerson().GetBirthDate().date();
  return FillMonth(todayChart, date.year(), date.month());
}

MonthPage FillMonth(const clsPlanets &todayChart, int year, int month) {
  const ExactRules rules = ExactRulesOf(todayChart);
  const ExactWords words(todayChart, rules);
  const QDate first(year, month, 1), today = todayChart.clsPerson().GetBirthDate().date();
  // The day before is there for the lunar month that it lies in.
  const std::vector<ExactDay> days = ExactDay::Days(first.addDays(-1), first.daysInMonth() + 1, rules);

  MonthPage page;
  page.year = year;
  page.month = month;
  page.title = words.Word("MonthTitle").arg(todayChart.GetMonthNameByNum(month), QString::number(year));
  page.firstColumn = first.dayOfWeek() % 7;
  for (int weekday = 1; weekday <= 7; ++weekday) page.weekdays << words.Weekday(weekday);
  for (size_t n = 1; n < days.size(); ++n) {
    const ExactDay &day = days[n];
    MonthPage::Cell cell;
    cell.date = day.date;
    cell.isToday = day.date == today;
    const LimbSpan &tithi = day.limbs.tithis.front(), &nakshatra = day.limbs.nakshatras.front();
    cell.tithi = WithEnd(words.Tithi(tithi.number), tithi, day, words);
    cell.nakshatra = WithEnd(words.Nakshatra(nakshatra.number), nakshatra, day, words);
    if (day.sunrise.Happens() && day.sunset.Happens())
      cell.sun = QStringLiteral("%1 - %2").arg(words.Time(day.sunrise.at, day.date), words.Time(day.sunset.at, day.date));
    else
      cell.sun = day.sunrise.Happens() ? words.Sunset(day) : words.Sunrise(day);
    for (const MonthMark &mark : MarksOf(day, days[n - 1].month, words))
      cell.marks << (mark.at > 0 ? QStringLiteral("%1 %2").arg(mark.text, words.TimeShort(mark.at, day.date)) : mark.text);
    cell.spoken =
        (QStringList{QLocale::c().toString(day.date, QStringLiteral("dddd d")), cell.tithi, cell.nakshatra, cell.sun} + cell.marks)
            .join(QStringLiteral(", "));
    page.cells.push_back(std::move(cell));
  }
  page.subtitle = words.Word("MonthOf").arg(
      LunarMonths({days.begin() + 1, days.end()}, words),
      words.Word("SamvatValue").arg(QString::number(days.back().month.vikrama), QString::number(days.back().month.shaka)),
      words.PlaceAndRules(days[1].begins));
  return page;
}
