// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/frmPratyan.h"

#include <QDialogButtonBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { Period, Begins, Ends, Mark };
constexpr int Gap = 8;

}  // namespace

frmPratyan::frmPratyan(QWidget *parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPratyan"));
  setWindowTitle(tr("Vimshottari Dasha"));
  tvwPratyan = new QTreeWidget;
  tvwPratyan->setObjectName(QStringLiteral("tvwPratyan"));
  tvwPratyan->setAccessibleName(tr("Periods with their sub-periods"));
  tvwPratyan->setHeaderLabels({tr("Period"), tr("Begins"), tr("Ends"), QString()});
  tvwPratyan->setAlternatingRowColors(true);
  tvwPratyan->setUniformRowHeights(true);
  tvwPratyan->setStyleSheet(QStringLiteral("QTreeWidget::item { min-height: %1px; }").arg(fontMetrics().height() + Gap));
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(2 * Gap, 2 * Gap, 2 * Gap, 2 * Gap);
  layout->setSpacing(2 * Gap);
  layout->addWidget(tvwPratyan);
  layout->addWidget(buttons);
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
  resize(50 * em, 40 * em);
}

void frmPratyan::FindPratyantara(const clsPlanets &birthChart, const QDateTime &moment) {
  tree.FindPratyantara(birthChart, moment);
  tvwPratyan->clear();
  running = nullptr;
  for (const PratyanPeriod &period : tree.Periods()) Add(tvwPratyan->invisibleRootItem(), period);
  int width = 12 * Gap;  // frame, margins, scroll bar
  for (int column = Period; column <= Mark; ++column) {
    tvwPratyan->resizeColumnToContents(column);
    tvwPratyan->setColumnWidth(column, tvwPratyan->columnWidth(column) + 2 * Gap);
    width += tvwPratyan->columnWidth(column);
  }
  resize(std::max(width, this->width()), height());
  if (!running) return;
  tvwPratyan->setCurrentItem(running);
  tvwPratyan->scrollToItem(running, QAbstractItemView::PositionAtCenter);
}

void frmPratyan::Add(QTreeWidgetItem *parent, const PratyanPeriod &period) {
  auto *item = new QTreeWidgetItem(parent);
  item->setText(Period, period.name);
  item->setText(Begins, tree.DateText(period.begin));
  item->setText(Ends, tree.DateText(period.end));
  if (period.running) {
    item->setText(Mark, tr("running"));
    QFont bold = font();
    bold.setBold(true);
    for (int column = Period; column <= Mark; ++column) item->setFont(column, bold);
    running = item;
  }
  for (const PratyanPeriod &part : period.parts) Add(item, part);
  if (period.running) item->setExpanded(true);
}
