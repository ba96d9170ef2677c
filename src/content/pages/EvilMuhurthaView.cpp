// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/EvilMuhurthaView.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "analysis/EvilMuhurthaPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/PageScroll.h"
#include "content/pages/PeriodClock.h"
#include "content/pages/SpanStrip.h"

namespace {

constexpr int RoomyHeight = 560, RoomyWidth = 600;  // pixels from which the rows take the normal size

enum Column { Name, Begin, End, Mark };

// The elements of each row, less the ending of the column.
constexpr const char *Elements[4] = {"lblKulik", "lblKalBl", "lblYamGhan", "lblKantak"};

}  // namespace

EvilMuhurthaView::EvilMuhurthaView(QWidget *parent)
    : PageView(parent), description(new QLabel), stripTitle(new QLabel), strip(new SpanStrip) {
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
  stripTitle->setText(tr("From sunrise to sunset"));
  stripTitle->setProperty("role", QStringLiteral("head"));
  QFont bold = stripTitle->font();
  bold.setBold(true);
  stripTitle->setFont(bold);

  auto *times = new Card;
  times->Body()->addWidget(description);
  times->Body()->addWidget(table, 1);
  auto *day = new Card;
  day->Body()->setContentsMargins(Grid::CardPadding, Grid::Gap + 4, Grid::CardPadding, Grid::Gap + 4);
  day->Body()->addWidget(stripTitle);
  day->Body()->addWidget(strip);
  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap * 2);
  layout->addWidget(times);
  layout->addWidget(day);
  layout->addStretch(1);
  PageScroll::Fill(this, content);
}

void EvilMuhurthaView::Fill(SelvaniDailyMod &session) {
  const EvilMuhurthaPage page = FillEvilMuhurthaPage(session.TodayChart());
  table->Head(Name).setText(page.lblMuhurthaName);
  table->Head(Begin).setText(page.lblStartTime);
  table->Head(End).setText(page.lblEndTime);
  description->setText(page.lblKulikadiDesc);
  const QDateTime &moment = session.AnalysisMoment();
  SpanStrip::Span day;
  day.from = PeriodClock::MinutesOfDay(session.TodayChart().SunRiseTime());
  day.to = PeriodClock::MinutesOfDay(session.TodayChart().SunSetTime());
  day.ground = SpanStrip::Tone::Good;
  day.moment = moment.time().hour() * 60 + moment.time().minute();
  day.momentWord = PeriodClock::Word(moment);
  day.namesAbove = true;
  int running = -1;
  QStringList spoken;
  for (int row = 0; row < 4; ++row) {
    const EvilMuhurthaPage::Row &period = page.rows[static_cast<size_t>(row)];
    table->Cell(row, Name).setText(period.head);
    table->Cell(row, Begin).setText(period.start);
    table->Cell(row, End).setText(period.end);
    const double endClock = period.startClock + period.length;
    const bool now = PeriodClock::Holds(period.startClock, endClock, moment.time());
    // Two of them may overlap; the first row of those that run is lit, each has the word.
    if (now && running < 0) running = row;
    table->Cell(row, Mark).setText(now ? day.momentWord : QString());
    table->SetTone(row, Mark, CaptionTable::Tone::Warn);
    table->SetTone(row, Name, CaptionTable::Tone::Bad);
    const int begin = PeriodClock::MinutesOfDay(period.startClock), end = PeriodClock::MinutesOfDay(endClock);
    if (begin < end) {
      day.parts.push_back({double(begin), double(end), period.head, SpanStrip::Tone::Bad});
      day.from = std::min(day.from, double(begin));
      day.to = std::max(day.to, double(end));
    }
    spoken << tr("%1 from %2 to %3").arg(period.head, period.start, period.end);
  }
  table->SetRunningRow(running);
  strip->setAccessibleName(stripTitle->text());
  strip->setAccessibleDescription(spoken.join(QStringLiteral(", ")));
  day.ticks = SpanStrip::HourTicks(int(day.from), int(day.to));
  strip->SetSpan(std::move(day));
}

void EvilMuhurthaView::ApplyFonts(const SetFonts &fonts) {
  fontsShown = fonts;
  roomyShown = IsRoomy();
  table->ApplyFonts(fonts, roomyShown);
  for (QWidget *caption : std::initializer_list<QWidget *>{description, stripTitle, strip}) fonts.SetSmallFont(*caption);
}

bool EvilMuhurthaView::IsRoomy() const { return height() >= RoomyHeight && width() >= RoomyWidth; }

void EvilMuhurthaView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  if (IsRoomy() != roomyShown) ApplyFonts(SetFonts(fontsShown));
}
