// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "content/pages/SpokenTable.h"

class QGridLayout;
class SetFonts;

// A grid of short figures between heads above and at the left, where a cell's ground can carry a colour. Cells are
// labels named element, row, "_" and column; the heads element + "Row" and element + "Column" with their number.
class CellGrid : public QWidget, public SpokenTable {
  Q_OBJECT

 public:
  CellGrid(const QString &element, int rows, int columns, QWidget *parent = nullptr);

  QLabel &Cell(int row, int column) const;
  QLabel &RowHead(int row) const;
  QLabel &ColumnHead(int column) const;

  // An invalid colour: none.
  void SetGround(int row, int column, const QColor &colour);
  // -1: none.
  void SetRunningRow(int row);

  void ApplyFonts(const SetFonts &fonts);

  int SpokenRows() const override { return rows; }
  int SpokenColumns() const override { return columns; }
  QLabel *SpokenCell(int row, int column) const override { return &Cell(row, column); }
  QLabel *SpokenColumnHead(int column) const override { return &ColumnHead(column); }
  QLabel *SpokenRowHead(int row) const override { return &RowHead(row); }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  size_t IndexOf(int row, int column) const;
  void FitRows();

  int rows, columns;
  int running = -1;
  QGridLayout *grid;
  std::vector<QLabel *> cells, rowHeads, columnHeads;
  std::vector<QColor> grounds;
};
