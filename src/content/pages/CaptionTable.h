// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "content/pages/SpokenTable.h"

class SetFonts;

// A table of captions: heads over a gold rule, every second row tinted, one row marked as the running one. Rows share
// the height that there is, from 1.6 to 2.5 times the text's height, or more at larger text sizes. Cells are labels under their element's
// name and row number.
class CaptionTable : public QWidget, public SpokenTable {
  Q_OBJECT

 public:
  enum class Tone { Plain, Good, Fair, Bad, Warn };

  struct Column {
    QString element;    // object name of the cells, less the row number
    QString head = {};  // object name of the head; empty for none
    bool strong = false;
    bool caption = false;  // muted: the name of what stands beside it
    Qt::Alignment alignment = Qt::AlignLeft;
    bool picture = false;  // pictures of the skin instead of captions
    bool pill = false;     // the tone is also the cell's ground
    bool narrow = false;   // no wider than its captions
    bool oneLine = false;  // figures that must not be broken
  };

  // firstIndex: the row number of row 0 in the elements' names.
  CaptionTable(std::vector<Column> columns, int rows, int firstIndex = 0, QWidget *parent = nullptr);

  // Takes rows away at the end, or adds empty ones there, whose fonts come with the next ApplyFonts.
  void SetRows(int count);

  QLabel &Head(int column) const;
  QLabel &Cell(int row, int column) const;
  void SetPicture(int row, int column, const QString &skinName);
  void SetTone(int row, int column, Tone tone);

  // -1: none.
  void SetRunningRow(int row);

  // Rows of the full height always, for a table of few rows.
  void SetRoomy();

  // Small as a rule; Normal where a page has room, and Large where it has much room for few rows, which then grow taller too.
  enum class TextSize { Small, Normal, Large };
  // roomy: the page's size from which it is Normal.
  static TextSize TextSizeFor(const QSize &page, const QSize &roomy);
  void ApplyFonts(const SetFonts &fonts, TextSize size = TextSize::Small);

  QSize minimumSizeHint() const override;

  // Pictures repeat the words beside them and are not told; the first caption of a row is its head.
  int SpokenRows() const override { return rows; }
  int SpokenColumns() const override { return static_cast<int>(toldColumns.size()); }
  QLabel *SpokenCell(int row, int column) const override;
  QLabel *SpokenColumnHead(int column) const override;
  QLabel *SpokenRowHead(int row) const override { return SpokenCell(row, 0); }

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  void AddRow();
  QRect RowRect(int row) const;
  int GridRow(int row) const { return hasHeads ? row + 1 : row; }
  void FitRows();
  int Edge() const;
  int CompactSaving() const;

  std::vector<Column> columns;
  std::vector<size_t> toldColumns;
  int rows = 0;
  int first;  // row number of row 0
  bool hasHeads = false;
  int running = -1;
  bool roomy = false;
  TextSize textSize = TextSize::Small;
  bool compact = false;  // narrow gaps and no pictures
  QGridLayout *grid;
  std::vector<QLabel *> heads;
  std::vector<QWidget *> cells;  // row by row
};
