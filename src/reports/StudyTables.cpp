// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// What the report's study pages are made of: titles, tables that may run over several pages, notes and charts.
#include <QCoreApplication>
#include <algorithm>
#include <numeric>

#include "analysis/SelvaniDailyMod.h"
#include "chart/KundaliModel.h"
#include "reports/ChartOutput.h"
#include "reports/clsDailyPrinter.h"

namespace {

constexpr unsigned Black = 0;
constexpr double PageWidth = 6.6, TableTop = 1.25, PageBottom = 9.15;        // inches
constexpr double HeadHeight = 330, Side = 65, CentredSide = 30, Above = 30;  // twips
constexpr double LeastText = 8, WrappedText = 9;                             // points
constexpr double LineHeight = 23;                                            // twips of a line for each point
constexpr int ThinPen = 4;
constexpr double LeastHouseNumber = 6;  // points; a small number keeps off the chart's lines

}  // namespace

void clsDailyPrinter::BeginStudyPage(const QString &title) {
  PageHeader();
  PageFooter();
  Title(title, LeftMargin + Inches(PageWidth / 2), TopMargin + Inches(TableTop - 0.25));
}

QString clsDailyPrinter::BirthTitle(const char *title) const {
  return QCoreApplication::translate("clsDailyPrinter", "%1 at Birth").arg(PageTitle(title));
}

QString clsDailyPrinter::DayTitle(const char *title) const {
  return QCoreApplication::translate("clsDailyPrinter", "%1 Today").arg(PageTitle(title));
}

void clsDailyPrinter::OfBirthAndDay(const char *title, const std::function<void(const clsPlanets &, const QString &)> &print) {
  BeginStudyPage(BirthTitle(title));
  print(session.BirthChart(), BirthTitle(title));
  printer.NewPage();
  BeginStudyPage(DayTitle(title));
  print(session.TodayChart(), DayTitle(title));
}

// One size for the heads and one for the cells, by the column that has the least room.
clsDailyPrinter::LaidTable clsDailyPrinter::LayTable(const Table &table) {
  const std::vector<TableColumn> &columns = table.columns;
  const auto sumShares = [](double sum, const TableColumn &column) { return sum + column.share; };
  const double unit = Inches(PageWidth) / std::accumulate(columns.begin(), columns.end(), 0.0, sumShares);
  LaidTable laid{table, {LeftMargin}, {}, Style(), Style()};
  for (const TableColumn &column : columns) laid.lefts.push_back(laid.lefts.back() + unit * column.share);

  const bool wraps = std::any_of(columns.begin(), columns.end(), [](const TableColumn &column) { return column.wraps; });
  laid.body.size = std::min({(table.rowHeight - Above) / LineHeight, table.points, wraps ? WrappedText : table.points});
  laid.head = {laid.body.font, laid.body.size, true};
  for (size_t i = 0; i < columns.size(); ++i) {
    laid.head = Common({columns[i].head}, laid.Room(i), LeastText, laid.head);
    if (!columns[i].wraps) laid.body.size = Common(columns[i].cells, laid.Room(i), LeastText, laid.StyleOf(i)).size;
  }
  laid.heights.assign(static_cast<size_t>(columns.front().cells.size()), table.rowHeight);
  for (size_t row = 0; row < laid.heights.size(); ++row)
    for (size_t i = 0; i < columns.size(); ++i)
      if (columns[i].wraps) laid.heights[row] = std::max(laid.heights[row], WrapCell(laid, row, i, 0, false) + 2 * Above);
  return laid;
}

double clsDailyPrinter::LaidTable::Room(size_t column) const {
  return lefts[column + 1] - lefts[column] - 2 * (table.columns[column].across == Across::Center ? CentredSide : Side);
}

double clsDailyPrinter::WrapCell(const LaidTable &laid, size_t row, size_t column, double top, bool print) {
  return WrapColumn(laid.Cell(row, column), laid.lefts[column] + Side, top, laid.Room(column), 0, laid.StyleOf(column), print);
}

void clsDailyPrinter::PlaceCell(const LaidTable &laid, const QString &text, size_t column, double middle, const Style &style) {
  const Across across = laid.table.columns[column].across;
  const double left = laid.lefts[column], right = laid.lefts[column + 1];
  const double x = across == Across::Left ? left + Side : across == Across::Right ? right - Side : (left + right) / 2;
  PlaceFitted(text, x, middle, across, Down::Middle, laid.Room(column), style);
}

double clsDailyPrinter::PrintRows(const LaidTable &laid, size_t from, size_t to, double y) {
  const size_t columns = laid.table.columns.size();
  const double left = laid.lefts.front(), right = laid.lefts.back(), firstRow = y + HeadHeight;
  double bottom = firstRow;
  for (size_t row = from; row < to; bottom += laid.heights[row++])
    for (size_t i = 0; laid.table.ground && i < columns; ++i)
      printer.FilledBox(laid.lefts[i], bottom, laid.lefts[i + 1], bottom + laid.heights[row], laid.table.ground(row, i));
  printer.SetDrawWidth(1);
  printer.Box(left, y, right, bottom, Black);
  Rule(left, firstRow, right, firstRow);
  if (laid.table.withTotal && to == laid.heights.size()) Rule(left, bottom - laid.heights.back(), right, bottom - laid.heights.back());
  for (size_t i = 1; i < columns; ++i) Rule(laid.lefts[i], y, laid.lefts[i], bottom);

  for (size_t i = 0; i < columns; ++i) PlaceCell(laid, laid.table.columns[i].head, i, y + HeadHeight / 2, laid.head);
  double top = firstRow;
  for (size_t row = from; row < to; top += laid.heights[row++]) {
    for (size_t i = 0; i < columns; ++i) {
      if (laid.table.columns[i].wraps)
        WrapCell(laid, row, i, top + (laid.heights[row] - WrapCell(laid, row, i, 0, false)) / 2, true);
      else
        PlaceCell(laid, laid.Cell(row, i), i, top + laid.heights[row] / 2, laid.StyleOf(i));
    }
  }
  return bottom;
}

double clsDailyPrinter::RoomFor(double height, double y) {
  if (y + height <= TopMargin + Inches(PageBottom) || y <= TopMargin + Inches(TableTop)) return y;
  NextPage();
  return printer.CurrentY();
}

double clsDailyPrinter::HeightOf(const Table &table) {
  const LaidTable laid = LayTable(table);
  return std::accumulate(laid.heights.begin(), laid.heights.end(), HeadHeight);
}

double clsDailyPrinter::PrintTable(const Table &table, double y) {
  const LaidTable laid = LayTable(table);
  size_t from = 0;
  do {
    y = RoomFor(HeadHeight + laid.heights[from], y);
    // A row that is higher than a whole page stands alone.
    size_t to = from;
    double bottom = y + HeadHeight;
    while (to < laid.heights.size() && (to == from || bottom + laid.heights[to] <= TopMargin + Inches(PageBottom)))
      bottom += laid.heights[to++];
    y = PrintRows(laid, from, to, y);
    from = to;
  } while (from < laid.heights.size());
  return y;
}

double clsDailyPrinter::PrintNote(const QString &text, double y) {
  if (text.isEmpty()) return y;
  const Style style{QLatin1String(NormFont), WrappedText};
  const auto wrap = [&](double top, bool print) { return WrapColumn(text, LeftMargin, top, Inches(PageWidth), 0, style, print); };
  y = RoomFor(Side + wrap(0, false), y) + Side;
  return y + wrap(y, true);
}

void clsDailyPrinter::StudyChart(const KundaliPage &page, const QString &title, const QRectF &place, double points) {
  PlaceFitted(title, place.center().x(), place.top(), Across::Center, Down::Top, place.width(), {QLatin1String(NormFont), points, true});
  KundaliModel model;
  QFont font(PrintFont().name);
  font.setPointSizeF(points);
  model.SetPlanetFont(font);
  font.setPointSizeF(std::max(points - 3, LeastHouseNumber));
  model.SetHouseFont(font);
  Place(model, page);
  const double titleHeight = points * LineHeight + Above;
  ChartOutput::PrintKundli(printer, model.Layout(), QSizeF(place.width(), place.height() - titleHeight), place.left(),
                           place.top() + titleHeight, ThinPen);
}
