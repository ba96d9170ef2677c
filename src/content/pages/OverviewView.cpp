// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/OverviewView.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "analysis/ExactBeside.h"
#include "analysis/SelvaniDailyMod.h"
#include "chart/Kundali.h"
#include "content/PageNumber.h"
#include "content/SetFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/pages/ChartFill.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SelectableLabel.h"

namespace {

constexpr int HeadHeight = 28;   // pixels of every card's head line
constexpr int NarrowPage = 620;  // pixels of width, below which the facts take the small size

QFrame *Card(QWidget *parent) {
  auto *card = new QFrame(parent);
  card->setProperty("role", "card");
  return card;
}

}  // namespace

OverviewView::OverviewView(QWidget *parent) : PageView(parent) {
  setObjectName("framMainPage");
  columns = new QHBoxLayout(this);
  columns->setContentsMargins(PageScroll::Ring, PageScroll::Ring, PageScroll::Ring, PageScroll::Ring);
  columns->setSpacing(2 * Grid::Gap);

  auto *charts = Card(this);
  auto *chartColumn = new QVBoxLayout(charts);
  chartColumn->setContentsMargins(Grid::CardPadding, 12, Grid::CardPadding, 12);
  const auto addChart = [&](const char *chartName, const char *headName, QLabel *&info, int page) {
    auto *line = new QHBoxLayout;
    info = new QLabel(charts);
    info->setProperty("role", "caption");
    line->addWidget(Label(headName, "head"));
    line->addStretch();
    line->addStrut(HeadHeight);
    line->addWidget(info);
    chartColumn->addLayout(line);
    auto *chart = new Kundali(charts);
    chart->setObjectName(chartName);
    chart->setCursor(Qt::PointingHandCursor);
    connect(chart, &Kundali::Click, this, [this, page] { emit GoToPage(page); });
    chartColumn->addWidget(chart, 1);
    return chart;
  };
  kunBirth = addChart("kunBirth", "lblBKundali", chartInfo, PageNumber::BirthKundali);
  chartColumn->addSpacing(Grid::Gap);
  kunTransit = addChart("kunTransit", "lblTransKundali", momentInfo, PageNumber::TransitKundali);
  columns->addWidget(charts, 27);

  lblTodPanchang = new QPushButton(this);
  lblTodPanchang->setObjectName("lblTodPanchang");
  lblTodPanchang->setProperty("role", "headlink");
  lblTodPanchang->setCursor(Qt::PointingHandCursor);
  lblTodPanchang->setFlat(true);
  lblTodPanchang->setIcon(Skin::Picture(QStringLiteral("ctlRight")));
  lblTodPanchang->setLayoutDirection(Qt::RightToLeft);  // the arrow follows the words
  connect(lblTodPanchang, &QPushButton::clicked, this, [this] { emit GoToPage(PageNumber::Panchang); });

  auto *facts = new QVBoxLayout;
  facts->setSpacing(2 * Grid::Gap);
  facts->addWidget(FactsCard(lblTodPanchang, {{"lblDayHead", "lblDayVal", "value"},
                                              {"lblTithiHead", "lblTithiVal", "value"},
                                              {"lblNakHead", "lblNakVal", "value"},
                                              {"lblYogaHead", "lblYogaVal", "value"},
                                              {"lblKaranHead", "lblKaranVal", "value"}}),
                   1);
  facts->addWidget(FactsCard(FactorsHead(), {{"lblSunRiseHead", "lblSunriseVal", "value", true},
                                             {"lblSunSetHead", "lblSunsetVal", "value", true},
                                             {"lblRahuKaalHead", "lblRahuKaalVal", "bad", true},
                                             {"lblYamGhantaHead", "lblYamghantaVal", "bad", true},
                                             {"lblCurDashaHead", "lblCurDashaVal", "value"}}),
                   1);
  columns->addLayout(facts, 26);
}

QLabel *OverviewView::Label(const char *name, const char *role) {
  auto *label = new SelectableLabel(this);
  label->setObjectName(name);
  label->setProperty("role", role);
  labels.insert(QLatin1String(name), label);
  return label;
}

void OverviewView::MakeExactLink(QPushButton &link) {
  link.setProperty("role", "link");
  link.setStyleSheet(QStringLiteral("padding: 0; min-height: 0; border-width: 1px;"));
  link.setCursor(Qt::PointingHandCursor);
  link.hide();
  connect(&link, &QPushButton::clicked, this, [this] { emit GoToPage(PageNumber::ExactDay); });
}

QPushButton *OverviewView::ExactLink(const char *value) {
  auto *link = new QPushButton(this);
  link->setObjectName(QStringLiteral("exact_") + QLatin1String(value));
  link->setToolTip(tr("The time by the sky itself. Opens the exact day."));
  MakeExactLink(*link);
  exactLinks.insert(QLatin1String(value), link);
  return link;
}

// The card's head, and below it what says that its times are exact.
QWidget *OverviewView::FactorsHead() {
  auto *head = new QWidget(this);
  auto *layout = new QVBoxLayout(head);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Label("lblOthFactors", "head"));
  exactHead = new QPushButton(head);
  exactHead->setObjectName(QStringLiteral("lblExactHead"));
  MakeExactLink(*exactHead);
  layout->addWidget(exactHead, 0, Qt::AlignLeft | Qt::AlignAbsolute);
  return head;
}

QWidget *OverviewView::FactsCard(QWidget *head, const QList<RowNames> &rows) {
  auto *card = Card(this);
  auto *grid = new QGridLayout(card);
  grid->setContentsMargins(Grid::CardPadding, 12, Grid::CardPadding, 8);
  grid->setHorizontalSpacing(2 * Grid::Gap);
  grid->setVerticalSpacing(0);
  grid->addWidget(head, 0, 0, 1, 2, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
  grid->setRowMinimumHeight(0, HeadHeight);
  factGrids << grid;
  int line = 1;
  for (const RowNames &row : rows) {
    if (line > 1) {
      auto *rule = new QFrame(card);
      rule->setProperty("role", "rule");
      grid->addWidget(rule, line++, 0, 1, 2);
    }
    grid->addWidget(Label(row.head, "caption"), line, 0);
    QLabel *value = Label(row.value, row.role);
    value->setWordWrap(true);
    auto *cell = new QVBoxLayout;
    cell->setSpacing(0);
    cell->addStretch();
    cell->addWidget(value);
    if (row.hasExactTwin) cell->addWidget(ExactLink(row.value), 0, Qt::AlignLeft | Qt::AlignAbsolute);
    cell->addStretch();
    grid->addLayout(cell, line, 1);
    grid->setRowStretch(line++, 1);
  }
  grid->setColumnStretch(1, 1);
  return card;
}

void OverviewView::Fill(SelvaniDailyMod &session) {
  const OverviewPage page = session.FillMainPage();
  FillChart(*kunBirth, page.kunBirth, session.Settings());
  FillChart(*kunTransit, page.kunTransit, session.Settings());
  for (const auto &[element, caption] : page.Captions())
    if (QLabel *label = labels.value(element)) label->setText(caption);
  lblTodPanchang->setText(page.lblTodPanchang);
  exactHead->setText(page.lblExactBrief);
  exactHead->setToolTip(page.lblExactHead);
  exactHead->setAccessibleName(page.lblExactHead);
  exactHead->setVisible(page.IsExact());
  // Exact times have no others beside them.
  const ExactBesidePage exact = page.IsExact() ? ExactBesidePage() : ExactBeside(session.TodayChart());
  const auto beside = [this](const char *value, const QString &text) {
    QPushButton *link = exactLinks.value(QLatin1String(value));
    link->setText(text.isEmpty() ? QString() : tr("exact %1").arg(text));
    link->setVisible(!text.isEmpty());
  };
  beside("lblSunriseVal", exact.sunrise);
  beside("lblSunsetVal", exact.sunset);
  beside("lblRahuKaalVal", exact.rahuKaal);
  beside("lblYamghantaVal", exact.yamaghanta);
  const clsPlanets &birth = session.BirthChart();
  chartInfo->setText(QStringLiteral("%1 %2").arg(birth.AyanamshName(), clsPlanets::DecToDeg(birth.PlanetLongi(13)).section(':', 0, 1)));
  moment = session.TodayChart().clsPerson().GetBirthDate();
  kunBirth->setAccessibleName(page.lblBKundali);
  kunTransit->setAccessibleName(page.lblTransKundali);
}

void OverviewView::ApplyFonts(const SetFonts &fonts) {
  fontsShown = fonts;
  narrowShown = IsNarrow();
  for (const char *head : {"lblBKundali", "lblTransKundali", "lblOthFactors"}) fonts.SetSubHeadFont(*labels.value(QLatin1String(head)));
  fonts.SetSubHeadFont(*lblTodPanchang);
  int captionWidth = 0;
  for (auto it = labels.cbegin(); it != labels.cend(); ++it) {
    if (it.value()->property("role") == "head") continue;
    // On a small screen the facts keep to their lines in the small size.
    QFont font = narrowShown ? fonts.SmallFont() : fonts.NormalFont();
    const bool isCaption = it.value()->property("role") == "caption";
    font.setBold(!isCaption);
    it.value()->setFont(font);
    if (isCaption) captionWidth = std::max(captionWidth, QFontMetrics(font).horizontalAdvance(it.value()->text()) + 2);
  }
  for (QGridLayout *grid : factGrids) {
    grid->setColumnMinimumWidth(0, captionWidth);  // the values of both cards begin below each other
    grid->setHorizontalSpacing(narrowShown ? Grid::Gap : 2 * Grid::Gap);
  }
  // The year has its place in the header; the head line would hold the narrow card open for it.
  momentInfo->setText(moment.toString(narrowShown ? QStringLiteral("d MMM, H:mm") : QStringLiteral("d MMM yyyy, H:mm")));
  columns->setStretch(0, narrowShown ? 23 : 27);
  columns->setStretch(1, narrowShown ? 30 : 26);
  for (QPushButton *link : exactLinks) fonts.SetSmallFont(*link);
  fonts.SetSmallFont(*exactHead);
  for (QLabel *info : {chartInfo, momentInfo}) fonts.SetSmallFont(*info);
  fonts.SetKundaliFont(*kunBirth);
  fonts.SetKundaliFont(*kunTransit);
}

bool OverviewView::IsNarrow() const { return width() < NarrowPage; }

void OverviewView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  if (IsNarrow() != narrowShown) ApplyFonts(SetFonts(fontsShown));
}
