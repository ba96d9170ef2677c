// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/HoraView.h"

#include <QLabel>

#include "analysis/HoraPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/pages/PeriodClock.h"

namespace {

enum Column { Symbol, Name, Time, Mark };

// The planet index of a hora's lord, by type: Sun, Venus, Mercury, Moon, Saturn, Jupiter, Mars.
constexpr int Lords[7] = {1, 3, 2, 7, 6, 5, 4};

}  // namespace

HoraView::HoraView(QWidget *parent)
    : DayNightView({QStringLiteral("framHoraChrt"),
                    {QStringLiteral("lblDayHoraHead"), QStringLiteral("lblNightHoraHead")},
                    {QStringLiteral("lblTimeRangeHead"), QStringLiteral("lblTimeRangeHead2")},
                    QStringLiteral("lblHoraNote")},
                   {{.element = QStringLiteral("imgHora"), .picture = true},
                    {.element = QStringLiteral("lblHoraName"), .strong = true},
                    {.element = QStringLiteral("lblHoraTime"), .alignment = Qt::AlignRight, .oneLine = true},
                    {.element = QStringLiteral("lblHoraMark"), .strong = true, .alignment = Qt::AlignRight}},
                   Time, 12, parent) {
  setAccessibleName(tr("Horas of the day and the night"));
}

void HoraView::Fill(SelvaniDailyMod &session) {
  const HoraPage page = FillHoraPage(session.TodayChart());
  Title(0).setText(page.lblDayHoraHead);
  Title(1).setText(page.lblNightHoraHead);
  TimeHead(0).setText(page.lblTimeRangeHead);
  TimeHead(1).setText(page.lblTimeRangeHead2);
  const QDateTime &moment = session.AnalysisMoment();
  const bool before = PeriodClock::IsBeforeSunrise(page.rows[0].startClock, moment.time());
  int running = -1;
  for (int row = 0; row < static_cast<int>(page.rows.size()); ++row) {
    const auto i = static_cast<size_t>(row);
    CaptionTable &table = TableOf(row);
    table.SetPicture(RowOf(row), Symbol,
                     QStringLiteral("planet%1").arg(Lords[static_cast<size_t>(page.rows[i].type - 1)], 2, 10, QLatin1Char('0')));
    table.Cell(RowOf(row), Name).setText(page.lblHoraName[i]);
    table.Cell(RowOf(row), Time).setText(page.lblHoraTime[i]);
    if (!before && PeriodClock::Holds(page.rows[i].startClock, page.rows[i].startClock + 1, moment.time())) running = row;
  }
  MarkRunning(running, Mark, PeriodClock::Word(moment));
  SetBeforeSunrise(before);
}
