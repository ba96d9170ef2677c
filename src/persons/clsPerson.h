// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <memory>
#include <optional>

#include "platform/Store.h"

// The birth data of one person (a moment and a place), and at once the cursor over the table of persons.
// A chart is calculated for whatever moment the record holds, so the same class carries the moment of a
// transit chart, an analysis day or a sunrise search, where no row of the table stands behind it.
//
// The moment is local clock time. Whole-number fields take any number and round it half to even.
class clsPerson {
 public:
  clsPerson() = default;

  // --- the record -----------------------------------------------------------------------------
  QString Name() const { return name.trimmed(); }
  int Sex() const { return sex; }          // 1 male, 2 female
  int Day() const { return day; }          // day of the month
  int Month() const { return month; }      // 1 to 12
  int Year() const { return year; }        // four digits
  int Hour() const { return hour; }        // 0 to 23; the arithmetic can leave 24 here
  int Minutes() const { return minutes; }  // 0 to 59; rounding can leave 60 here
  int seconds() const { return second; }   // shown, and used by no calculation
  int AMPM() const { return halfDay; }     // 1 before noon, 2 from noon, 0 not yet set
  const QString &Country() const { return country; }
  int LatDeg() const { return latDeg; }                 // degrees, unsigned
  int LatMT() const { return latMinutes; }              // minutes of arc
  const QString &TextNS() const { return textNS; }      // "N" or "S"; empty counts as north
  int LongDeg() const { return longDeg; }               // degrees, unsigned
  int LongMT() const { return longMinutes; }            // minutes of arc
  const QString &TextEW() const { return textEW; }      // "E" or "W"; empty counts as east
  const QString &PLOB() const { return place; }         // place of birth
  const QString &GMTDIFF() const { return gmtDiff; }    // decimal hours ahead of Greenwich, as text
  const QString &TimeCorr() const { return timeCorr; }  // decimal hours, in the form "+00.00"
  int TimeCorrInde() const { return timeCorrIndex; }    // which correction the person screen offers

  void SetName(const QString &value) { name = value; }
  void SetSex(double value);
  void SetDay(double value);
  void SetMonth(double value);
  void SetYear(double value);
  void SetHour(double value);
  void SetMinutes(double value);
  void Setseconds(double value);
  void SetAMPM(double value);
  void SetCountry(const QString &value) { country = value; }
  void SetLatDeg(double value);
  void SetLatMT(double value);
  void SetTextNS(const QString &value) { textNS = value; }
  void SetLongDeg(double value);
  void SetLongMT(double value);
  void SetTextEW(const QString &value) { textEW = value; }
  void SetPLOB(const QString &value) { place = value; }
  void SetGMTDIFF(const QString &value) { gmtDiff = value; }
  void SetTimeCorr(const QString &value) { timeCorr = value; }
  void SetTimeCorrInde(double value);

  // Day and month as they are shown: two digits.
  QString DayText() const;
  QString MonthText() const;

  // --- the cursor over the table Person, ordered by name ------------------------------------------
  // The rows are read when the cursor is first used: a chart made for one moment never asks for them.
  void SetDB(std::shared_ptr<Database> database);  // the fields stay as they are
  const std::shared_ptr<Database> &GetDB() const { return db; }
  int Count() const;
  int RecordCount() const;
  void MoveTo(int row);  // 0-based
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void Save();    // writes all fields into the current row
  void AddNew();  // writes all fields into a new row
  void Delete();  // deletes the current row
  // Loads the first person of this name and gives 1; gives 0 and changes nothing where there is none.
  // The cursor does not move.
  int FindPerson(const QString &wanted);

  // --- values -------------------------------------------------------------------------------------
  double Latitude() const;  // degrees.minutes (27.09), not decimal degrees
  double Longitude() const;
  // Local birth moment without seconds. Throws ConversionError for a date that does not exist in the years 1 to 9999.
  QDateTime GetBirthDate() const;
  int WeekDayOfBirth() const;          // of the civil date, 1 Sunday to 7 Saturday
  QString GetBirthTime() const;        // clock number as text: "10.50"
  double GetBirthDecimalTime() const;  // hours with hundredths cut from whole percents: 10:50 is 10.83
  QString GetLatti() const;            // "27.9N"
  QString GetLongi() const;
  QString GetLatitudeFull() const;  // "27.9 N"
  QString GetLongitudeFull() const;
  QString GetBirthPlace() const;  // "Agra, India"
  QString GetBirthTimeFull();     // "10:50 AM"; sets AMPM where it is not set yet

  // --- moving the moment --------------------------------------------------------------------------
  void SetBirthDate(const QDateTime &moment);  // seconds stay
  void AddDays(int days);                      // the time of day stays
  // Moves the moment by minutes. A call with 0, and one with a multiple of 60 above 60, both carry one
  // minute more; the figures of the time searches rest on it. The answer is the number read from the
  // plain hour, ".", and the plain minutes.
  double AddMinutes(double minutesToAdd);
  // Brings decimal hours into range by one day at most and writes the date then; 24 itself is in range.
  double AdjustHour(double hours, int fromDay, int fromMonth, int fromYear);

 private:
  Recordset *Rows() const;    // nothing without a store
  Recordset &Opened() const;  // throws StoreError without a store
  void Load(const Recordset &row);
  void Write(Recordset &row) const;
  void SetDate(const QDate &date);
  static QDate MakeDate(int day, int month, int year);

  QString name;
  int sex = 0, day = 0, month = 0, year = 0, hour = 0, minutes = 0, second = 0, halfDay = 0;
  QString country;
  int latDeg = 0, latMinutes = 0;
  QString textNS;
  int longDeg = 0, longMinutes = 0;
  QString textEW, place, gmtDiff, timeCorr;
  int timeCorrIndex = 0;

  std::shared_ptr<Database> db;
  mutable std::shared_ptr<Recordset> rows;
};
