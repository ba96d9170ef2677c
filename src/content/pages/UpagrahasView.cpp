// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/UpagrahasView.h"

#include <QVBoxLayout>

#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/BirthOrDay.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"

namespace {

enum Column { Name, Rashi, Degrees, Nak, Pada };

}  // namespace

UpagrahasView::UpagrahasView(QWidget *parent)
    : PageView(parent), which(new BirthOrDay), lblJaimini(MakeCardLine(QStringLiteral("lblJaimini"), "value")) {
  setObjectName(QStringLiteral("framUpagrahas"));
  setAccessibleName(tr("Upagrahas"));
  std::array<Card *, 2> cards{};
  for (size_t mode = 0; mode < cards.size(); ++mode) {
    const QString number = QString::number(mode + 1);
    titles[mode] = MakeCardHead(QStringLiteral("lblUpaMode") + number);
    const auto head = [&number](const char *name) { return QLatin1String(name) + number; };
    tables[mode] =
        new CaptionTable({{.element = QStringLiteral("lblUpaName"), .head = head("lblUpaNameHead"), .strong = true},
                          {.element = QStringLiteral("lblUpaRashi"), .head = head("lblUpaRashiHead")},
                          {.element = QStringLiteral("lblUpaDegrees"), .head = head("lblUpaDegreesHead"), .oneLine = true},
                          {.element = QStringLiteral("lblUpaNak"), .head = head("lblUpaNakHead")},
                          {.element = QStringLiteral("lblUpaPada"), .head = head("lblUpaPadaHead"), .alignment = Qt::AlignHCenter}},
                         UpagrahasPage::Points, static_cast<int>(mode) * UpagrahasPage::Points + 1);
    cards[mode] = new Card;
    cards[mode]->Body()->addWidget(titles[mode]);
    cards[mode]->Body()->addWidget(tables[mode], 1);
    cards[mode]->Body()->addStretch(0);
  }
  auto *content = new QWidget;
  auto *column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Grid::Gap * 2);
  column->addWidget(which, 0, Qt::AlignLeft);
  column->addWidget(new SideBySide(cards[0], cards[1]), 1);
  auto *points = new Card;
  points->Body()->addWidget(lblJaimini);
  column->addWidget(points);
  PageScroll::Fill(this, content);
  connect(which, &BirthOrDay::Changed, this, &UpagrahasView::ShowChosen);
}

void UpagrahasView::Fill(SelvaniDailyMod &session) {
  pages = {FillUpagrahas(session.BirthChart()), FillUpagrahas(session.TodayChart())};
  ShowChosen();
}

void UpagrahasView::ShowChosen() {
  const UpagrahasPage &page = pages[which->Chosen()];
  lblJaimini->setText(page.lblJaimini);
  for (size_t i = 0; i < page.modes.size(); ++i) {
    const UpagrahasPage::Mode &mode = page.modes[i];
    CaptionTable &table = *tables[i];
    titles[i]->setText(page.TitleOf(mode));
    const std::pair<Column, const QString *> heads[] = {{Name, &page.lblNameHead},
                                                        {Rashi, &page.lblRashiHead},
                                                        {Degrees, &page.lblDegreesHead},
                                                        {Nak, &page.lblNakHead},
                                                        {Pada, &page.lblPadaHead}};
    for (const auto &[column, words] : heads) table.Head(column).setText(*words);
    for (int point = 0; point < UpagrahasPage::Points; ++point) {
      const UpagrahasPage::Row &row = mode.rows[static_cast<size_t>(point)];
      const std::pair<Column, const QString *> cells[] = {{Name, &row.lblUpaName},
                                                          {Rashi, &row.lblUpaRashi},
                                                          {Degrees, &row.lblUpaDegrees},
                                                          {Nak, &row.lblUpaNak},
                                                          {Pada, &row.lblUpaPada}};
      for (const auto &[column, words] : cells) table.Cell(point, column).setText(*words);
    }
  }
}

void UpagrahasView::ApplyFonts(const SetFonts &fonts) {
  which->ApplyFonts(fonts);
  for (QLabel *title : titles) fonts.SetSmallFont(*title);
  fonts.SetSmallFont(*lblJaimini);
  for (CaptionTable *table : tables) table->ApplyFonts(fonts);
}
