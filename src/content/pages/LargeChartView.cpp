// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/LargeChartView.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>

#include "analysis/SelvaniDailyMod.h"
#include "chart/Kundali.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/ChartFill.h"
#include "content/pages/PageScroll.h"

LargeChartView::LargeChartView(QWidget *parent) : PageView(parent) {
  setObjectName("framKundali");
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(PageScroll::Ring, PageScroll::Ring, PageScroll::Ring, PageScroll::Ring);
  auto *card = new QFrame(this);
  card->setProperty("role", "card");
  column->addWidget(card);
  auto *lines = new QVBoxLayout(card);
  lines->setContentsMargins(Grid::CardPadding, 12, Grid::CardPadding, 12);
  auto *top = new QHBoxLayout;
  lblMoment = new QLabel(card);
  lblMoment->setObjectName("lblKundaliMoment");
  lblPlace = new QLabel(card);
  lblPlace->setObjectName("lblKundaliPlace");
  lblStyle = new QLabel(card);
  lblStyle->setObjectName("lblKundaliStyle");
  for (QLabel *label : {lblPlace, lblStyle}) label->setProperty("role", "caption");
  top->addWidget(lblMoment);
  top->addStretch();
  top->addWidget(lblPlace);
  lines->addLayout(top);
  lines->addStretch();
  lines->addWidget(lblStyle, 0, Qt::AlignHCenter);
  chart = new Kundali(this);
  chart->setObjectName("Kundali");
}

void LargeChartView::SetChartRect(const QRect &rect) {
  chartRect = rect;
  Place();
}

void LargeChartView::Place() {
  // The lines above the chart give way where the window is too low for them.
  for (QLabel *line : {lblMoment, lblPlace}) line->setVisible(chartRect.top() >= 34);
  chart->setGeometry(chartRect.intersected(rect().adjusted(2, 2, -2, -2)));
}

void LargeChartView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  Place();
}

void LargeChartView::Fill(SelvaniDailyMod &session) {
  const clsPlanets &today = session.TodayChart();
  const clsPlanets &shown = kindShown == 1 ? session.BirthChart() : today;
  QDateTime moment = shown.clsPerson().GetBirthDate();
  if (kindShown == 1) {
    FillChart(*chart, FillBirthKundali(session.BirthChart()), session.Settings());
  } else if (kindShown == 2) {
    FillChart(*chart, FillTransitKundali(today), session.Settings());
  } else {
    FillChart(*chart, FillSunriseKundali(today), session.Settings());
    moment = SunriseMoment(today);
  }
  lblMoment->setText(moment.toString(QStringLiteral("dddd, d MMMM yyyy, H:mm")));
  lblPlace->setText(shown.clsPerson().GetBirthPlace());
  const QStringList styles{tr("North Indian style"), tr("East Indian style"), tr("South Indian style")};
  lblStyle->setText(tr("%1, ayanamsha %2 %3")
                        .arg(styles.value(session.Settings().IntValue(SettingKeys::KundStyle)), shown.AyanamshName(),
                             clsPlanets::DecToDeg(shown.PlanetLongi(13))));
  chart->setAccessibleName(lblMoment->text());
}

void LargeChartView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetKundaliFont(*chart);
  fonts.SetSubHeadFont(*lblMoment);
  fonts.SetSmallFont(*lblPlace);
  fonts.SetSmallFont(*lblStyle);
}
