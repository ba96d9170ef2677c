// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

class clsPlanets;

// A civil month as a grid of days, weeks beginning with Sunday, each day by its sunrise.
struct MonthPage {
  struct Cell {
    QDate date;
    QString tithi;      // "Shukla Dvadashi 21:14": what runs at sunrise, with its end; "4:51+" is the next day
    QString nakshatra;  // "Revati 13:02"
    QString sun;        // "6:46 - 17:25", or why there is none
    QStringList marks;  // "Ekadashi", "Sun enters Scorpio 13:20"
    QString spoken;     // all of it in one sentence
    bool isToday = false;
  };

  int year = 0, month = 0;
  QString title;     // "November 2026"
  QString subtitle;  // lunar months and years, place and rules
  QStringList weekdays;
  std::vector<Cell> cells;  // of the month's own days
  int firstColumn = 0;      // column of the first day, 0 Sunday

  int Weeks() const { return (firstColumn + static_cast<int>(cells.size()) + 6) / 7; }
};

// Of the analysis moment's month, or of a chosen one at the chart's place.
MonthPage FillMonth(const clsPlanets &todayChart);
MonthPage FillMonth(const clsPlanets &todayChart, int year, int month);
