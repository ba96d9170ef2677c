// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/HoraView.h"

#include <QLabel>

#include "analysis/HoraPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/TimeText.h"
#include "content/pages/ExactSpan.h"
#include "content/pages/PeriodClock.h"

namespace {

enum Column { Symbol, Name, Time, Mark };

// The planet index of a hora's lord, by type: Sun, Venus, Mercury, Moon, Saturn, Jupiter, Mars.
constexpr int Lords[7] = {1, 3, 2, 7, 6, 5, 4};

constexpr int HouseHora = 60;  // minutes

// The house rule's day as an axis that runs on past midnight.
SpanStrip::Span HouseDay(const HoraPage &page, const QDateTime &moment, bool beforeSunrise) {
  SpanStrip::Span day;
  day.from = MinuteOfDay(page.rows[0].startClock);
  day.to = day.from + HouseHora * static_cast<int>(page.rows.size());
  day.ticks = SpanStrip::HourTicks(static_cast<int>(day.from), static_cast<int>(day.to));
  day.moment = beforeSunrise ? -1 : moment.time().hour() * 60 + moment.time().minute();
  day.momentWord = PeriodClock::Word(moment);
  return day;
}

}  // namespace

HoraView::HoraView(QWidget *parent)
    : DayNightView({QStringLiteral("framHoraChrt"),
                    {QStringLiteral("lblDayHoraHead"), QStringLiteral("lblNightHoraHead")},
                    {QStringLiteral("lblTimeRangeHead"), QStringLiteral("lblTimeRangeHead2")},
                    QStringLiteral("lblHoraNote")},
                   {{.element = QStringLiteral("imgHora"), .picture = true},
                    {.element = QStringLiteral("lblHoraName"), .strong = true},
                    {.element = QStringLiteral("lblHoraTime"), .alignment = Qt::AlignRight, .oneLine = true},
                    {.element = QStringLiteral("lblHoraMark"), .strong = true, .alignment = Qt::AlignRight, .oneLine = true}},
                   Time, 12, parent) {
  setAccessibleName(tr("Horas of the day and the night"));
}

void HoraView::Fill(SelvaniDailyMod &session) {
  const HoraPage page = FillHoraPage(session.TodayChart());
  Title(0).setText(page.lblDayHoraHead);
  Title(1).setText(page.lblNightHoraHead);
  TimeHead(0).setText(page.lblTimeRangeHead);
  TimeHead(1).setText(page.lblTimeRangeHead2);
  SetExact(page.exact);
  const QDateTime &moment = session.AnalysisMoment();
  const QString momentWord = PeriodClock::Word(moment);
  const bool before = !page.exact && PeriodClock::IsBeforeSunrise(page.rows[0].startClock, moment.time());
  int running = page.exact ? ExactSpan::RowAt(page.rows, page.exact->now) : -1;
  SpanStrip::Span day = page.exact ? ExactSpan::OfDay(*page.exact, momentWord) : HouseDay(page, moment, before);
  for (int row = 0; row < static_cast<int>(page.rows.size()); ++row) {
    const auto i = static_cast<size_t>(row);
    CaptionTable &table = TableOf(row);
    table.SetPicture(RowOf(row), Symbol,
                     QStringLiteral("planet%1").arg(Lords[static_cast<size_t>(page.rows[i].type - 1)], 2, 10, QLatin1Char('0')));
    const QString &name = page.lblHoraName[i];
    table.Cell(RowOf(row), Name).setText(name);
    table.Cell(RowOf(row), Time).setText(page.lblHoraTime[i]);
    const double begins = page.exact ? page.rows[i].begins : day.from + row * HouseHora;
    const double ends = page.exact ? page.rows[i].ends : begins + HouseHora;
    if (begins < ends) day.parts.push_back({begins, ends, name, SpanStrip::Tone::Plain, name.left(3)});
    if (!page.exact && !before && PeriodClock::Holds(page.rows[i].startClock, page.rows[i].startClock + 1, moment.time())) running = row;
  }
  SetStrip(std::move(day), tr("The day and the night from sunrise to sunrise"), StripPlace::WhereRoomy);
  MarkRunning(running, Mark, momentWord);
  SetBeforeSunrise(before);
}
