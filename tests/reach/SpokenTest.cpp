// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// What assistive tools are told of charts, drawings that are chosen from, and tables.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDate>
#include <QTest>

#include "chart/Kundali.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/CellGrid.h"
#include "content/pages/MonthGrid.h"
#include "content/pages/ScoreLine.h"

namespace {

QAccessibleInterface &Told(QWidget &widget) { return *QAccessible::queryAccessibleInterface(&widget); }

QString NameOf(QAccessibleInterface *told) { return told ? told->text(QAccessible::Name) : QStringLiteral("none"); }

}  // namespace

TEST(SpokenChart, TellsEachHouseWithItsSignAndItsPlanets) {
  Kundali chart;
  chart.resize(300, 300);
  KundaliModel::SpokenNames names;
  for (int sign = 1; sign <= 12; ++sign) names.signs.push_back(QStringLiteral("Sign%1").arg(sign));
  names.planets = {{"Asc", "Ascendant"}, {"Mar", "Mars"}};
  chart.SetSpokenNames(names);
  chart.SetHouseNumber(6);
  for (const char *planet : {"Asc", "Mar", "Sat"}) chart.PlanetPlace(6, planet);
  QAccessibleInterface &told = Told(chart);
  EXPECT_EQ(told.role(), QAccessible::Chart);
  ASSERT_EQ(told.childCount(), 12);
  EXPECT_EQ(NameOf(told.child(0)), "House 1, Sign6: Ascendant, Mars, Sat.");
  EXPECT_EQ(NameOf(told.child(7)), "House 8, Sign1: empty.");
  EXPECT_EQ(told.child(12), nullptr);
  const auto at = [&](int x, int y) { return told.childAt(chart.mapToGlobal(QPoint(x, y)).x(), chart.mapToGlobal(QPoint(x, y)).y()); };
  EXPECT_EQ(at(150, 220), told.child(6));
  EXPECT_EQ(at(75, 30), told.child(1));
  EXPECT_EQ(at(20, 75), told.child(2)) << "beside the slanted side of the second house";
  EXPECT_EQ(at(-5, 20), nullptr);
  EXPECT_EQ(told.indexOfChild(told.child(3)), 3);
  EXPECT_EQ(chart.accessibleDescription(), "House 1, Sign6: Ascendant, Mars, Sat.") << "empty houses are left out of the whole";
  chart.SetChartStyle(ChartLayout::South);
  EXPECT_TRUE(NameOf(told.child(4)).startsWith("Sign5: ")) << NameOf(told.child(4)).toStdString();
}

TEST(SpokenDays, TheKeysTellTheDayAndAToolOpensIt) {
  MonthPage page;
  page.title = "November 2026";
  for (int day = 1; day <= 30; ++day) {
    MonthPage::Cell cell;
    cell.date = QDate(2026, 11, day);
    cell.spoken = QStringLiteral("day %1").arg(day);
    cell.isToday = day == 21;
    page.cells.push_back(cell);
  }
  MonthGrid month;
  month.SetPage(page);
  ScoreLine line;
  line.SetCourse("Health", QDate(2026, 11, 21), {10, 20, 30}, false);
  QList<QDate> opened;
  QObject::connect(&month, &MonthGrid::DayChosen, [&](const QDate &day) { opened << day; });
  QObject::connect(&line, &ScoreLine::DayChosen, [&](const QDate &day) { opened << day; });
  for (QWidget *widget : {static_cast<QWidget *>(&month), static_cast<QWidget *>(&line)}) {
    widget->resize(700, 500);
    widget->show();
    widget->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(widget));
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, Qt::Key_Right);
    EXPECT_EQ(Told(*widget).role(), QAccessible::List);
    EXPECT_TRUE(Told(*widget).focusChild()->state().focused);
    EXPECT_EQ(NameOf(Told(*widget).focusChild()), widget == &month ? "day 22" : "Sunday, 22 November 2026: 20");
    QTest::keyClick(widget, Qt::Key_Space);
    EXPECT_EQ(opened, QList<QDate>{QDate(2026, 11, 22)});
    opened.clear();
    QAccessibleActionInterface *actions = Told(*widget).child(0)->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened, QList<QDate>{widget == &month ? QDate(2026, 11, 1) : QDate(2026, 11, 21)});
    opened.clear();
  }
}

TEST(SpokenTable, TellsCellsWithTheirHeadsAndLeavesPicturesOut) {
  QWidget page;
  page.setAccessibleName("Planets at birth");
  CaptionTable table(
      {{.element = "img", .picture = true}, {.element = "name", .head = "headName"}, {.element = "sign", .head = "headSign"}}, 3, 0, &page);
  table.Head(1).setText("Planet");
  table.Head(2).setText("Rashi");
  table.Cell(2, 1).setText("Moon");
  table.Cell(2, 2).setText("Scorpio");
  QAccessibleInterface &told = Told(table);
  EXPECT_EQ(told.role(), QAccessible::Table);
  EXPECT_EQ(NameOf(&told), "Planets at birth");
  QAccessibleTableInterface *cells = told.tableInterface();
  ASSERT_NE(cells, nullptr);
  EXPECT_EQ(cells->columnCount(), 2);
  EXPECT_EQ(cells->rowCount(), 3);
  EXPECT_EQ(cells->columnDescription(1), "Rashi");
  EXPECT_EQ(cells->cellAt(3, 0), nullptr);
  QAccessibleInterface *cell = cells->cellAt(2, 1);
  EXPECT_EQ(NameOf(cell), "Scorpio");
  EXPECT_EQ(cell->role(), QAccessible::Cell);
  QAccessibleTableCellInterface *place = cell->tableCellInterface();
  ASSERT_NE(place, nullptr);
  EXPECT_EQ(NameOf(place->columnHeaderCells().value(0)), "Rashi");
  EXPECT_EQ(NameOf(place->rowHeaderCells().value(0)), "Moon");
  EXPECT_EQ(place->table(), &told);
  EXPECT_TRUE(cells->cellAt(2, 0)->tableCellInterface()->rowHeaderCells().isEmpty()) << "a row's head heads itself not";

  CellGrid grid("grid", 2, 2, &page);
  grid.RowHead(1).setText("Sun");
  grid.Cell(1, 0).setText("7");
  QAccessibleInterface *points = Told(grid).tableInterface()->cellAt(1, 0);
  EXPECT_EQ(NameOf(points), "7");
  EXPECT_EQ(NameOf(points->tableCellInterface()->rowHeaderCells().value(0)), "Sun");
  EXPECT_EQ(Told(grid.RowHead(1)).role(), QAccessible::RowHeader);
}
