// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

class QLabel;

// A widget whose labels stand in rows and columns, told to assistive tools as a table with its heads. To be a base of
// the widget beside QWidget; the labels are the widget's own children.
class SpokenTable {
 public:
  SpokenTable();
  virtual ~SpokenTable() = default;

  virtual int SpokenRows() const = 0;
  virtual int SpokenColumns() const = 0;
  // Rows and columns count from 0; heads are none where the table has none.
  virtual QLabel *SpokenCell(int row, int column) const = 0;
  virtual QLabel *SpokenColumnHead(int column) const = 0;
  virtual QLabel *SpokenRowHead(int row) const = 0;
};
