// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PlanetTableView.h"

#include <QVBoxLayout>

#include "analysis/PlanetTablePage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/DignityTone.h"
#include "content/pages/PageScroll.h"

namespace {

enum Column { Symbol, Planet, Rashi, Degrees, Nak, NakLord, Pada, Motion, State };

}  // namespace

PlanetTableView::PlanetTableView(QWidget *parent) : PageView(parent) {
  setObjectName(QStringLiteral("framPlPos"));
  table = new CaptionTable({{.element = QStringLiteral("imgPlanet"), .picture = true},
                            {.element = QStringLiteral("lblPlanets"), .head = QStringLiteral("lblPlntHead"), .strong = true},
                            {.element = QStringLiteral("lblRashi"), .head = QStringLiteral("lblRashiHead")},
                            {.element = QStringLiteral("lblDegrees"), .head = QStringLiteral("lblPDegreeHead")},
                            {.element = QStringLiteral("lblNak"), .head = QStringLiteral("lblPNakHead")},
                            {.element = QStringLiteral("lblNakLord"), .head = QStringLiteral("lblPNakLHead")},
                            {.element = QStringLiteral("lblPad"), .head = QStringLiteral("lblPadaHead"), .alignment = Qt::AlignHCenter},
                            {.element = QStringLiteral("lblDir"), .head = QStringLiteral("lblDirHead")},
                            {.element = QStringLiteral("lblState"), .head = QStringLiteral("lblPStateHead")}},
                           13);
  auto *card = new Card;
  card->Body()->addWidget(table, 1);
  card->Body()->addStretch(0);
  PageScroll::Fill(this, card);
  SetChart(Chart::Birth);
}

void PlanetTableView::SetChart(Chart which) {
  chart = which;
  setAccessibleName(which == Chart::Birth ? tr("Planets at birth") : tr("Planets now"));
}

void PlanetTableView::Fill(SelvaniDailyMod &session) {
  const clsPlanets &planets = chart == Chart::Birth ? session.BirthChart() : session.TodayChart();
  const PlanetTablePage page = FillPlanets(planets);
  const std::pair<int, const QString *> heads[] = {
      {Planet, &page.lblPlntHead},   {Rashi, &page.lblRashiHead}, {Degrees, &page.lblPDegreeHead}, {Nak, &page.lblPNakHead},
      {NakLord, &page.lblPNakLHead}, {Pada, &page.lblPadaHead},   {Motion, &page.lblDirHead},      {State, &page.lblPStateHead}};
  for (const auto &[column, caption] : heads) table->Head(column).setText(*caption);
  for (int i = 0; i < static_cast<int>(page.rows.size()); ++i) {
    const PlanetTablePage::Row &row = page.rows[static_cast<size_t>(i)];
    table->SetPicture(i, Symbol, QStringLiteral("planet%1").arg(i, 2, 10, QLatin1Char('0')));
    const std::pair<int, const QString *> cells[] = {{Planet, &row.lblPlanets}, {Rashi, &row.lblRashi},     {Degrees, &row.lblDegrees},
                                                     {Nak, &row.lblNak},        {NakLord, &row.lblNakLord}, {Pada, &row.lblPad},
                                                     {Motion, &row.lblDir},     {State, &row.lblState}};
    for (const auto &[column, caption] : cells) table->Cell(i, column).setText(*caption);
    table->SetTone(i, Motion, i > 0 && planets.RetroGrade(i) ? CaptionTable::Tone::Warn : CaptionTable::Tone::Plain);
    table->SetTone(i, State, ToneOfDignity(planets.ExaltClassEng(i)));
  }
}

void PlanetTableView::ApplyFonts(const SetFonts &fonts) { table->ApplyFonts(fonts); }
