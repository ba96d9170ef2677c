// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ChogadiyaView.h"

#include <QLabel>

#include "analysis/ChogadiyaPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/TimeText.h"
#include "content/pages/ExactSpan.h"
#include "content/pages/PeriodClock.h"
#include "panchang/Periods.h"

namespace {

enum Column { Name, Judged, Time, Mark };

struct Verdict {
  CaptionTable::Tone tone;
  SpanStrip::Tone span;
  const char *word;
};

// By the judgement: bad, fair, good.
constexpr Verdict Verdicts[3] = {
    {CaptionTable::Tone::Bad, SpanStrip::Tone::Bad, QT_TRANSLATE_NOOP("ChogadiyaView", "bad")},
    {CaptionTable::Tone::Fair, SpanStrip::Tone::Plain, QT_TRANSLATE_NOOP("ChogadiyaView", "fair")},
    {CaptionTable::Tone::Good, SpanStrip::Tone::Good, QT_TRANSLATE_NOOP("ChogadiyaView", "good")},
};

}  // namespace

ChogadiyaView::ChogadiyaView(QWidget *parent)
    : DayNightView({QStringLiteral("framChog"),
                    {QStringLiteral("lblDayChogHead"), QStringLiteral("lblNightChogHead")},
                    {QStringLiteral("lblTimeHead1"), QStringLiteral("lblTimeHead2")},
                    QStringLiteral("lblChogDesc")},
                   {{.element = QStringLiteral("lblChogName"), .strong = true},
                    {.element = QStringLiteral("lblChogVerdict"), .pill = true},
                    {.element = QStringLiteral("lblChogTime"), .oneLine = true},
                    {.element = QStringLiteral("lblChogMark"), .strong = true, .alignment = Qt::AlignRight}},
                   Time, 8, parent) {
  setAccessibleName(tr("Chogadiya of the day and the night"));
}

void ChogadiyaView::Fill(SelvaniDailyMod &session) {
  const ChogadiyaPage page = FillChogadiyaPage(session.TodayChart());
  Title(0).setText(page.lblDayChogHead);
  Title(1).setText(page.lblNightChogHead);
  TimeHead(0).setText(page.lblTimeHead1);
  TimeHead(1).setText(page.lblTimeHead2);
  SetNote(page.lblChogDesc);
  SetExact(page.exact);
  const QDateTime &moment = session.AnalysisMoment();
  const QString momentWord = PeriodClock::Word(moment);
  const bool before = !page.exact && PeriodClock::IsBeforeSunrise(page.rows[0].startClock, moment.time());
  int running = page.exact ? ExactSpan::RowAt(page.rows, page.exact->now) : -1;
  SpanStrip::Span day;
  if (page.exact) day = ExactSpan::OfDay(*page.exact, momentWord);
  // By the house rule the axis is the clock's and runs on past midnight, as the night does.
  double place = page.exact ? 0 : day.from = MinuteOfDay(page.rows[0].startClock);
  for (int row = 0; row < static_cast<int>(page.rows.size()); ++row) {
    const auto i = static_cast<size_t>(row);
    const ChogadiyaPage::Row &period = page.rows[i];
    const Verdict &verdict = Verdicts[static_cast<size_t>(Periods::ChogadiyaJudgement(period.type))];
    CaptionTable &table = TableOf(row);
    table.Cell(RowOf(row), Name).setText(page.lblChogName[i]);
    table.Cell(RowOf(row), Judged).setText(tr(verdict.word));
    table.SetTone(RowOf(row), Judged, verdict.tone);
    table.Cell(RowOf(row), Time).setText(page.lblChogTime[i]);
    const double endClock = period.startClock + period.span;
    const double begins = page.exact ? period.begins : place;
    const double ends = page.exact ? period.ends : place + PeriodClock::Minutes(period.startClock, endClock);
    place = ends;
    if (begins < ends || !page.exact) day.parts.push_back({begins, ends, page.lblChogName[i], verdict.span, page.lblChogName[i].left(2)});
    if (!page.exact && !before && running < 0 && PeriodClock::Holds(period.startClock, endClock, moment.time())) running = row;
  }
  if (!page.exact) {
    day.to = place;
    day.ticks = SpanStrip::HourTicks(int(day.from), int(day.to));
    day.moment = before ? -1 : moment.time().hour() * 60 + moment.time().minute();
    day.momentWord = momentWord;
  }
  SetStrip(std::move(day), tr("The day and the night from sunrise to sunrise"));
  MarkRunning(running, Mark, momentWord);
  SetBeforeSunrise(before);
}
