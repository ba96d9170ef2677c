// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/VakyaView.h"

#include <QVBoxLayout>

#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/BirthOrDay.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"

namespace {

enum Column { Body, VakyaRashi, VakyaDegrees, ModernRashi, ModernDegrees, Difference };

}  // namespace

VakyaView::VakyaView(QWidget *parent)
    : PageView(parent),
      which(new BirthOrDay),
      lblFailure(MakeCardLine(QStringLiteral("lblVakyaFailure"), "warn")),
      lblNodeNote(MakeCardLine(QStringLiteral("lblVakyaNode"))),
      lblPlaceNote(MakeCardLine(QStringLiteral("lblVakyaPlace"))) {
  setObjectName(QStringLiteral("framVakya"));
  setAccessibleName(tr("Vakya and modern positions"));
  table =
      new CaptionTable({{.element = QStringLiteral("lblVakyaBody"), .head = QStringLiteral("lblVakyaBodyHead"), .strong = true},
                        {.element = QStringLiteral("lblVakyaRashi"), .head = QStringLiteral("lblVakyaRashiHead")},
                        {.element = QStringLiteral("lblVakyaDegrees"), .head = QStringLiteral("lblVakyaDegreesHead"), .oneLine = true},
                        {.element = QStringLiteral("lblModernRashi"), .head = QStringLiteral("lblModernRashiHead")},
                        {.element = QStringLiteral("lblModernDegrees"), .head = QStringLiteral("lblModernDegreesHead"), .oneLine = true},
                        {.element = QStringLiteral("lblVakyaDiff"),
                         .head = QStringLiteral("lblVakyaDiffHead"),
                         .alignment = Qt::AlignRight,
                         .oneLine = true}},
                       VakyaPage::Rows);
  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(which, 0, Qt::AlignLeft);
  auto *card = new Card;
  card->Body()->addWidget(lblFailure);
  card->Body()->addWidget(table, 1);
  card->Body()->addWidget(lblNodeNote);
  card->Body()->addWidget(lblPlaceNote);
  card->Body()->addStretch(0);
  column->addWidget(card, 1);
  PageScroll::Fill(this, content);
  connect(which, &BirthOrDay::Changed, this, &VakyaView::ShowChosen);
}

void VakyaView::Fill(SelvaniDailyMod &session) {
  pages = {FillVakya(session.BirthChart()), FillVakya(session.TodayChart())};
  ShowChosen();
}

void VakyaView::ShowChosen() {
  const VakyaPage &page = pages[which->Chosen()];
  const std::pair<Column, const QString *> heads[] = {
      {Body, &page.lblBodyHead},          {VakyaRashi, &page.lblVakyaHead},      {VakyaDegrees, &page.lblDegreesHead},
      {ModernRashi, &page.lblModernHead}, {ModernDegrees, &page.lblDegreesHead}, {Difference, &page.lblDifferenceHead}};
  for (const auto &[column, words] : heads) table->Head(column).setText(*words);
  for (int i = 0; i < VakyaPage::Rows; ++i) {
    const VakyaPage::Row &row = page.rows[static_cast<size_t>(i)];
    const std::pair<Column, const QString *> cells[] = {{Body, &row.lblBody},
                                                        {VakyaRashi, &row.lblVakyaRashi},
                                                        {VakyaDegrees, &row.lblVakyaDegrees},
                                                        {ModernRashi, &row.lblModernRashi},
                                                        {ModernDegrees, &row.lblModernDegrees},
                                                        {Difference, &row.lblDifference}};
    for (const auto &[column, words] : cells) table->Cell(i, column).setText(*words);
  }
  lblNodeNote->setText(page.lblNodeNote);
  lblFailure->setText(page.lblFailure);
  lblFailure->setVisible(!page.lblFailure.isEmpty());
  lblPlaceNote->setText(page.lblPlaceNote);
  lblPlaceNote->setVisible(!page.lblPlaceNote.isEmpty());
}

void VakyaView::ApplyFonts(const SetFonts &fonts) {
  which->ApplyFonts(fonts);
  table->ApplyFonts(fonts);
  for (QLabel *line : {lblFailure, lblNodeNote, lblPlaceNote}) fonts.SetSmallFont(*line);
}
