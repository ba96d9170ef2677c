// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "analysis/ExactTimes.h"

class clsPlanets;

// The exact day as a drawing of bars from sunrise to sunrise and as tables of times. Places in the drawing are minutes from the
// day's beginning.
struct ExactDayPage {
  enum class Tone { Plain, Light, Good, Bad, Note };  // a note stands where nothing is, and says so

  struct Bar {
    double begins = 0, ends = 0;
    QStringList captions;  // from the longest on: the first that fits is written
    QString spoken;        // the whole, "Rahu Kaal 9:16 to 10:50, avoid"
    Tone tone = Tone::Plain;
    int level = 0;  // bars that overlap lie on levels of their own
  };
  struct Lane {
    QString head;
    std::vector<Bar> bars;
    int levels = 1;
    bool apart = false;  // a little space before it
  };
  struct Fact {
    const char *element;
    QString head, value;
  };
  struct Row {
    QString head, name, begins, ends, remark;  // begins is empty where the row is one moment or has none
    Tone tone = Tone::Plain;
    bool running = false;
  };

  QString title;         // "Saturday, November 21, 2026"
  QString lblExactDesc;  // from when to when, where and by which rules
  double minutes = 0;    // length of the day
  double dayEnds = 0;    // minutes at which the Sun sets; 0 for a day of night, `minutes` for one of light
  double now = -1;       // the analysis moment; negative where it lies outside
  QString nowCaption;
  std::vector<Lane> lanes;
  std::vector<ExactFrame::Hour> hours;
  std::vector<Fact> facts;
  std::vector<Row> limbs;    // tithi, nakshatra, yoga, karana
  std::vector<Row> periods;  // bad, then good ones
  std::vector<Row> events;   // rises, sets, sign changes
  QString limbHead, nameHead, periodHead, eventHead, beginsHead, endsHead, remarkHead;
};

// The day that runs at the analysis moment: before sunrise it is still the day before.
ExactDayPage FillExactDay(const clsPlanets &todayChart);
