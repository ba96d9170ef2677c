// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/AshtakavargaView.h"

#include <QComboBox>

#include "analysis/SelvaniDailyMod.h"
#include "chart/Kundali.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/BirthOrDay.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/CellGrid.h"
#include "content/pages/ChartFill.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"
#include "platform/UserSettings.h"

namespace {

constexpr int Signs = 12, SumColumn = Signs;
constexpr int ChartHeight = 400;  // about as wide as high
constexpr double WarmestShare = 0.45;

// From the card's colour to half gold, on which the ink stays readable in both schemes. share: 0 to 1.
QColor Heat(double share) {
  const ChartPalette &palette = Theme::Current().chart;
  return ChartPalette::Mixed(palette.card, palette.gold, WarmestShare * share);
}

}  // namespace

AshtakavargaView::AshtakavargaView(QWidget *parent)
    : PageView(parent),
      which(new BirthOrDay),
      cmbAshtak(which->AddList(QStringLiteral("cmbAshtak"), tr("Points shown in the chart"))),
      table(new CellGrid(QStringLiteral("lblAshtak"), AshtakavargaPage::Rows, Signs + 1)),
      lblMost(MakeCardLine(QStringLiteral("lblAshtakMost"), "value")),
      lblFewest(MakeCardLine(QStringLiteral("lblAshtakFewest"), "value")),
      chartHead(MakeCardHead(QStringLiteral("lblAshtakHead"))),
      chart(new Kundali) {
  setObjectName(QStringLiteral("framAshtak"));
  setAccessibleName(tr("Ashtakavarga"));
  chart->setObjectName(QStringLiteral("kunAshtak"));
  chart->setMinimumSize(280, 280);
  chart->setMaximumHeight(ChartHeight);

  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(which, 0, Qt::AlignLeft);
  auto *figures = new Card;
  figures->Body()->addWidget(table, 1);
  figures->Body()->addWidget(lblMost);
  figures->Body()->addWidget(lblFewest);
  figures->Body()->addStretch(0);
  auto *drawing = new Card;
  drawing->Body()->addWidget(chartHead);
  drawing->Body()->addWidget(chart, 1);
  drawing->Body()->addStretch(0);
  auto *halves = new SideBySide(figures, drawing);
  halves->SetStretch(5, 4);
  column->addWidget(halves, 1);
  PageScroll::Fill(this, content);
  connect(which, &BirthOrDay::Changed, this, &AshtakavargaView::ShowChosen);
}

void AshtakavargaView::Fill(SelvaniDailyMod &session) {
  settings = &session.Settings();
  pages = {FillAshtakavarga(session.BirthChart()), FillAshtakavarga(session.TodayChart())};
  QStringList names;
  for (const AshtakavargaPage::Row &row : pages[BirthOrDay::Birth].rows) names << row.name;
  which->SetList(names, AshtakavargaPage::Total);
  ShowChosen();
}

void AshtakavargaView::ShowChosen() {
  if (!settings || cmbAshtak->currentIndex() < 0) return;
  const AshtakavargaPage &page = pages[which->Chosen()];
  const int chosen = cmbAshtak->currentIndex();
  for (int sign = 1; sign <= Signs; ++sign) {
    table->ColumnHead(sign - 1).setText(page.narrowSign[static_cast<size_t>(sign)]);
    table->ColumnHead(sign - 1).setToolTip(page.signName[static_cast<size_t>(sign)]);
  }
  table->ColumnHead(SumColumn).setText(page.lblSumHead);
  for (int i = 0; i < AshtakavargaPage::Rows; ++i) {
    const AshtakavargaPage::Row &row = page.rows[static_cast<size_t>(i)];
    table->RowHead(i).setText(row.name);
    for (int sign = 1; sign <= Signs; ++sign) {
      const int points = row.points[static_cast<size_t>(sign)];
      QLabel &cell = table->Cell(i, sign - 1);
      cell.setText(QString::number(points));
      cell.setToolTip(QStringLiteral("%1, %2: %3").arg(row.name, page.signName[static_cast<size_t>(sign)]).arg(points));
      table->SetGround(i, sign - 1, Heat(row.Share(sign)));
    }
    table->Cell(i, SumColumn).setText(QString::number(row.sum));
  }
  table->SetRunningRow(chosen);
  lblMost->setText(page.lblMost);
  lblFewest->setText(page.lblFewest);

  const AshtakavargaPage::Row &row = page.rows[static_cast<size_t>(chosen)];
  chartHead->setText(row.name);
  chart->setAccessibleName(row.name);
  chart->SetSpokenNames({{page.signName.begin() + 1, page.signName.end()}, {}});
  FillChart(*chart, page.ChartOf(static_cast<size_t>(chosen)), *settings);
}

void AshtakavargaView::ApplyFonts(const SetFonts &fonts) {
  which->ApplyFonts(fonts);
  table->ApplyFonts(fonts);
  for (QLabel *label : {lblMost, lblFewest, chartHead}) fonts.SetSmallFont(*label);
  fonts.SetKundaliFont(*chart);
}
