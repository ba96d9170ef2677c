// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/BirthAttributesView.h"

#include <QGridLayout>

#include "analysis/BirthAttributesPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"

namespace {

enum Column { Attribute, Value, Help };

CaptionTable::Tone ToneOf(BirthAttributesPage::Tone tone) {
  switch (tone) {
    case BirthAttributesPage::Tone::Good: return CaptionTable::Tone::Good;
    case BirthAttributesPage::Tone::Bad: return CaptionTable::Tone::Bad;
    default: return CaptionTable::Tone::Plain;
  }
}

}  // namespace

BirthAttributesView::BirthAttributesView(QWidget *parent) : PageView(parent), lblMoon(MakeCardHead(QStringLiteral("lblAttributeMoon"))) {
  setObjectName(QStringLiteral("framBirthAttributes"));
  setAccessibleName(tr("Birth attributes"));
  table = new CaptionTable({{.element = QStringLiteral("lblAttribute"), .caption = true, .oneLine = true},
                            {.element = QStringLiteral("lblAttributeVal"), .strong = true, .oneLine = true},
                            {.element = QStringLiteral("lblAttributeHelp"), .caption = true}},
                           static_cast<int>(std::tuple_size_v<decltype(BirthAttributesPage::rows)>));
  // The help takes what the words beside it leave.
  static_cast<QGridLayout *>(table->layout())->setColumnStretch(Help, 1);
  auto *card = new Card;
  card->Body()->addWidget(lblMoon);
  card->Body()->addWidget(table, 1);
  card->Body()->addStretch(0);
  PageScroll::Fill(this, card);
}

void BirthAttributesView::Fill(SelvaniDailyMod &session) {
  const BirthAttributesPage page = FillBirthAttributes(session.BirthChart(), session.TodayChart());
  lblMoon->setText(page.lblMoon);
  for (int i = 0; i < static_cast<int>(page.rows.size()); ++i) {
    const BirthAttributesPage::Row &row = page.rows[static_cast<size_t>(i)];
    table->Cell(i, Attribute).setText(row.lblAttribute);
    table->Cell(i, Value).setText(row.lblAttributeVal);
    table->Cell(i, Help).setText(row.lblAttributeHelp);
    table->SetTone(i, Value, ToneOf(row.tone));
  }
}

void BirthAttributesView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetSmallFont(*lblMoon);
  table->ApplyFonts(fonts);
}
