// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PanchangView.h"

#include <QLabel>

#include "analysis/PanchangPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"

PanchangView::PanchangView(QWidget *parent) : PageView(parent) {
  setObjectName(QStringLiteral("framPanchaang"));
  setAccessibleName(tr("Panchang at birth and now"));
  const QString names[2][3] = {
      {QStringLiteral("lblBirthPanchang"), QStringLiteral("lblPanchBirthHead"), QStringLiteral("lblPanchBirthVal")},
      {QStringLiteral("lblNowPanchang"), QStringLiteral("lblPanchTodayHead"), QStringLiteral("lblPanchTodayVal")}};
  std::array<Card *, 2> cards{};
  for (size_t half = 0; half < 2; ++half) {
    cards[half] = new Card;
    titles[half] = MakeHead(names[half][0]);
    titles[half]->setContentsMargins(10, 4, 10, 4);
    columns[half] = new CaptionTable({{.element = names[half][1], .caption = true}, {.element = names[half][2], .strong = true}},
                                     static_cast<int>(PanchangPage::Rows));
    cards[half]->Body()->addWidget(titles[half]);
    cards[half]->Body()->addWidget(columns[half], 1);
    cards[half]->Body()->addStretch(0);
  }
  PageScroll::Fill(this, new SideBySide(cards[0], cards[1]));
}

void PanchangView::Fill(SelvaniDailyMod &session) {
  const PanchangPage page = FillPanchangPage(session.BirthChart(), session.TodayChart());
  titles[0]->setText(page.lblBirthPanchang);
  titles[1]->setText(page.lblNowPanchang);
  for (int row = 0; row < static_cast<int>(PanchangPage::Rows); ++row) {
    const auto i = static_cast<size_t>(row);
    columns[0]->Cell(row, 0).setText(page.lblPanchBirthHead[i]);
    columns[0]->Cell(row, 1).setText(page.lblPanchBirthVal[i]);
    columns[1]->Cell(row, 0).setText(page.lblPanchTodayHead[i]);
    columns[1]->Cell(row, 1).setText(page.lblPanchTodayVal[i]);
  }
}

void PanchangView::ApplyFonts(const SetFonts &fonts) {
  for (size_t half = 0; half < 2; ++half) {
    fonts.SetSmallFont(*titles[half]);
    columns[half]->ApplyFonts(fonts);
  }
}
