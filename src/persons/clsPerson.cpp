// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/clsPerson.h"

#include <QCoreApplication>
#include <cmath>

#include "engine/Functions.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

using Functions::Two;
using Functions::Whole;
using Functions::Whole16;

namespace {

QString tr(const char *text) { return QCoreApplication::translate("clsPerson", text); }

const QString NoCorrection = QStringLiteral("+00.00");

constexpr int MorningHalf = 1, EveningHalf = 2;
constexpr int HalfOf(int hour) { return hour >= 12 ? EveningHalf : MorningHalf; }

}  // namespace

void clsPerson::SetSex(double value) { sex = Whole16(value); }
void clsPerson::SetDay(double value) { day = Whole(value); }
void clsPerson::SetMonth(double value) { month = Whole(value); }
void clsPerson::SetYear(double value) { year = Whole(value); }
void clsPerson::SetHour(double value) { hour = Whole(value); }
void clsPerson::SetMinutes(double value) { minutes = Whole(value); }
void clsPerson::Setseconds(double value) { second = Whole(value); }
void clsPerson::SetAMPM(double value) { halfDay = Whole16(value); }
void clsPerson::SetLatDeg(double value) { latDeg = Whole(value); }
void clsPerson::SetLatMT(double value) { latMinutes = Whole(value); }
void clsPerson::SetLongDeg(double value) { longDeg = Whole(value); }
void clsPerson::SetLongMT(double value) { longMinutes = Whole(value); }
void clsPerson::SetTimeCorrInde(double value) { timeCorrIndex = Whole(value); }

QString clsPerson::DayText() const { return Two(day); }
QString clsPerson::MonthText() const { return Two(month); }

// --- the cursor -------------------------------------------------------------------------------------

void clsPerson::SetDB(std::shared_ptr<Database> database) {
  db = std::move(database);
  rows.reset();
}

Recordset *clsPerson::Rows() const {
  if (db && !rows) rows = std::make_shared<Recordset>(db->OpenRecordset(QStringLiteral("SELECT * FROM Person ORDER BY Name")));
  return rows.get();
}

Recordset &clsPerson::Opened() const {
  if (Recordset *open = Rows()) return *open;
  throw StoreError(tr("No store of persons is open, so there is no person to go to."));
}

int clsPerson::Count() const { return Rows() ? Rows()->RecordCount() : 0; }
int clsPerson::RecordCount() const { return static_cast<qint16>(Count()); }

void clsPerson::MoveTo(int row) {
  if (Count() > 0) {
    rows->MoveFirst();
    rows->Move(row);
    Load(*rows);
  }
}

void clsPerson::MoveFirst() {
  if (Count() > 0) {
    rows->MoveFirst();
    Load(*rows);
  }
}

void clsPerson::MoveLast() {
  Opened().MoveLast();
  Load(*rows);
}

void clsPerson::MoveNext() {
  Opened().MoveNext();
  Load(*rows);
}

void clsPerson::Save() {
  Opened().Edit();
  Write(*rows);
  rows->Update();
}

void clsPerson::AddNew() {
  Opened().AddNew();
  Write(*rows);
  rows->Update();
}

void clsPerson::Delete() { Opened().Delete(); }

int clsPerson::FindPerson(const QString &wanted) {
  if (!db) throw StoreError(tr("No store of persons is open, so '%1' cannot be looked for.").arg(wanted));
  Recordset found = db->OpenRecordset(QStringLiteral("SELECT * FROM Person WHERE Name = ?"), {wanted});
  if (found.RecordCount() == 0) return 0;
  found.MoveFirst();
  Load(found);
  return 1;
}

void clsPerson::Load(const Recordset &row) {
  const auto number = [&](const char *column) { return row.Field(QLatin1String(column)).toDouble(); };
  const auto text = [&](const char *column) { return row.Field(QLatin1String(column)).toString(); };
  SetAMPM(number("AMPM"));
  country = text("Country");
  SetDay(number("Day"));
  SetHour(number("Hour"));
  SetLatDeg(number("LatDeg"));
  SetLatMT(number("LatMT"));
  SetLongDeg(number("LongDeg"));
  SetLongMT(number("LongMT"));
  SetMinutes(number("Minutes"));
  SetMonth(number("Month"));
  name = text("Name");
  place = text("City");
  Setseconds(number("seconds"));
  SetSex(number("Sex"));
  textEW = text("TextEW");
  textNS = text("TextNS");
  SetYear(number("Year"));
  gmtDiff = text("GMTDIFF");
  const QVariant correction = row.Field(QStringLiteral("TCorrVal"));
  timeCorr = correction.isNull() ? NoCorrection : correction.toString();
  SetTimeCorrInde(number("Tcorrinde"));
}

void clsPerson::Write(Recordset &row) const {
  const auto set = [&](const char *column, const QVariant &value) { row.SetField(QLatin1String(column), value); };
  set("AMPM", halfDay);
  set("Country", country);
  set("Day", day);
  set("Hour", hour);
  set("LatDeg", latDeg);
  set("LatMT", latMinutes);
  set("LongDeg", longDeg);
  set("LongMT", longMinutes);
  set("Minutes", minutes);
  set("Month", month);
  set("Name", Name());
  set("City", place);
  set("seconds", second);
  set("Sex", sex);
  set("TextEW", textEW);
  set("TextNS", textNS);
  set("Year", year);
  set("GMTDIFF", gmtDiff);
  set("TCorrVal", timeCorr);
  set("Tcorrinde", timeCorrIndex);
}

// --- values -----------------------------------------------------------------------------------------

double clsPerson::Latitude() const { return latDeg + latMinutes / 100.0; }
double clsPerson::Longitude() const { return longDeg + longMinutes / 100.0; }

QDate clsPerson::MakeDate(int day, int month, int year) {
  const QDate date(year, month, day);
  // Beyond four digits a year fits no screen, store or text of this program.
  if (!date.isValid() || year < 1 || year > 9999)
    throw ConversionError(tr("The date %1/%2/%3 does not exist; give day, month and year from 1 to 9999, as in 23/07/1980.")
                              .arg(Two(day), Two(month), QString::number(year)));
  return date;
}

QDateTime clsPerson::GetBirthDate() const {
  return QDateTime(MakeDate(day, month, year), QTime(0, 0), Qt::UTC).addSecs(hour * 3600LL + minutes * 60LL);
}

int clsPerson::WeekDayOfBirth() const { return GetBirthDate().date().dayOfWeek() % 7 + 1; }

QString clsPerson::GetBirthTime() const { return Two(hour) + QLatin1Char('.') + Two(minutes); }

double clsPerson::GetBirthDecimalTime() const {
  return TextToNumber(Two(hour) + QLatin1Char('.') + Two(minutes / 60.0 * 100), QStringLiteral("birth time"));
}

QString clsPerson::GetLatti() const { return QStringLiteral("%1.%2%3").arg(latDeg).arg(latMinutes).arg(textNS); }
QString clsPerson::GetLongi() const { return QStringLiteral("%1.%2%3").arg(longDeg).arg(longMinutes).arg(textEW); }
QString clsPerson::GetLatitudeFull() const { return QStringLiteral("%1.%2 %3").arg(latDeg).arg(latMinutes).arg(textNS); }
QString clsPerson::GetLongitudeFull() const { return QStringLiteral("%1.%2 %3").arg(longDeg).arg(longMinutes).arg(textEW); }
QString clsPerson::GetBirthPlace() const { return place + QStringLiteral(", ") + country; }

QString clsPerson::GetBirthTimeFull() {
  if (halfDay == 0) halfDay = HalfOf(hour);
  return QStringLiteral("%1:%2 %3")
      .arg(Two(Functions::Norm12(hour)), Two(minutes), halfDay == MorningHalf ? QStringLiteral("AM") : QStringLiteral("PM"));
}

// --- moving the moment --------------------------------------------------------------------------------

void clsPerson::SetDate(const QDate &date) {
  day = date.day();
  month = date.month();
  year = date.year();
}

void clsPerson::SetBirthDate(const QDateTime &moment) {
  SetDate(moment.date());
  hour = moment.time().hour();
  minutes = moment.time().minute();
  halfDay = HalfOf(hour);
}

void clsPerson::AddDays(int days) { SetDate(GetBirthDate().addDays(days).date()); }

double clsPerson::AddMinutes(double minutesToAdd) {
  const bool backward = minutesToAdd < 0;
  double rest = std::abs(minutesToAdd);
  int hours = 0;
  if (rest > 60) {
    const int whole = Whole(rest);
    hours = whole / 60;
    rest = whole % 60;
  }
  if (rest == 0) rest = 1;
  if (backward) {
    hours = -hours;
    rest = -rest;
  }
  // A stored hour can lie anywhere, and one that leaves the whole numbers is told.
  hour = Whole(double(hour) + hours);
  minutes = Whole(minutes + rest);
  if (minutes >= 60) {
    hour = Whole(hour + 1.0);
    minutes -= 60;
  }
  if (minutes < 0) {
    hour = Whole(hour - 1.0);
    minutes += 60;
  }
  int days = 0;
  if (std::abs(hour) >= 24) {
    days = hour / 24;
    hour %= 24;
  }
  while (hour < 0) {
    days -= 1;
    hour += 24;
  }
  if (days != 0) AddDays(days);
  return TextToNumber(QStringLiteral("%1.%2").arg(hour).arg(minutes), QStringLiteral("time"));
}

double clsPerson::AdjustHour(double hours, int fromDay, int fromMonth, int fromYear) {
  if (hours > 24) {
    SetDate(MakeDate(fromDay, fromMonth, fromYear).addDays(1));
    return hours - 24;
  }
  if (hours < 0) {
    SetDate(MakeDate(fromDay, fromMonth, fromYear).addDays(-1));
    return hours + 24;
  }
  return hours;
}
