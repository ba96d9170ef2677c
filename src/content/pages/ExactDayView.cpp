// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ExactDayView.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "content/PageNumber.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/DayTimeline.h"
#include "content/pages/ExactDayPaper.h"
#include "content/pages/PagePdf.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SideBySide.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace {

using Tone = ExactDayPage::Tone;

CaptionTable::Tone ToneOf(Tone tone) {
  return tone == Tone::Good ? CaptionTable::Tone::Good : tone == Tone::Bad ? CaptionTable::Tone::Bad : CaptionTable::Tone::Plain;
}

QLabel *MakeLabel(const char *name, const char *role) {
  auto *label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setProperty("role", QLatin1String(role));
  return label;
}

void MakeBold(QWidget &widget) {
  QFont font = widget.font();
  font.setBold(true);
  widget.setFont(font);
}

}  // namespace

ExactDayView::ExactDayView(QWidget *parent)
    : PageView(parent),
      title(MakeLabel("lblExactDate", "head")),
      description(MakeLabel("lblExactDesc", "caption")),
      timeline(new DayTimeline),
      factGrid(new QGridLayout),
      limbsCard(new Card),
      periodsCard(new Card),
      savePdf(new QPushButton(tr("Save as PDF..."))),
      month(new QPushButton(tr("Month"))) {
  setObjectName(QStringLiteral("framExactDay"));
  setAccessibleName(tr("The exact day"));
  askFile = [this](const QString &suggested) { return PagePdf::AskFile(this, tr("Save the day as PDF"), suggested, tr("PDF (*.pdf)")); };
  MakeBold(*title);
  description->setWordWrap(true);
  savePdf->setObjectName(QStringLiteral("cmdExactPdf"));
  savePdf->setProperty("role", QStringLiteral("primary"));
  month->setObjectName(QStringLiteral("cmdExactMonth"));
  connect(savePdf, &QPushButton::clicked, this, [this] { SavePdf(); });
  connect(month, &QPushButton::clicked, this, [this] { emit GoToPage(PageNumber::Month); });

  auto *day = new Card;
  day->Body()->setContentsMargins(Grid::CardPadding, Grid::Gap + 4, Grid::CardPadding, Grid::CardPadding);
  day->Body()->addWidget(title);
  day->Body()->addWidget(description);
  day->Body()->addWidget(timeline);
  factGrid->setHorizontalSpacing(2 * Grid::Gap);
  factGrid->setVerticalSpacing(Grid::Gap);
  day->Body()->addLayout(factGrid);
  auto *buttons = new QHBoxLayout;
  buttons->setSpacing(Grid::Gap + 4);
  buttons->addWidget(savePdf);
  buttons->addWidget(month);
  buttons->addStretch(1);
  day->Body()->addSpacing(Grid::Gap);
  day->Body()->addLayout(buttons);

  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap * 2);
  layout->addWidget(day);
  layout->addWidget(new SideBySide(limbsCard, periodsCard));
  layout->addStretch(1);
  PageScroll::Fill(this, content);
}

void ExactDayView::Fill(SelvaniDailyMod &session) {
  page = FillExactDay(session.TodayChart());
  title->setText(page.title);
  description->setText(page.lblExactDesc);
  timeline->SetPage(page);
  FillFacts();
  FillTables();
}

void ExactDayView::FillFacts() {
  if (facts.empty()) {
    for (const ExactDayPage::Fact &fact : page.facts) {
      FactLabels labels{new QWidget, MakeLabel((QByteArray(fact.element) + "Head").constData(), "caption"),
                        MakeLabel(fact.element, "value")};
      MakeBold(*labels.value);
      labels.value->setWordWrap(true);
      auto *box = new QVBoxLayout(labels.box);
      box->setContentsMargins(0, 0, 0, 0);
      box->setSpacing(2);
      box->addWidget(labels.head);
      box->addWidget(labels.value);
      box->addStretch(1);
      facts.push_back(labels);
    }
  }
  for (size_t n = 0; n < facts.size(); ++n) {
    facts[n].head->setText(page.facts[n].head);
    facts[n].value->setText(page.facts[n].value);
  }
  ArrangeFacts();
}

// Four beside each other where the heads fit, else two.
void ExactDayView::ArrangeFacts() {
  if (facts.empty()) return;
  int widest = 0;
  for (const FactLabels &fact : facts) widest = std::max(widest, fact.head->sizeHint().width());
  const int columns = 4 * (widest + 2 * Grid::Gap) <= width() - 4 * Grid::CardPadding ? 4 : 2;
  if (columns == factColumns) return;
  factColumns = columns;
  for (const FactLabels &fact : facts) factGrid->removeWidget(fact.box);
  for (int n = 0; n < static_cast<int>(facts.size()); ++n) factGrid->addWidget(facts[static_cast<size_t>(n)].box, n / columns, n % columns);
  for (int column = 0; column < 4; ++column) factGrid->setColumnStretch(column, column < columns ? 1 : 0);
}

void ExactDayView::resizeEvent(QResizeEvent *event) {
  PageView::resizeEvent(event);
  ArrangeFacts();
}

void ExactDayView::MakeTables() {
  limbs = new CaptionTable({{.element = QStringLiteral("lblExactLimb"), .head = QStringLiteral("lblExactLimbHead"), .caption = true},
                            {.element = QStringLiteral("lblExactName"), .head = QStringLiteral("lblExactNameHead"), .strong = true},
                            {.element = QStringLiteral("lblExactBegins"), .head = QStringLiteral("lblExactBeginsHead"), .oneLine = true},
                            {.element = QStringLiteral("lblExactEnds"), .head = QStringLiteral("lblExactEndsHead"), .oneLine = true},
                            {.element = QStringLiteral("lblExactRemark"), .head = QStringLiteral("lblExactRemarkHead")}},
                           0, 0, limbsCard);
  periods = new CaptionTable({{.element = QStringLiteral("lblExactPeriod"), .head = QStringLiteral("lblExactPeriodHead"), .strong = true},
                              {.element = QStringLiteral("lblExactFrom"), .head = QStringLiteral("lblExactFromHead"), .oneLine = true},
                              {.element = QStringLiteral("lblExactTo"), .head = QStringLiteral("lblExactToHead"), .oneLine = true},
                              {.element = QStringLiteral("lblExactVerdict"), .head = QStringLiteral("lblExactVerdictHead")}},
                             0, 0, periodsCard);
  events = new CaptionTable({{.element = QStringLiteral("lblExactEvent"), .head = QStringLiteral("lblExactEventHead"), .strong = true},
                             {.element = QStringLiteral("lblExactAt"), .head = QStringLiteral("lblExactAtHead")}},
                            0, 0, limbsCard);
  auto *left = static_cast<Card *>(limbsCard)->Body(), *right = static_cast<Card *>(periodsCard)->Body();
  left->addWidget(limbs);
  left->addWidget(events);
  left->addStretch(1);
  right->addWidget(periods);
  right->addStretch(1);
}

// Every day has another number of limbs.
void ExactDayView::FillTables() {
  enum { Head, Name, Begins, Ends, Remark };
  const auto rowsOf = [](const std::vector<ExactDayPage::Row> &rows) { return static_cast<int>(rows.size()); };
  if (!limbs) MakeTables();
  limbs->SetRows(rowsOf(page.limbs));
  periods->SetRows(rowsOf(page.periods));
  events->SetRows(rowsOf(page.events));
  const QString heads[] = {page.limbHead, page.nameHead, page.beginsHead, page.endsHead, page.remarkHead};
  for (int column = Head; column <= Remark; ++column) limbs->Head(column).setText(heads[column]);
  periods->SetRunningRow(-1);
  for (int row = 0; row < rowsOf(page.limbs); ++row) {
    const ExactDayPage::Row &limb = page.limbs[static_cast<size_t>(row)];
    const QString cells[] = {limb.head, limb.name, limb.begins, limb.ends, limb.remark};
    for (int column = Head; column <= Remark; ++column) limbs->Cell(row, column).setText(cells[column]);
    limbs->SetTone(row, Name, limb.running ? CaptionTable::Tone::Warn : CaptionTable::Tone::Plain);
  }
  const QString periodHeads[] = {page.periodHead, page.beginsHead, page.endsHead, page.remarkHead};
  for (int column = 0; column < 4; ++column) periods->Head(column).setText(periodHeads[column]);
  for (int row = 0; row < rowsOf(page.periods); ++row) {
    const ExactDayPage::Row &period = page.periods[static_cast<size_t>(row)];
    const QString cells[] = {period.name, period.begins, period.ends, period.remark};
    for (int column = 0; column < 4; ++column) periods->Cell(row, column).setText(cells[column]);
    periods->SetTone(row, 0, ToneOf(period.tone));
    periods->SetTone(row, 3, ToneOf(period.tone));
    if (period.running) periods->SetRunningRow(row);
  }
  events->Head(0).setText(page.eventHead);
  for (int row = 0; row < rowsOf(page.events); ++row) {
    events->Cell(row, 0).setText(page.events[static_cast<size_t>(row)].name);
    events->Cell(row, 1).setText(page.events[static_cast<size_t>(row)].ends);
  }
}

void ExactDayView::SavePdf() {
  const QString path = askFile(tr("Exact day") + QStringLiteral(".pdf"));
  if (path.isEmpty()) return;
  try {
    PagePdf::Write(path, page.title, QPageLayout::Portrait,
                   [this](QPainter &painter, const QRectF &room) { ExactDayPaper::Paint(painter, room, page); });
  } catch (const Error &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}

void ExactDayView::ApplyFonts(const SetFonts &fonts) {
  for (QWidget *line : std::initializer_list<QWidget *>{description, timeline}) fonts.SetSmallFont(*line);
  fonts.SetNormalFont(*title);
  for (const FactLabels &fact : facts) {
    fonts.SetSmallFont(*fact.head);
    fonts.SetNormalFont(*fact.value);
  }
  factColumns = 0;
  ArrangeFacts();
  for (CaptionTable *table : {limbs, periods, events})
    if (table) table->ApplyFonts(fonts);
}
