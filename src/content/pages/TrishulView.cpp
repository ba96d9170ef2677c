// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/TrishulView.h"

#include <QLabel>
#include <QVBoxLayout>

#include "analysis/SelvaniDailyMod.h"
#include "analysis/TrishulPage.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"
#include "content/pages/TrishulPicture.h"

namespace {

enum Column { Number, Name, Where };
constexpr int LegendRows = TrishulPicture::Count / 2;

}  // namespace

TrishulView::TrishulView(const AppPaths &paths, QWidget *parent)
    : PageView(parent), picture(new TrishulPicture(paths)), head(MakeHead(QStringLiteral("lblTrishulHead"))), text(new QLabel) {
  setObjectName(QStringLiteral("framTrishulChakra"));
  setAccessibleName(tr("Trishul Chakra"));
  text->setObjectName(QStringLiteral("lblTrishulText"));
  text->setText(
      tr("The Vedhas in the Trishul Chakra are located at the points of the trident (Trishul). It is recommended to avoid "
         "starting new work if there is a Vedha in the Nakshatra for that period."));
  text->setWordWrap(true);
  auto *drawing = new Card;
  drawing->Body()->addWidget(picture, 1);
  auto *words = new Card;
  words->Body()->setContentsMargins(Grid::Gap, Grid::Gap + 4, Grid::Gap, Grid::Gap);
  head->setContentsMargins(10, 0, 10, 0);
  text->setContentsMargins(10, 0, 10, 0);
  words->Body()->addWidget(head);
  words->Body()->addWidget(text);
  for (size_t half = 0; half < 2; ++half)
    legend[half] = new CaptionTable(
        {{.element = QStringLiteral("lblTrishulKey"), .strong = true, .alignment = Qt::AlignRight, .narrow = true, .oneLine = true},
         {.element = QStringLiteral("lblTrishulName")},
         {.element = QStringLiteral("lblTrishulWhere"), .strong = true, .alignment = Qt::AlignRight}},
        LegendRows, static_cast<int>(half) * LegendRows);
  std::array<QWidget *, 2> columns{};
  for (size_t half = 0; half < 2; ++half) {
    columns[half] = new QWidget;
    auto *column = new QVBoxLayout(columns[half]);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(legend[half], 1);
    column->addStretch(0);
  }
  words->Body()->addWidget(new SideBySide(columns[0], columns[1]), 1);
  words->Body()->addStretch(0);
  auto *halves = new SideBySide(drawing, words);
  halves->SetStretch(5, 6);
  PageScroll::Fill(this, halves);
}

void TrishulView::Fill(SelvaniDailyMod &session) {
  const clsPlanets &chart = session.TodayChart();
  const TrishulPage page = FillTrishulChakra(chart);
  if (!page.lblTrishulHead.isEmpty()) head->setText(page.lblTrishulHead);
  if (!page.lblTrishulText.isEmpty()) text->setText(page.lblTrishulText);
  const int today = page.lblTrishulNums[0];
  const int birth = session.BirthChart().Nak28GetNakshatra();
  for (int label = 0; label < TrishulPicture::Count; ++label) {
    const int number = page.lblTrishulNums[static_cast<size_t>(label)];
    double nakshatra = number;
    const QString name = chart.GetNakshatraName(nakshatra);
    QStringList marks;
    if (number == today) marks << tr("today");
    if (number == birth) marks << tr("birth");
    picture->SetMark(label, number == today   ? (number == birth ? TrishulPicture::Mark::Both : TrishulPicture::Mark::Today)
                            : number == birth ? TrishulPicture::Mark::Birth
                                              : TrishulPicture::Mark::None);
    QLabel &disc = picture->Number(label);
    disc.setText(QString::number(number));
    QString tip = QStringLiteral("%1 %2").arg(QString::number(number), name);
    if (picture->IsPoint(label)) tip += tr(", at a point of the trident");
    if (!marks.isEmpty()) tip += QStringLiteral(" (%1)").arg(marks.join(QStringLiteral(", ")));
    disc.setToolTip(tip);
    disc.setAccessibleName(tip);

    if (picture->IsPoint(label)) marks << tr("point");
    CaptionTable &table = *legend[number <= LegendRows ? 0 : 1];
    const int row = (number - 1) % LegendRows;
    table.Cell(row, Number).setText(QString::number(number));
    table.Cell(row, Name).setText(name);
    table.Cell(row, Where).setText(marks.join(QStringLiteral(", ")));
    table.SetTone(row, Where, CaptionTable::Tone::Warn);
  }
  for (int half = 0; half < 2; ++half)
    legend[static_cast<size_t>(half)]->SetRunningRow((today - 1) / LegendRows == half ? (today - 1) % LegendRows : -1);
}

void TrishulView::ApplyFonts(const SetFonts &fonts) {
  for (int label = 0; label < TrishulPicture::Count; ++label) fonts.SetSmallFont(picture->Number(label));
  fonts.SetSmallFont(*head);
  fonts.SetSmallFont(*text);
  for (CaptionTable *table : legend) table->ApplyFonts(fonts);
  picture->LayOut();
}
