// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "dasha/DashaPeriod.h"
#include "engine/clsPlanets.h"

// What the dasha page shows of the level that is open.
struct DashaPage {
  std::array<QString, 9> lblVimElement;  // lord and start of each period
  QString levelHeading;                  // name of the level
  QString pathHeading;                   // the lords chosen on the way down
  QString status;                        // a line for the status bar, when a step is not possible
};

// The Vimshottari dasha: one level of nine periods at a time, walked down and up, and the chain of five periods
// that runs at the analysis moment. The Moon always comes from the session's birth chart; the chart handed over
// supplies the person and the words.
class clsDashas {
 public:
  // birthChart: the session's birth chart; analysisMoment: the moment whose running chain is wanted.
  clsDashas(std::function<const clsPlanets &()> birthChart, std::function<QDateTime()> analysisMoment);

  void CalcDashaVimshottari(const clsPlanets &chart);
  // Before the chart last handed over goes away: Level is 0 until a dasha is calculated again.
  void Forget();
  // Goes down into the period of the 0-based index, which becomes 1-based in the caller's variable; at level 5
  // it only says so in the status line. An index outside 0 to 8 throws SubscriptError.
  void GoDeep(int &index);
  void GoUp();
  // The five running lords as planet indices, each followed by a colon ("6:3:9:2:5:"); leaves Level at 6.
  // Shorter when a level starts at or after the moment itself.
  QString CalcCurrentDasha(const clsPlanets &chart);

  // The end of a period that begins at the date and takes so many years.
  static QDateTime AddYears(const QDateTime &date, double years);
  static QDateTime EndOf(const DashaPeriod &period) { return AddYears(period.Start, period.Length); }

  int Level() const { return level; }  // 1 Mahadasha to 5 Prana; 0 before the first
  const DashaLevel &Records() const { return records; }
  const DashaPage &Page() const { return page; }

 private:
  void StartAtBirth(const clsPlanets &chart);
  static double CalcSubPeriodLength(double parentLength, int lord);
  void GenerateDashaLevel(int lord, int position, QDateTime start, double parentLength, DashaLevel &out);
  void GenerateFrom(DashaPeriod period);
  void ShowDashaLevel();
  QString ShowDashaPath() const;
  int FindLordPosition(const QString &lordText) const;
  const clsPlanets &Chart() const;

  std::function<const clsPlanets &()> birth;
  std::function<QDateTime()> moment;
  const clsPlanets *current = nullptr;  // the chart last handed over
  int level = 0;
  DashaLevel records;
  std::vector<QString> path;  // entry k - 1 holds the lord chosen at level k
  DashaPage page;
};
