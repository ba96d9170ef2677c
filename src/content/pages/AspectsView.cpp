// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/AspectsView.h"

#include <QComboBox>
#include <QGridLayout>

#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/BirthOrDay.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/CellGrid.h"
#include "content/pages/DignityTone.h"
#include "content/pages/PageScroll.h"

namespace {

enum SignColumn { Planet, Dignity, Standing, Combust, Sees, SeenBy, With };
enum DegreeColumn { DegreePlanet, ByDegrees, Western };

}  // namespace

AspectsView::AspectsView(QWidget *parent)
    : PageView(parent),
      which(new BirthOrDay),
      cmbAspectKind(which->AddList(QStringLiteral("cmbAspectKind"), tr("Kind of aspects in the grid"))),
      grid(new CellGrid(QStringLiteral("lblAspect"), AspectsPage::Points, AspectsPage::Points)),
      lblAspectHelp(MakeCardLine(QStringLiteral("lblAspectHelp"))) {
  setObjectName(QStringLiteral("framAspects"));
  setAccessibleName(tr("Aspects"));
  bySign = new CaptionTable({{.element = QStringLiteral("lblAspPlanet"), .head = QStringLiteral("lblAspPlanetHead"), .strong = true},
                             {.element = QStringLiteral("lblAspDignity"), .head = QStringLiteral("lblAspDignityHead")},
                             {.element = QStringLiteral("lblAspStanding"), .head = QStringLiteral("lblAspStandingHead")},
                             {.element = QStringLiteral("lblAspCombust"), .head = QStringLiteral("lblAspCombustHead")},
                             {.element = QStringLiteral("lblAspSees"), .head = QStringLiteral("lblAspSeesHead")},
                             {.element = QStringLiteral("lblAspSeenBy"), .head = QStringLiteral("lblAspSeenByHead")},
                             {.element = QStringLiteral("lblAspWith"), .head = QStringLiteral("lblAspWithHead")}},
                            AspectsPage::Points);
  byDegrees = new CaptionTable(
      {{.element = QStringLiteral("lblDegPlanet"), .head = QStringLiteral("lblDegPlanetHead"), .strong = true, .oneLine = true},
       {.element = QStringLiteral("lblDegAspects"), .head = QStringLiteral("lblDegAspectsHead")},
       {.element = QStringLiteral("lblDegWestern"), .head = QStringLiteral("lblDegWesternHead")}},
      AspectsPage::Points);
  auto *columns = static_cast<QGridLayout *>(byDegrees->layout());
  columns->setColumnStretch(ByDegrees, 2);
  columns->setColumnStretch(Western, 3);
  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(which, 0, Qt::AlignLeft);
  auto *gridCard = new Card;
  gridCard->Body()->addWidget(grid);
  gridCard->Body()->addWidget(lblAspectHelp);
  column->addWidget(gridCard);
  for (CaptionTable *table : {bySign, byDegrees}) {
    auto *card = new Card;
    card->Body()->addWidget(table);
    column->addWidget(card);
  }
  column->addStretch(1);
  PageScroll::Fill(this, content);
  connect(which, &BirthOrDay::Changed, this, &AspectsView::ShowChosen);
}

void AspectsView::Fill(SelvaniDailyMod &session) {
  pages = {FillAspects(session.BirthChart()), FillAspects(session.TodayChart())};
  filled = true;
  const auto &kinds = pages[BirthOrDay::Birth].kindNames;
  which->SetList({kinds.begin(), kinds.end()}, AspectsPage::BySign);
  ShowChosen();
}

void AspectsView::ShowChosen() {
  if (!filled || cmbAspectKind->currentIndex() < 0) return;
  const AspectsPage &page = pages[which->Chosen()];
  ShowGrid(page);
  const std::pair<SignColumn, const QString *> heads[] = {
      {Planet, &page.lblPlanetHead}, {Dignity, &page.lblDignityHead}, {Standing, &page.lblStandingHead}, {Combust, &page.lblCombustHead},
      {Sees, &page.lblSeesHead},     {SeenBy, &page.lblSeenByHead},   {With, &page.lblWithHead}};
  for (const auto &[column, words] : heads) bySign->Head(column).setText(*words);
  byDegrees->Head(DegreePlanet).setText(page.lblPlanetHead);
  byDegrees->Head(ByDegrees).setText(page.lblByDegreesHead);
  byDegrees->Head(Western).setText(page.lblWesternHead);
  for (int i = 0; i < AspectsPage::Points; ++i) {
    const AspectsPage::Row &row = page.rows[static_cast<size_t>(i)];
    const std::pair<SignColumn, const QString *> cells[] = {{Planet, &row.name},        {Dignity, &row.dignity}, {Standing, &row.standing},
                                                            {Combust, &row.combustion}, {Sees, &row.sees},       {SeenBy, &row.seenBy},
                                                            {With, &row.with}};
    for (const auto &[column, words] : cells) bySign->Cell(i, column).setText(*words);
    bySign->SetTone(i, Dignity, ToneOfDignity(row.dignityMark));
    bySign->SetTone(i, Combust, row.combust ? CaptionTable::Tone::Warn : CaptionTable::Tone::Plain);
    byDegrees->Cell(i, DegreePlanet).setText(row.name);
    byDegrees->Cell(i, ByDegrees).setText(row.byDegrees);
    byDegrees->Cell(i, Western).setText(row.western);
  }
}

void AspectsView::ShowGrid(const AspectsPage &page) {
  const size_t kind = static_cast<size_t>(cmbAspectKind->currentIndex());
  for (int row = 0; row < AspectsPage::Points; ++row) {
    const AspectsPage::Row &planet = page.rows[static_cast<size_t>(row)];
    grid->RowHead(row).setText(planet.name);
    grid->ColumnHead(row).setText(planet.narrowName);
    grid->ColumnHead(row).setToolTip(planet.name);
    for (int column = 0; column < AspectsPage::Points; ++column) {
      const AspectsPage::Pair &pair = page.grid[static_cast<size_t>(row)][static_cast<size_t>(column)];
      QLabel &cell = grid->Cell(row, column);
      cell.setText(pair.text[kind].isEmpty() ? QStringLiteral("·") : pair.text[kind]);
      cell.setToolTip(pair.told[kind]);
      grid->SetGround(row, column,
                      row == column               ? Theme::Current().chart.line
                      : pair.text[kind].isEmpty() ? QColor()
                                                  : Theme::Current().selection);
      if (row == column) cell.setText({});
    }
  }
  lblAspectHelp->setText(page.HelpOf(kind));
}

void AspectsView::ApplyFonts(const SetFonts &fonts) {
  which->ApplyFonts(fonts);
  fonts.SetSmallFont(*lblAspectHelp);
  grid->ApplyFonts(fonts);
  for (CaptionTable *table : {bySign, byDegrees}) table->ApplyFonts(fonts);
}
