// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/LargeChartView.h"

#include <QLabel>
#include <QVBoxLayout>

#include "analysis/SelvaniDailyMod.h"
#include "chart/Kundali.h"
#include "content/SetFonts.h"
#include "content/pages/ChartFill.h"
#include "content/pages/HeadedCard.h"

namespace {

constexpr int ChartInset = 2;

}  // namespace

LargeChartView::LargeChartView(QWidget *parent) : PageView(parent) {
  setObjectName("framKundali");
  card = new HeadedCard(this, QStringLiteral("lblKundaliMoment"), QStringLiteral("lblKundaliPlace"), ChartInset);
  lblStyle = new QLabel(card);
  lblStyle->setObjectName("lblKundaliStyle");
  lblStyle->setProperty("role", "caption");
  card->Lines()->addWidget(lblStyle, 0, Qt::AlignHCenter);
  chart = new Kundali(this);
  chart->setObjectName("Kundali");
}

void LargeChartView::SetChartRect(const QRect &rect) {
  chartRect = rect;
  card->PlaceContent(*chart, chartRect);
}

void LargeChartView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  card->PlaceContent(*chart, chartRect);
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
  card->Head()->setText(moment.toString(QStringLiteral("dddd, d MMMM yyyy, H:mm")));
  card->Caption()->setText(shown.clsPerson().GetBirthPlace());
  const QStringList styles{tr("North Indian style"), tr("East Indian style"), tr("South Indian style")};
  const int style = session.Settings().IntValue(SettingKeys::KundStyle);
  lblStyle->setText(tr("%1, ayanamsha %2 %3").arg(styles.value(style), shown.AyanamshName(), clsPlanets::DecToDeg(shown.PlanetLongi(13))));
  const QString kinds[] = {tr("Birth chart"), tr("Transit chart"), tr("Sunrise chart")};
  chart->setAccessibleName(QStringLiteral("%1, %2, %3").arg(kinds[kindShown - 1], styles.value(style), card->Head()->text()));
}

void LargeChartView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetKundaliFont(*chart);
  fonts.SetSubHeadFont(*card->Head());
  fonts.SetSmallFont(*card->Caption());
  fonts.SetSmallFont(*lblStyle);
}
