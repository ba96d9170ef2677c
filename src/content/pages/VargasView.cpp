// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/VargasView.h"

#include <QComboBox>

#include "analysis/SelvaniDailyMod.h"
#include "chart/Kundali.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/BirthOrDay.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/CellGrid.h"
#include "content/pages/ChartFill.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"

namespace {

enum Column { Point, Rashi, Degrees, Varga, Standing };
constexpr int Navamsha = 6;
constexpr int SameSignRow = VargasPage::Vargas;  // under the vargas

}  // namespace

VargasView::VargasView(QWidget *parent)
    : PageView(parent),
      which(new BirthOrDay),
      cmbVarga(which->AddList(QStringLiteral("cmbVarga"), tr("Divisional chart"))),
      chartHead(MakeCardHead(QStringLiteral("lblVargaHead"))),
      chart(new Kundali),
      table(new CellGrid(QStringLiteral("lblVarga"), VargasPage::Vargas + 1, VargasPage::Points)),
      lblVargottama(MakeCardLine(QStringLiteral("lblVargottama"), "value")) {
  setObjectName(QStringLiteral("framVargas"));
  setAccessibleName(tr("Divisional charts"));
  chart->setObjectName(QStringLiteral("kunVarga"));
  list = new CaptionTable({{.element = QStringLiteral("lblVargaPoint"), .head = QStringLiteral("lblVargaPointHead"), .strong = true},
                           {.element = QStringLiteral("lblVargaRashi"), .head = QStringLiteral("lblVargaRashiHead")},
                           {.element = QStringLiteral("lblVargaDegrees"), .head = QStringLiteral("lblVargaDegreesHead"), .oneLine = true},
                           {.element = QStringLiteral("lblVargaSign"), .head = QStringLiteral("lblVargaSignHead"), .strong = true},
                           {.element = QStringLiteral("lblVargaStanding"), .head = QStringLiteral("lblVargaStandingHead")}},
                          VargasPage::Points);

  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(which, 0, Qt::AlignLeft);
  auto *drawing = new Card;
  drawing->Body()->addWidget(chartHead);
  chart->setMinimumSize(280, 280);
  drawing->Body()->addWidget(chart, 1);
  auto *words = new Card;
  words->Body()->addWidget(list, 1);
  words->Body()->addStretch(0);
  auto *halves = new SideBySide(drawing, words);
  halves->SetStretch(4, 5);
  column->addWidget(halves);
  auto *all = new Card;
  all->Body()->addWidget(table);
  all->Body()->addWidget(lblVargottama);
  column->addWidget(all);
  column->addStretch(0);
  PageScroll::Fill(this, content);
  connect(which, &BirthOrDay::Changed, this, &VargasView::ShowChosen);
}

void VargasView::Fill(SelvaniDailyMod &session) {
  settings = &session.Settings();
  pages = {FillVargas(session.BirthChart()), FillVargas(session.TodayChart())};
  QStringList names;
  for (const VargasPage::Varga &varga : pages[BirthOrDay::Birth].vargas) names << varga.name;
  which->SetList(names, Navamsha - 1);
  ShowChosen();
}

void VargasView::ShowChosen() {
  if (!settings || cmbVarga->currentIndex() < 0) return;
  const VargasPage &page = pages[which->Chosen()];
  const int chosen = cmbVarga->currentIndex();
  const VargasPage::Varga &varga = page.vargas[static_cast<size_t>(chosen)];
  chartHead->setText(varga.name);
  FillChart(*chart, varga.chart, *settings);
  chart->setAccessibleName(varga.name);

  const auto nameOf = [&page](int sign) { return sign == 0 ? QStringLiteral("-") : page.signName[static_cast<size_t>(sign)]; };
  const std::pair<Column, const QString *> heads[] = {{Point, &page.lblPointHead},
                                                      {Rashi, &page.lblRashiHead},
                                                      {Degrees, &page.lblDegreesHead},
                                                      {Varga, &page.lblVargaHead},
                                                      {Standing, &page.lblVargottamaHead}};
  for (const auto &[column, words] : heads) list->Head(column).setText(*words);
  for (int i = 0; i < VargasPage::Points; ++i) {
    const size_t at = static_cast<size_t>(i);
    const VargasPage::Point &point = page.points[at];
    list->Cell(i, Point).setText(point.name);
    list->Cell(i, Rashi).setText(nameOf(page.vargas[0].sign[at]));
    list->Cell(i, Degrees).setText(point.degrees);
    list->Cell(i, Varga).setText(nameOf(varga.sign[at]));
    list->Cell(i, Standing).setText(point.vargottama ? page.vargottamaWord : QStringLiteral("-"));
    list->SetTone(i, Standing, point.vargottama ? CaptionTable::Tone::Good : CaptionTable::Tone::Plain);

    table->ColumnHead(i).setText(point.narrowName);
    table->ColumnHead(i).setToolTip(point.name);
    for (int row = 0; row < VargasPage::Vargas; ++row) {
      const int sign = page.vargas[static_cast<size_t>(row)].sign[at];
      QLabel &cell = table->Cell(row, i);
      cell.setText(sign == 0 ? QStringLiteral("-") : page.narrowSign[static_cast<size_t>(sign)]);
      QString tip = QStringLiteral("%1, %2: %3").arg(point.name, page.vargas[static_cast<size_t>(row)].name, nameOf(sign));
      const bool marks = point.vargottama && (row == 0 || row == Navamsha - 1);
      if (marks) tip += QStringLiteral(" (%1)").arg(page.vargottamaWord);
      cell.setToolTip(tip);
      table->SetGround(row, i, marks ? Theme::Current().goodBack : QColor());
    }
    table->Cell(SameSignRow, i).setText(QString::number(point.sameSign));
  }
  for (int row = 0; row < VargasPage::Vargas; ++row) table->RowHead(row).setText(page.vargas[static_cast<size_t>(row)].name);
  table->RowHead(SameSignRow).setText(page.lblSameSign);
  table->SetRunningRow(chosen);
  lblVargottama->setText(page.lblVargottama);
}

void VargasView::ApplyFonts(const SetFonts &fonts) {
  which->ApplyFonts(fonts);
  for (QLabel *widget : {chartHead, lblVargottama}) fonts.SetSmallFont(*widget);
  fonts.SetKundaliFont(*chart);
  list->ApplyFonts(fonts);
  table->ApplyFonts(fonts);
}
