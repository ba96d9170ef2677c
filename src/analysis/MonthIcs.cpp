// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/MonthIcs.h"

#include <QCryptographicHash>

#include "analysis/ExactSettings.h"
#include "analysis/MonthMarks.h"
#include "engine/clsPlanets.h"

namespace {

constexpr int LineBytes = 75;

// The same day of the same place always has the same name, so that a second import replaces the first.
QString Uid(const QString &what, const ExactRules &rules) {
  const QString place = QStringLiteral("%1 %2").arg(rules.place.latitude, 0, 'f', 4).arg(rules.place.longitude, 0, 'f', 4);
  const QByteArray hash = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
  return QStringLiteral("%1-%2@orvani.example").arg(what, QString::fromLatin1(hash));
}

QString UniversalText(double universalDay) { return ExactZone(0).LocalOf(universalDay).toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")); }

QString DateText(const QDate &date) { return date.toString(QStringLiteral("yyyyMMdd")); }

class Writer {
 public:
  QByteArray text;

  void Line(const QString &line) { text += MonthIcs::Folded(line); }
  void Text(const char *property, const QString &value) { Line(QLatin1String(property) + QLatin1Char(':') + MonthIcs::Escaped(value)); }

  void BeginEvent(const QString &uid, const QString &stamp) {
    Line(QStringLiteral("BEGIN:VEVENT"));
    Line(QStringLiteral("UID:") + uid);
    Line(QStringLiteral("DTSTAMP:") + stamp);
  }
  void EndEvent() {
    // Such entries keep nobody busy.
    Line(QStringLiteral("TRANSP:TRANSPARENT"));
    Line(QStringLiteral("END:VEVENT"));
  }
};

QString Description(const ExactDay &day, const ExactWords &words) {
  QStringList lines;
  const auto limb = [&](const char *head, const std::vector<LimbSpan> &spans, QString (ExactWords::*nameOf)(int) const) {
    QStringList names;
    for (const LimbSpan &span : spans) names << words.Word("Until").arg((words.*nameOf)(span.number), words.Time(span.ends, day.date));
    lines << QStringLiteral("%1: %2").arg(words.General(head), names.join(QStringLiteral(", ")));
  };
  limb("Tithi", day.limbs.tithis, &ExactWords::Tithi);
  limb("Nak", day.limbs.nakshatras, &ExactWords::Nakshatra);
  limb("Yoga", day.limbs.yogas, &ExactWords::Yoga);
  limb("Karan", day.limbs.karanas, &ExactWords::Karana);
  lines << QStringLiteral("%1: %2").arg(words.General("Sunrise"), words.Sunrise(day))
        << QStringLiteral("%1: %2").arg(words.General("Sunset"), words.Sunset(day))
        << QStringLiteral("%1: %2").arg(words.Word("Moonrise"), words.Moonrise(day))
        << QStringLiteral("%1: %2").arg(words.Word("Moonset"), words.Moonset(day));
  for (const Period &period : day.periods)
    if (period.kind <= Period::Kind::Gulika)
      lines << QStringLiteral("%1: %2").arg(words.PeriodName(period.kind), words.Range(period.begins, period.ends, day.date));
  lines << words.WithHalf(words.Amanta(day.month), day.month.bright) << words.PlaceAndRules(day.begins);
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

namespace MonthIcs {

QString Escaped(const QString &text) {
  QString escaped = text;
  escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
  escaped.replace(QLatin1Char(';'), QStringLiteral("\\;")).replace(QLatin1Char(','), QStringLiteral("\\,"));
  return escaped.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), QStringLiteral("\\n"));
}

QByteArray Folded(const QString &line) {
  const QByteArray bytes = line.toUtf8();
  QByteArray folded;
  qsizetype at = 0;
  while (bytes.size() - at > LineBytes - (at > 0)) {
    // A continued line begins with a blank, which counts.
    qsizetype end = at + LineBytes - (at > 0);
    while ((static_cast<unsigned char>(bytes[end]) & 0xC0) == 0x80) --end;
    folded += (at > 0 ? " " : "") + bytes.mid(at, end - at) + "\r\n";
    at = end;
  }
  return folded + (at > 0 ? " " : "") + bytes.mid(at) + "\r\n";
}

QByteArray Calendar(const clsPlanets &todayChart, int year, int month, const QDateTime &made) {
  const ExactRules rules = ExactRulesOf(todayChart);
  const ExactWords words(todayChart, rules);
  const QDate first(year, month, 1);
  const std::vector<ExactDay> days = ExactDay::Days(first.addDays(-1), first.daysInMonth() + 1, rules);
  const QString stamp = made.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));

  Writer file;
  file.Line(QStringLiteral("BEGIN:VCALENDAR"));
  file.Line(QStringLiteral("VERSION:2.0"));
  file.Line(QStringLiteral("PRODID:-//Brivanta Works//Orvani//EN"));
  file.Line(QStringLiteral("CALSCALE:GREGORIAN"));
  for (size_t n = 1; n < days.size(); ++n) {
    const ExactDay &day = days[n];
    const LimbSpan &tithi = day.limbs.tithis.front(), &nakshatra = day.limbs.nakshatras.front();
    file.BeginEvent(Uid(DateText(day.date), rules), stamp);
    file.Line(QStringLiteral("DTSTART;VALUE=DATE:") + DateText(day.date));
    file.Line(QStringLiteral("DTEND;VALUE=DATE:") + DateText(day.date.addDays(1)));
    QStringList summary{words.Word("Until").arg(words.Tithi(tithi.number), words.Time(tithi.ends, day.date)),
                        words.Word("Until").arg(words.Nakshatra(nakshatra.number), words.Time(nakshatra.ends, day.date))};
    const std::vector<MonthMark> marks = MarksOf(day, days[n - 1].month, words);
    for (const MonthMark &mark : marks)
      if (mark.at == 0) summary << mark.text;
    file.Text("SUMMARY", summary.join(QStringLiteral("; ")));
    file.Text("DESCRIPTION", Description(day, words));
    file.EndEvent();
    int count = 0;
    for (const MonthMark &mark : marks) {
      if (mark.at == 0) continue;
      file.BeginEvent(Uid(QStringLiteral("%1-%2").arg(DateText(day.date)).arg(++count), rules), stamp);
      file.Line(QStringLiteral("DTSTART:") + UniversalText(mark.at));
      file.Text("SUMMARY", mark.text);
      file.EndEvent();
    }
  }
  file.Line(QStringLiteral("END:VCALENDAR"));
  return file.text;
}

}  // namespace MonthIcs
