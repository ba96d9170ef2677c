// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// What the clocks of a place really showed: war time, daylight saving and the standards of older days, from the time-zone history that
// the system keeps. A birth certificate tells the clock's time, so the difference of that very day is the one to calculate with.
class ClockHistory {
 public:
  struct Reading {
    enum class Kind {
      Standard,   // the standard of that time, which may not be today's
      Daylight,   // summer time
      War,        // summer time kept on in a war year
      LocalMean,  // by the sun of the place, before there were standards
    };
    enum class Certainty {
      Sure,
      Twice,  // the clocks were put back that day and showed this time twice; the first of the two is given
      Never,  // the clocks were put on that day and left this time out; the difference before the change is given
    };
    int secondsEast = 0;  // of Greenwich
    Kind kind = Kind::Standard;
    Certainty certainty = Certainty::Sure;
    int laterSecondsEast = 0;  // the second of two, where the time came twice

    int MinutesEast() const;  // rounded, as the stores keep it
  };

  // zone: a name such as "Asia/Kolkata"; the moment is the place's clock time, its zone is not looked at.
  // Nothing for an unknown zone or a moment that is not valid.
  static std::optional<Reading> At(const QString &zone, const QDate &date, const QTime &time);

  struct Advice {
    QString sentence;      // for the user, one or two sentences
    QString offered;       // the difference to take over, "+05.30"; the one that the sentence speaks of
    bool differs = false;  // from the difference that stands on the screen
  };
  // present: the difference on the screen; a text that cannot be read differs from any reading.
  static std::optional<Advice> Advise(const QString &place, const QString &zone, const QDate &date, const QTime &time,
                                      const QString &present);
};
