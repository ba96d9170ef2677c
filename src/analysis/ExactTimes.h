// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "analysis/ExactWords.h"
#include "panchang/ExactDay.h"

// A page's day where its times are the exact ones. Places on its axis are minutes from the day's beginning.
struct ExactFrame {
  struct Hour {
    double at = 0;
    int hour = 0;     // of the clock
    QString caption;  // "7:00"
  };

  QString head;                 // says that the times are exact, of which day, and by which sunrise and clock
  QString begins, ends;         // of the day, by the clock
  QString sunset;               // empty where there is none
  std::array<QString, 2> none;  // why the daylight and the night have no parts, "none: polar night"; empty where they have
  double minutes = 0;           // length of the day
  double dayEnds = 0;           // at which the Sun sets; 0 for a day of night, `minutes` for one of light
  double now = -1;              // the analysis moment; negative where it lies outside
  std::vector<Hour> hours;      // the clock's full hours; where it is put on or back, its hours jump and the axis does not
};

// The day that runs at a chart's moment by the sky, for the pages that tell its times: before sunrise it is still the day before.
class ExactTimes {
 public:
  explicit ExactTimes(const clsPlanets &todayChart, ExactDay::Extent extent = ExactDay::Extent::Sun);
  ExactTimes(const ExactTimes &) = delete;  // the words refer to the rules beside them
  ExactTimes &operator=(const ExactTimes &) = delete;

  ExactFrame Frame() const;
  double At(double universalDay) const;  // on the axis

  // Sets the rows of a page of equal parts, the first half of the day and the other of the night, and the texts of their times.
  // Where there are no parts each row's text is the reason.
  template <typename Row, size_t Count>
  void SetParts(const std::vector<DayPart> &parts, std::array<Row, Count> &rows, std::array<QString, Count> &texts) const {
    const std::array<QString, 2> none{words.NoDaylight(day), words.NoNight(day)};
    for (size_t row = 0; row < Count; ++row) texts[row] = none[row * 2 / Count];
    size_t row = none[0].isEmpty() ? 0 : Count / 2;
    for (const DayPart &part : parts) {
      rows[row].begins = At(part.begins);
      rows[row].ends = At(part.ends);
      texts[row++] = words.RangeAlone(part.begins, part.ends);
    }
  }

  const ExactRules rules;
  const ExactWords words;
  const double moment;  // of the chart
  const QDate date;     // of the moment, by the clock of the place
  const ExactDay day;
};
