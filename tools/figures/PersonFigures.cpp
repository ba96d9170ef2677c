// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

namespace {

using Field = std::function<Value(clsPerson &)>;

struct FieldRow {
  const char *name;
  Field read;
};

const std::vector<FieldRow> &Fields() {
  static const std::vector<FieldRow> rows{
      {"Name", [](clsPerson &p) { return Value(p.Name()); }},
      {"Sex", [](clsPerson &p) { return Value(p.Sex()); }},
      {"Day", [](clsPerson &p) { return Value(p.DayText()); }},
      {"Month", [](clsPerson &p) { return Value(p.MonthText()); }},
      {"Year", [](clsPerson &p) { return Value(p.Year()); }},
      {"Hour", [](clsPerson &p) { return Value(p.Hour()); }},
      {"Minutes", [](clsPerson &p) { return Value(p.Minutes()); }},
      {"seconds", [](clsPerson &p) { return Value(p.seconds()); }},
      {"AMPM", [](clsPerson &p) { return Value(p.AMPM()); }},
      {"Country", [](clsPerson &p) { return Value(p.Country()); }},
      {"LatDeg", [](clsPerson &p) { return Value(p.LatDeg()); }},
      {"LatMT", [](clsPerson &p) { return Value(p.LatMT()); }},
      {"TextNS", [](clsPerson &p) { return Value(p.TextNS()); }},
      {"LongDeg", [](clsPerson &p) { return Value(p.LongDeg()); }},
      {"LongMT", [](clsPerson &p) { return Value(p.LongMT()); }},
      {"TextEW", [](clsPerson &p) { return Value(p.TextEW()); }},
      {"PLOB", [](clsPerson &p) { return Value(p.PLOB()); }},
      {"GMTDIFF", [](clsPerson &p) { return Value(p.GMTDIFF()); }},
      {"TimeCorr", [](clsPerson &p) { return Value(p.TimeCorr()); }},
      {"TimeCorrInde", [](clsPerson &p) { return Value(p.TimeCorrInde()); }},
      {"Latitude", [](clsPerson &p) { return Value(p.Latitude()); }},
      {"Longitude", [](clsPerson &p) { return Value(p.Longitude()); }},
      {"GetBirthDate", [](clsPerson &p) { return Value(p.GetBirthDate()); }},
      {"WeekDayOfBirth", [](clsPerson &p) { return Value(p.WeekDayOfBirth()); }},
      {"GetBirthTime", [](clsPerson &p) { return Value(p.GetBirthTime()); }},
      {"GetBirthDecimalTime", [](clsPerson &p) { return Value(p.GetBirthDecimalTime()); }},
      {"GetLatti", [](clsPerson &p) { return Value(p.GetLatti()); }},
      {"GetLongi", [](clsPerson &p) { return Value(p.GetLongi()); }},
      {"GetLatitudeFull", [](clsPerson &p) { return Value(p.GetLatitudeFull()); }},
      {"GetLongitudeFull", [](clsPerson &p) { return Value(p.GetLongitudeFull()); }},
      {"GetBirthPlace", [](clsPerson &p) { return Value(p.GetBirthPlace()); }},
      {"GetBirthTimeFull", [](clsPerson &p) { return Value(p.GetBirthTimeFull()); }},
  };
  return rows;
}

// What a move of the moment leaves behind: result|Day|Month|Year|Hour|Minutes|AMPM, nothing before the first bar without a result.
Value Moved(const clsPerson &p, const QString &result) {
  return QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
      .arg(result)
      .arg(p.Day())
      .arg(p.Month())
      .arg(p.Year())
      .arg(p.Hour())
      .arg(p.Minutes())
      .arg(p.AMPM());
}

void RegisterMove(const char *name, std::function<QString(clsPerson &, Members &, const QString &)> move) {
  Members::Register(QStringLiteral("Raw.") + QLatin1String(name), [move](Members &members, const Question &question) {
    clsPerson person = members.Of().RawPerson();
    const QString result = move(person, members, question.arguments.value(0));
    return Moved(person, result);
  });
}

}  // namespace

void RegisterPersonFigures() {
  for (const FieldRow &row : Fields()) {
    const Field read = row.read;
    const QString name = QLatin1String(row.name);
    Members::Register(QStringLiteral("Raw.") + name, [read](Members &members, const Question &question) {
      clsPerson person = members.Of().RawPerson();
      const Value value = read(person);
      return question.suffix == QLatin1String(".AMPM") ? Value(person.AMPM()) : value;
    });
    Members::Register(QStringLiteral("Person.") + name, [read](Members &members, const Question &question) {
      clsPerson person = members.Chart().clsPerson();
      const Value value = read(person);
      return question.suffix == QLatin1String(".AMPM") ? Value(person.AMPM()) : value;
    });
    const bool plainNumber = name == QLatin1String("Day") || name == QLatin1String("Month");
    Members::Register(QStringLiteral("Copy.Before.") + name, [read, plainNumber](Members &members, const Question &) {
      const Value value = read(members.Of().NewCopy()->clsPerson());
      return plainNumber ? Value(value.Text().toInt()) : value;
    });
  }
  Members::Register("GetBirthDate", [](Members &members, const Question &) { return Value(members.Chart().clsPerson().GetBirthDate()); });

  RegisterMove("AddMinutes", [](clsPerson &person, Members &members, const QString &argument) {
    return Value(person.AddMinutes(members.Number(argument))).Text();
  });
  RegisterMove("AddDays", [](clsPerson &person, Members &members, const QString &argument) {
    person.AddDays(members.Whole(argument));
    return QString();
  });
  RegisterMove("SetBirthDate", [](clsPerson &person, Members &members, const QString &argument) {
    person.SetBirthDate(members.Date(argument));
    return QString();
  });
  RegisterMove("AdjustHour", [](clsPerson &person, Members &members, const QString &argument) {
    return Value(person.AdjustHour(members.Number(argument), person.Day(), person.Month(), person.Year())).Text();
  });
}
