// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include "panchang/ExactDay.h"

class clsPlanets;

// The exact day in the language's words and the clock of the place.
class ExactWords {
 public:
  // All three must outlive this object.
  ExactWords(const clsPlanets &chart, const ExactRules &exactRules) : words(chart), rules(exactRules) {}

  QString Word(const char *key) const;  // of the category Exact
  QString General(const char *key) const;

  QString Tithi(int number) const;
  QString Nakshatra(int number) const;
  QString Yoga(int number) const;
  QString Karana(int number) const;
  QString Sign(int number) const;
  QString Chogadiya(int type) const;
  QString HoraLord(int type) const;
  QString HoraLordShort(int type) const;  // two letters
  QString Weekday(int weekday) const;     // 1 Sunday
  QString Body(Ephemeris::Body body) const;
  QString PeriodName(Period::Kind kind) const;
  QString PeriodShort(Period::Kind kind) const;
  QString Remark(LimbSpan::Course course) const;  // empty for the usual course
  QString InSign(double longitude) const;         // "Scorpio 4°41'"

  QString Amanta(const LunarMonth &month) const;  // "Adhika Shravana"
  QString Purnimanta(const LunarMonth &month) const;
  QString WithHalf(const QString &month, bool bright) const;  // "Kartika, waxing"

  // Clock times of the place; another date than the day's own stands before its time, "22 Nov 4:51".
  QString Time(double moment, const QDate &date) const;          // "6:46", to the nearest minute
  QString TimeToSecond(double moment, const QDate &date) const;  // "6:46:02"
  QString Range(double begins, double ends, const QDate &date) const;
  QString TimeAlone(double moment) const;                     // "4:51", where a scale tells the date
  QString RangeAlone(double begins, double ends) const;       // "4:51-6:10"
  QString TimeShort(double moment, const QDate &date) const;  // "4:51+" for the next date, for narrow places

  // The time, or the named reason why there is none.
  QString Sunrise(const ExactDay &day) const;
  QString Sunset(const ExactDay &day) const;
  QString Moonrise(const ExactDay &day) const;
  QString Moonset(const ExactDay &day) const;

  // The same to the minute, for narrow places.
  QString SunriseToMinute(const ExactDay &day, const QDate &date) const;
  QString SunsetToMinute(const ExactDay &day, const QDate &date) const;
  QString PolarState(const ExactDay &day) const;  // "polar night" where there is no daylight from sunrise to sunset
  // "none: polar night", why the daylight or the night has no parts; empty where it has.
  QString NoDaylight(const ExactDay &day) const;
  QString NoNight(const ExactDay &day) const;

  QString SunriseRule() const;          // "the Sun's centre on the horizon, without refraction"
  QString Brief() const;                // "exact, sunrise of the Sun's centre"
  QString Offset(double moment) const;  // "UTC-4:00 (daylight saving)"
  // "Agra 27°09'N 78°00'E, UTC+5:30. Disc centre, Lahiri."
  QString PlaceAndRules(double moment) const;

 private:
  enum class Precision { Minute, Second };
  QString Clock(double moment, const QDate &date, Precision precision) const;
  QString Month(int number) const;  // 1 Chaitra
  QString Event(const SkyEvent &event, const QDate &date, const char *none, Precision precision = Precision::Second) const;
  QString StateOf(const SkyEvent &first, const SkyEvent &second) const;
  QString None(const QString &state) const;

  const clsPlanets &words;
  const ExactRules &rules;
};
