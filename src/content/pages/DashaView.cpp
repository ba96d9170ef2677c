// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/DashaView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "analysis/SelvaniDailyMod.h"
#include "chart/ImageButton.h"
#include "content/SetFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/DashaRow.h"
#include "content/pages/PageScroll.h"
#include "content/pages/SpanStrip.h"

DashaView::DashaView(QWidget *parent)
    : PageView(parent),
      levelHeading(MakeHead(QStringLiteral("lblVimLevel"))),
      pathHeading(new QLabel),
      status(new QLabel),
      up(new ImageButton),
      tree(new QPushButton),
      strip(new SpanStrip) {
  setObjectName(QStringLiteral("framVimsot"));
  setAccessibleName(tr("Vimshottari dasha"));
  pathHeading->setObjectName(QStringLiteral("lblVimPath"));
  pathHeading->setProperty("role", QStringLiteral("caption"));
  status->setObjectName(QStringLiteral("lblVimStatus"));
  status->setProperty("role", QStringLiteral("warn"));
  status->setContentsMargins(10, 0, 10, 0);
  up->setObjectName(QStringLiteral("fflpUp"));
  up->setText(tr("Up"));
  up->setAccessibleName(tr("One level up"));
  up->SetToolTip(tr("One level up (Backspace)"));
  Skin::Dress(*up, QStringLiteral("fflpUp"));
  connect(up, &QAbstractButton::clicked, this, &DashaView::GoUp);
  tree->setObjectName(QStringLiteral("flpDashaTree"));
  tree->setText(tr("Tree..."));
  tree->setToolTip(tr("All periods with their dates"));
  connect(tree, &QPushButton::clicked, this, &DashaView::GoToTree);

  strip->setObjectName(QStringLiteral("stripDasha"));
  strip->setAccessibleName(tr("The lengths of the nine periods"));

  auto *card = new Card;
  auto *top = new QHBoxLayout;
  top->setContentsMargins(6, 0, 6, 0);
  top->setSpacing(Grid::Gap + 4);
  auto *headings = new QVBoxLayout;
  headings->setSpacing(2);
  headings->addWidget(levelHeading);
  headings->addWidget(pathHeading);
  top->addWidget(up);
  top->addLayout(headings, 1);
  top->addWidget(tree);
  card->Body()->addLayout(top);
  auto *list = new QVBoxLayout;
  list->setSpacing(0);
  for (size_t i = 0; i < rows.size(); ++i) {
    rows[i] = new DashaRow;
    rows[i]->setObjectName(QStringLiteral("lblVimElement%1").arg(i));
    rows[i]->SetTinted(i % 2 == 1);
    connect(rows[i], &QAbstractButton::clicked, this, [this, i] { GoDeep(static_cast<int>(i)); });
    list->addWidget(rows[i], 1);
  }
  card->Body()->addLayout(list, 1);
  card->Body()->addWidget(strip);
  card->Body()->addWidget(status);
  card->Body()->addStretch(0);
  scroll = PageScroll::Fill(this, card);
  scroll->setFocusPolicy(Qt::NoFocus);
  QWidget::setTabOrder(up, tree);
  QWidget::setTabOrder(tree, rows[0]);
  for (size_t i = 1; i < rows.size(); ++i) QWidget::setTabOrder(rows[i - 1], rows[i]);
}

void DashaView::Fill(SelvaniDailyMod &shown) {
  session = &shown;
  steps.clear();
  session->DashaCalc().CalcDashaVimshottari(session->BirthChart());
  ShowLevel();
}

// The dasha is shared: where another page has asked it for the running chain, it no longer holds the level on show.
void DashaView::Restore() {
  clsDashas &dashas = session->DashaCalc();
  if (dashas.Level() == static_cast<int>(steps.size()) + 1) return;
  dashas.CalcDashaVimshottari(session->BirthChart());
  for (int step : steps) dashas.GoDeep(step);
}

void DashaView::GoDeep(int index) {
  if (!session) return;
  Restore();
  const int level = session->DashaCalc().Level();
  const int step = index;
  session->DashaCalc().GoDeep(index);
  if (session->DashaCalc().Level() > level) steps.push_back(step);
  ShowLevel();
}

void DashaView::GoUp() {
  if (!session) return;
  Restore();
  session->DashaCalc().GoUp();
  const int from = steps.empty() ? -1 : steps.back();
  if (!steps.empty()) steps.pop_back();
  ShowLevel();
  // The period just left is the one that the keyboard stands on.
  if (from >= 0 && !up->hasFocus()) FocusRow(from);
}

void DashaView::ShowLevel() {
  const clsDashas &dashas = session->DashaCalc();
  const DashaPage &page = dashas.Page();
  levelHeading->setText(page.levelHeading);
  pathHeading->setText(page.pathHeading);
  pathHeading->setVisible(page.pathHeading != page.levelHeading);
  const QDateTime &moment = session->AnalysisMoment();
  for (size_t i = 0; i < rows.size(); ++i) {
    const DashaPeriod &period = dashas.Records()[i];
    const QDateTime end = i + 1 < rows.size() ? dashas.Records()[i + 1].Start : clsDashas::EndOf(period);
    rows[i]->setText(page.lblVimElement[i]);
    rows[i]->updateGeometry();
    if (moment < period.Start) {
      rows[i]->SetPeriod(DashaRow::State::Coming, 0, {});
    } else if (moment >= end) {
      rows[i]->SetPeriod(DashaRow::State::Past, 1, tr("over"));
    } else {
      const double share = double(period.Start.secsTo(moment)) / double(std::max<qint64>(1, period.Start.secsTo(end)));
      rows[i]->SetPeriod(DashaRow::State::Running, share, tr("running, %1 % over").arg(static_cast<int>(share * 100)));
    }
  }
  ShowStrip();
  status->setText(page.status);
  emit StatusChanged(page.status);
}

void DashaView::ShowStrip() {
  const DashaLevel &records = session->DashaCalc().Records();
  SpanStrip::Span span;
  span.from = double(records.front().Start.toSecsSinceEpoch());
  span.to = double(clsDashas::EndOf(records.back()).toSecsSinceEpoch());
  span.moment = double(session->AnalysisMoment().toSecsSinceEpoch());
  // As fine as the strip: a day where it spans years, the hour only where it spans days.
  const qint64 length = records.front().Start.daysTo(clsDashas::EndOf(records.back()));
  span.momentWord = session->AnalysisMoment().toString(length > 3 ? QStringLiteral("d MMM yyyy") : QStringLiteral("d MMM, H:mm"));
  const auto caption = [&](const QDateTime &date) {
    return date.toString(length > 3000 ? QStringLiteral("yyyy") : length > 60 ? QStringLiteral("M/yyyy") : QStringLiteral("d/M"));
  };
  for (size_t i = 0; i < records.size(); ++i) {
    const double begin = double(records[i].Start.toSecsSinceEpoch());
    const double end = i + 1 < records.size() ? double(records[i + 1].Start.toSecsSinceEpoch()) : span.to;
    span.parts.push_back({begin, end, session->BirthChart().PlanetName(records[i].Lord), SpanStrip::Tone::Plain});
    span.ticks.push_back({begin, caption(records[i].Start)});
  }
  span.ticks.push_back({span.to, caption(clsDashas::EndOf(records.back()))});
  strip->SetSpan(std::move(span));
}

void DashaView::FocusRow(int row) {
  DashaRow *target = rows[static_cast<size_t>(row)];
  target->setFocus(Qt::TabFocusReason);
  scroll->ensureWidgetVisible(target);
}

void DashaView::keyPressEvent(QKeyEvent *event) {
  const auto found = std::find_if(rows.begin(), rows.end(), [](const DashaRow *row) { return row->hasFocus(); });
  const int row = found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
  const int last = static_cast<int>(rows.size()) - 1;
  switch (event->key()) {
    case Qt::Key_Up: FocusRow(std::max(0, row - 1)); return;
    case Qt::Key_Down: FocusRow(std::min(last, row + 1)); return;
    case Qt::Key_Right:
      if (row >= 0) GoDeep(row);
      return;
    case Qt::Key_Left:
    case Qt::Key_Backspace: GoUp(); return;
    default: PageView::keyPressEvent(event);
  }
}

void DashaView::ApplyFonts(const SetFonts &fonts) {
  for (QWidget *caption : std::initializer_list<QWidget *>{levelHeading, pathHeading, status, up, tree, strip})
    fonts.SetSmallFont(*caption);
  for (DashaRow *row : rows) fonts.SetSmallFont(*row);
}
