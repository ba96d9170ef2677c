// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/EvilMuhurthaView.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "analysis/EvilMuhurthaPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/TimeText.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/ExactSpan.h"
#include "content/pages/PageScroll.h"
#include "content/pages/PeriodClock.h"
#include "content/pages/SpanStrip.h"

namespace {

constexpr QSize Roomy(600, 560);  // pixels from which the rows take the normal size

enum Column { Name, Begin, End, Mark };
enum Item { Times, Strip, Rest };  // of the page, from the top

// The house rule's day from sunrise to sunset, in minutes of the clock.
SpanStrip::Span HouseDay(const clsPlanets &chart, const QDateTime &moment) {
  SpanStrip::Span day;
  day.from = MinuteOfDay(chart.SunRiseTime());
  day.to = MinuteOfDay(chart.SunSetTime());
  day.moment = moment.time().hour() * 60 + moment.time().minute();
  day.momentWord = PeriodClock::Word(moment);
  return day;
}

// The elements of each row, less the ending of the column.
constexpr const char *Elements[4] = {"lblKulik", "lblKalBl", "lblYamGhan", "lblKantak"};

}  // namespace

EvilMuhurthaView::EvilMuhurthaView(QWidget *parent)
    : PageView(parent), description(new QLabel), exactHead(new QLabel), stripTitle(MakeHead({})), strip(new SpanStrip) {
  setObjectName(QStringLiteral("framKulik"));
  setAccessibleName(tr("Periods of the day to keep clear of"));
  table = new CaptionTable({{.element = QStringLiteral("lblMuhurtha"), .head = QStringLiteral("lblMuhurthaName"), .strong = true},
                            {.element = QStringLiteral("lblMuhurthaBegin"), .head = QStringLiteral("lblStartTime")},
                            {.element = QStringLiteral("lblMuhurthaEnd"), .head = QStringLiteral("lblEndTime")},
                            {.element = QStringLiteral("lblMuhurthaMark"), .strong = true, .alignment = Qt::AlignRight}},
                           4);
  table->SetRoomy();
  for (int row = 0; row < 4; ++row) {
    const QString element = QLatin1String(Elements[row]);
    table->Cell(row, Name).setObjectName(element + QStringLiteral("Hd"));
    table->Cell(row, Begin).setObjectName(element + QStringLiteral("TmS"));
    table->Cell(row, End).setObjectName(element + QStringLiteral("TmE"));
  }
  description->setObjectName(QStringLiteral("lblKulikadiDesc"));
  description->setProperty("role", QStringLiteral("caption"));
  description->setWordWrap(true);
  description->setContentsMargins(10, 4, 10, 4);
  exactHead->setObjectName(QStringLiteral("lblExactHead"));
  exactHead->setProperty("role", QStringLiteral("caption"));
  exactHead->setWordWrap(true);
  exactHead->setContentsMargins(10, 4, 10, 0);
  exactHead->hide();
  stripTitle->setText(tr("From sunrise to sunset"));

  auto *times = new Card;
  times->Body()->addWidget(exactHead);
  times->Body()->addWidget(description);
  times->Body()->addWidget(table, 1);
  times->Body()->addStretch(0);
  auto *day = new Card;
  stripCard = day;
  day->Body()->setContentsMargins(Grid::CardPadding, Grid::Gap + 4, Grid::CardPadding, Grid::Gap + 4);
  day->Body()->addWidget(stripTitle);
  day->Body()->addWidget(strip, 1);
  day->Body()->addStretch(0);
  auto *content = new QWidget;
  column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(times);
  column->addWidget(day);
  column->addStretch(1);
  PageScroll::Fill(this, content);
}

void EvilMuhurthaView::Fill(SelvaniDailyMod &session) {
  const EvilMuhurthaPage page = FillEvilMuhurthaPage(session.TodayChart());
  table->Head(Name).setText(page.lblMuhurthaName);
  table->Head(Begin).setText(page.lblStartTime);
  table->Head(End).setText(page.lblEndTime);
  description->setText(page.lblKulikadiDesc);
  exactHead->setText(page.exact ? page.exact->head : QString());
  exactHead->setVisible(page.exact.has_value());
  const QDateTime &moment = session.AnalysisMoment();
  SpanStrip::Span day = page.exact ? ExactSpan::OfDaylight(*page.exact, PeriodClock::Word(moment)) : HouseDay(session.TodayChart(), moment);
  day.ground = SpanStrip::Tone::Good;
  day.namesAbove = true;
  int running = -1;
  QStringList spoken;
  for (int row = 0; row < 4; ++row) {
    const EvilMuhurthaPage::Row &period = page.rows[static_cast<size_t>(row)];
    table->Cell(row, Name).setText(period.head);
    table->Cell(row, Begin).setText(period.start);
    table->Cell(row, End).setText(period.end);
    const double endClock = period.startClock + period.length;
    const bool now = page.exact ? page.exact->now >= period.begins && page.exact->now < period.ends
                                : PeriodClock::Holds(period.startClock, endClock, moment.time());
    // Two of them may overlap; the first row of those that run is lit, each has the word.
    if (now && running < 0) running = row;
    table->Cell(row, Mark).setText(now ? day.momentWord : QString());
    table->SetTone(row, Mark, CaptionTable::Tone::Warn);
    table->SetTone(row, Name, CaptionTable::Tone::Bad);
    const double begin = page.exact ? period.begins : MinuteOfDay(period.startClock);
    const double end = page.exact ? period.ends : MinuteOfDay(endClock);
    spoken << tr("%1 from %2 to %3").arg(period.head, period.start, period.end);
    if (begin >= end) continue;
    day.parts.push_back({begin, end, period.head, SpanStrip::Tone::Bad, {}, tr("%1 to %2").arg(period.start, period.end)});
    day.from = std::min(day.from, begin);
    day.to = std::max(day.to, end);
  }
  table->SetRunningRow(running);
  strip->setAccessibleName(stripTitle->text());
  strip->setAccessibleDescription(spoken.join(QStringLiteral(", ")));
  if (!page.exact) day.ticks = SpanStrip::HourTicks(int(day.from), int(day.to));
  stripCard->setVisible(day.from < day.to && !day.parts.empty());
  strip->SetSpan(std::move(day));
}

void EvilMuhurthaView::ApplyFonts(const SetFonts &fonts) {
  fontsShown = fonts;
  sizeShown = TextSize();
  const bool large = sizeShown == CaptionTable::TextSize::Large;
  table->ApplyFonts(fonts, sizeShown);
  strip->SetTall(large);
  for (const auto &[item, stretch] : {std::pair{Times, 3}, {Strip, 2}}) column->setStretch(item, large ? stretch : 0);
  column->setStretch(Rest, large ? 0 : 1);
  for (QWidget *caption : std::initializer_list<QWidget *>{description, exactHead, stripTitle, strip})
    large ? fonts.SetNormalFont(*caption) : fonts.SetSmallFont(*caption);
}

CaptionTable::TextSize EvilMuhurthaView::TextSize() const { return CaptionTable::TextSizeFor(size(), Roomy); }

void EvilMuhurthaView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  if (TextSize() != sizeShown) ApplyFonts(SetFonts(fontsShown));
}
