// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/CaptionTable.h"

#include <QPainter>
#include <algorithm>

#include "content/Role.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/SelectableLabel.h"
#include "content/pages/SkinLabel.h"
#include "platform/Errors.h"

namespace {

constexpr double TightRow = 1.6, RoomyRow = 2.5;  // row heights in text heights
constexpr int WideGap = Grid::Gap + 4, NarrowGap = 5;
constexpr int NarrowSide = 6, Side = 10;  // from the tint's edge to the text
constexpr int RunningBar = 4;

const char *RoleOf(CaptionTable::Tone tone) {
  switch (tone) {
    case CaptionTable::Tone::Good: return "good";
    case CaptionTable::Tone::Bad: return "bad";
    case CaptionTable::Tone::Warn: return "warn";
    default: return "value";
  }
}

QColor GroundOf(const QString &role) {
  const Theme &theme = Theme::Current();
  return role == QLatin1String("good") ? theme.goodBack : role == QLatin1String("bad") ? theme.badBack : theme.selection;
}

QLabel *MakeLabel(QWidget *parent, const QString &name, const char *role, bool bold, Qt::Alignment alignment, bool wrap) {
  auto *label = new SelectableLabel(parent);
  label->setObjectName(name);
  label->setProperty("role", QString::fromLatin1(role));
  label->setWordWrap(wrap);
  label->setContentsMargins(0, 2, 0, 2);
  label->setAlignment(alignment | Qt::AlignVCenter);
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  return label;
}

}  // namespace

CaptionTable::CaptionTable(std::vector<Column> tableColumns, int rowCount, int firstIndex, QWidget *parent)
    : QWidget(parent), columns(std::move(tableColumns)), first(firstIndex), grid(new QGridLayout(this)) {
  grid->setContentsMargins(Side, 0, Side, 0);
  grid->setHorizontalSpacing(WideGap);
  grid->setVerticalSpacing(0);
  hasHeads = std::any_of(columns.begin(), columns.end(), [](const Column &column) { return !column.head.isEmpty(); });
  for (size_t c = 0; c < columns.size(); ++c) {
    const Column &column = columns[c];
    if (!column.picture) toldColumns.push_back(c);
    heads.push_back(column.head.isEmpty() ? nullptr : MakeLabel(this, column.head, "caption", true, column.alignment, true));
    if (heads.back()) heads.back()->setContentsMargins(0, 2, 0, 6);
    if (heads.back()) grid->addWidget(heads.back(), 0, static_cast<int>(c));
  }
  while (rows < rowCount) AddRow();
  FitRows();
}

void CaptionTable::AddRow() {
  for (size_t c = 0; c < columns.size(); ++c) {
    const Column &column = columns[c];
    const QString name = column.element + QString::number(first + rows);
    QWidget *cell = nullptr;
    if (column.picture) {
      cell = new SkinLabel(this);
      cell->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
      cell->setObjectName(name);
      if (compact) cell->hide();
    } else {
      cell = MakeLabel(this, name, column.caption ? "caption" : "value", column.strong, column.alignment, !column.oneLine);
    }
    if (column.narrow) cell->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    grid->addWidget(cell, GridRow(rows), static_cast<int>(c), column.pill ? Qt::AlignCenter : Qt::Alignment());
    cells.push_back(cell);
  }
  grid->setRowStretch(GridRow(rows), 1);
  ++rows;
}

void CaptionTable::SetRows(int count) {
  if (count == rows) return;
  while (rows < count) AddRow();
  while (rows > count) {
    --rows;
    for (size_t c = 0; c < columns.size(); ++c) {
      delete cells.back();
      cells.pop_back();
    }
    grid->setRowStretch(GridRow(rows), 0);
    grid->setRowMinimumHeight(GridRow(rows), 0);
  }
  if (running >= rows) running = -1;
  FitRows();
}

QLabel &CaptionTable::Head(int column) const {
  SubscriptError::Check("table head", column, 0, static_cast<int>(columns.size()) - 1);
  QLabel *head = heads[static_cast<size_t>(column)];
  if (!head) throw SubscriptError(QStringLiteral("The table's column %1 has no head.").arg(column));
  return *head;
}

QLabel &CaptionTable::Cell(int row, int column) const {
  SubscriptError::Check("table row", row, 0, rows - 1);
  auto *label = qobject_cast<QLabel *>(cells[static_cast<size_t>(row) * columns.size() + static_cast<size_t>(column)]);
  if (!label) throw SubscriptError(QStringLiteral("The table's column %1 holds pictures.").arg(column));
  return *label;
}

QLabel *CaptionTable::SpokenCell(int row, int column) const {
  return qobject_cast<QLabel *>(cells[static_cast<size_t>(row) * columns.size() + toldColumns[static_cast<size_t>(column)]]);
}

QLabel *CaptionTable::SpokenColumnHead(int column) const { return heads[toldColumns[static_cast<size_t>(column)]]; }

void CaptionTable::SetPicture(int row, int column, const QString &skinName) {
  SubscriptError::Check("table row", row, 0, rows - 1);
  auto *picture = qobject_cast<SkinLabel *>(cells[static_cast<size_t>(row) * columns.size() + static_cast<size_t>(column)]);
  if (picture) picture->SetPicture(skinName);
}

void CaptionTable::SetTone(int row, int column, Tone tone) {
  SetRole(Cell(row, column), RoleOf(tone));
  update();
}

void CaptionTable::SetRunningRow(int row) {
  running = row;
  update();
}

CaptionTable::TextSize CaptionTable::TextSizeFor(const QSize &page, const QSize &roomy) {
  constexpr QSize vast(1100, 760);
  const auto holds = [&](const QSize &size) { return page.width() >= size.width() && page.height() >= size.height(); };
  return holds(vast) ? TextSize::Large : holds(roomy) ? TextSize::Normal : TextSize::Small;
}

void CaptionTable::ApplyFonts(const SetFonts &fonts, TextSize size) {
  textSize = size;
  for (QLabel *head : heads) {
    if (!head) continue;
    fonts.SetSmallFont(*head);
    if (size == TextSize::Large) fonts.SetNormalFont(*head);
  }
  const int points = size == TextSize::Large    ? fonts.SubHeadFont().pointSize()
                     : size == TextSize::Normal ? fonts.NormalFont().pointSize()
                                                : fonts.SmallFont().pointSize();
  for (QWidget *cell : cells) {
    fonts.SetNormalFont(*cell);
    QFont font = cell->font();  // bold stays where a column has it
    font.setPointSize(points);
    cell->setFont(font);
  }
  FitRows();
}

void CaptionTable::FitRows() {
  const int text = cells.empty() ? fontMetrics().height() : cells.front()->fontMetrics().height();
  for (int row = 0; row < GridRow(rows); ++row)
    grid->setRowMinimumHeight(row, qRound(text * (roomy && (!hasHeads || row > 0) ? RoomyRow : TightRow)));
  const double tallest = textSize == TextSize::Large ? 4.2 : textSize == TextSize::Normal ? 3.2 : RoomyRow;
  const int full = qRound(text * TightRow) + qRound(rows * text * tallest);
  const int needed = hasHeightForWidth() ? heightForWidth(width()) : 0;
  // A few rows take all the height of a large page.
  setMaximumHeight(roomy && textSize == TextSize::Large ? QWIDGETSIZE_MAX : std::max(full, needed));
}

void CaptionTable::SetRoomy() {
  roomy = true;
  FitRows();
}

int CaptionTable::Edge() const { return compact ? NarrowSide : Side; }

// What narrow gaps and leaving out the pictures save of the width.
int CaptionTable::CompactSaving() const {
  int saving = 2 * (Side - NarrowSide) + (WideGap - NarrowGap) * (static_cast<int>(columns.size()) - 1);
  for (size_t c = 0; c < columns.size(); ++c)
    if (columns[c].picture) saving += cells[c]->sizeHint().width() + NarrowGap;
  return saving;
}

QSize CaptionTable::minimumSizeHint() const {
  const QSize now = grid->minimumSize();
  return {compact ? now.width() : now.width() - CompactSaving(), now.height()};
}

void CaptionTable::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  const bool narrow = width() < minimumSizeHint().width() + CompactSaving();
  if (narrow != compact) {
    compact = narrow;
    grid->setHorizontalSpacing(compact ? NarrowGap : WideGap);
    grid->setContentsMargins(Edge(), 0, Edge(), 0);
    for (size_t cell = 0; cell < cells.size(); ++cell)
      if (columns[cell % columns.size()].picture) cells[cell]->setVisible(!compact);
  }
  FitRows();
}

QRect CaptionTable::RowRect(int row) const {
  // A pill is no taller than its words: the row's height is that of any other cell.
  const auto full = std::find_if(columns.begin(), columns.end(), [](const Column &column) { return !column.pill && !column.picture; });
  const QWidget *cell = cells[static_cast<size_t>(row) * columns.size() + static_cast<size_t>(full - columns.begin())];
  return {0, cell->y(), width(), cell->height()};
}

void CaptionTable::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (int row = 0; row < rows; ++row) {
    if (row != running && row % 2 == 0) continue;
    const QRectF strip = QRectF(RowRect(row)).adjusted(0, 1, 0, -1);
    painter.setBrush(row == running ? theme.selection : theme.tint);
    painter.drawRoundedRect(strip, 6, 6);
    if (row != running) continue;
    painter.setBrush(theme.chart.saffron);
    painter.drawRoundedRect(QRectF(strip.left(), strip.top() + 3, RunningBar, strip.height() - 6), 2, 2);
  }
  for (size_t c = 0; c < columns.size(); ++c) {
    if (!columns[c].pill) continue;
    for (int row = 0; row < rows; ++row) {
      const QLabel &label = Cell(row, static_cast<int>(c));
      if (label.text().isEmpty()) continue;
      const QRectF pill = QRectF(label.geometry()).adjusted(-7, 1, 7, -1);
      painter.setBrush(GroundOf(label.property("role").toString()));
      painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    }
  }
  if (!hasHeads || rows == 0) return;
  painter.fillRect(QRect(Edge(), RowRect(0).top() - 2, width() - 2 * Edge(), 2), theme.chart.gold);
}
