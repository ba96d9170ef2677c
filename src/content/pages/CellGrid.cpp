// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/CellGrid.h"

#include <QGridLayout>
#include <QPainter>

#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/SelectableLabel.h"
#include "platform/Errors.h"

namespace {

constexpr double TightRow = 1.6, RoomyRow = 2.5;  // row heights in text heights
constexpr int Side = 10, Gap = 4;
constexpr int RunningBar = 4;

QLabel *MakeLabel(QWidget *parent, const QString &name, const char *role, bool bold, Qt::Alignment alignment) {
  auto *label = new SelectableLabel(parent);
  label->setObjectName(name);
  label->setProperty("role", QString::fromLatin1(role));
  label->setAlignment(alignment | Qt::AlignVCenter);
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  return label;
}

}  // namespace

CellGrid::CellGrid(const QString &element, int rowCount, int columnCount, QWidget *parent)
    : QWidget(parent), rows(rowCount), columns(columnCount), grid(new QGridLayout(this)) {
  grid->setContentsMargins(Side, 0, Side, 0);
  grid->setHorizontalSpacing(Gap);
  grid->setVerticalSpacing(0);
  const auto name = [&element](const QString &rest) { return element + rest; };
  for (int column = 0; column < columns; ++column) {
    columnHeads.push_back(MakeLabel(this, name(QStringLiteral("Column%1").arg(column)), "caption", true, Qt::AlignHCenter));
    grid->addWidget(columnHeads.back(), 0, column + 1);
    grid->setColumnStretch(column + 1, 1);
  }
  for (int row = 0; row < rows; ++row) {
    rowHeads.push_back(MakeLabel(this, name(QStringLiteral("Row%1").arg(row)), "value", true, Qt::AlignLeft));
    rowHeads.back()->setContentsMargins(0, 0, Grid::Gap, 0);
    grid->addWidget(rowHeads.back(), row + 1, 0);
    for (int column = 0; column < columns; ++column) {
      cells.push_back(MakeLabel(this, name(QStringLiteral("%1_%2").arg(row).arg(column)), "value", false, Qt::AlignHCenter));
      grid->addWidget(cells.back(), row + 1, column + 1);
    }
    grid->setRowStretch(row + 1, 1);
  }
  grounds.resize(cells.size());
  FitRows();
}

size_t CellGrid::IndexOf(int row, int column) const {
  SubscriptError::Check("grid row", row, 0, rows - 1);
  SubscriptError::Check("grid column", column, 0, columns - 1);
  return static_cast<size_t>(row) * static_cast<size_t>(columns) + static_cast<size_t>(column);
}

QLabel &CellGrid::Cell(int row, int column) const { return *cells[IndexOf(row, column)]; }

QLabel &CellGrid::RowHead(int row) const { return *rowHeads[IndexOf(row, 0) / static_cast<size_t>(columns)]; }

QLabel &CellGrid::ColumnHead(int column) const { return *columnHeads[IndexOf(0, column)]; }

void CellGrid::SetGround(int row, int column, const QColor &colour) {
  grounds[IndexOf(row, column)] = colour;
  update();
}

void CellGrid::SetRunningRow(int row) {
  running = row;
  update();
}

void CellGrid::ApplyFonts(const SetFonts &fonts) {
  for (const auto *labels : {&cells, &rowHeads, &columnHeads})
    for (QLabel *label : *labels) fonts.SetSmallFont(*label);
  FitRows();
}

void CellGrid::FitRows() {
  const int text = cells.front()->fontMetrics().height();
  for (int row = 0; row <= rows; ++row) grid->setRowMinimumHeight(row, qRound(text * TightRow));
  setMaximumHeight(qRound(text * TightRow) + qRound(rows * text * RoomyRow));
}

void CellGrid::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (int row = 0; row < rows; ++row) {
    if (row != running && row % 2 == 0) continue;
    const QRect head = rowHeads[static_cast<size_t>(row)]->geometry();
    const QRectF strip = QRectF(0, head.y(), width(), head.height()).adjusted(0, 1, 0, -1);
    painter.setBrush(row == running ? theme.selection : theme.tint);
    painter.drawRoundedRect(strip, 6, 6);
    if (row != running) continue;
    painter.setBrush(theme.chart.saffron);
    painter.drawRoundedRect(QRectF(strip.left(), strip.top() + 3, RunningBar, strip.height() - 6), 2, 2);
  }
  for (size_t cell = 0; cell < cells.size(); ++cell) {
    if (!grounds[cell].isValid()) continue;
    painter.setBrush(grounds[cell]);
    painter.drawRoundedRect(QRectF(cells[cell]->geometry()).adjusted(-1, 1, 1, -1), 5, 5);
  }
  painter.fillRect(QRect(Side, rowHeads.front()->y() - 2, width() - 2 * Side, 2), theme.chart.gold);
}
