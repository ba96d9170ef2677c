// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/ExactOutput.h"

#include <QDateTime>
#include <QRegularExpression>

#include "analysis/ExactDayPage.h"
#include "analysis/ExactSettings.h"
#include "analysis/ExactWords.h"
#include "analysis/MonthIcs.h"
#include "analysis/MonthPage.h"
#include "app/JsonEach.h"
#include "app/TerminalText.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"

using TerminalText::Paragraph;
using TerminalText::Rule;

namespace {

constexpr int Width = 80;  // letters a line
constexpr const char *PeriodNames[] = {"RahuKaal", "Yamaghanta", "Gulika", "DurMuhurta", "Varjyam", "Abhijit", "BrahmaMuhurta", "Amrita"};
constexpr const char *CourseNames[] = {"usual", "skipped", "repeated", "again"};
constexpr const char *StateNames[] = {"happens", "stays below", "stays above", "not today"};

QString Line(const QString &text) {
  QString line = QStringLiteral("  ") + text;
  while (line.endsWith(QLatin1Char(' '))) line.chop(1);
  return line + QLatin1Char('\n');
}

// A limb's remark takes a line of its own.
QString Rows(const std::vector<ExactDayPage::Row> &rows, bool withHeads) {
  constexpr int head = 11, name = 20, time = 16;
  QString text;
  for (const ExactDayPage::Row &row : rows) {
    const QString times = (row.begins.isEmpty() ? QString() : row.begins.leftJustified(time)) + row.ends.leftJustified(time);
    text += Line((withHeads ? row.head.leftJustified(head) : QString()) + row.name.leftJustified(name) + times +
                 (withHeads ? QString() : row.remark));
    if (withHeads && !row.remark.isEmpty()) text += Line(QString(head + 2, QLatin1Char(' ')) + row.remark);
  }
  return text;
}

// Moments in the clock of the place.
class Moments {
 public:
  explicit Moments(const ExactZone &clock) : zone(clock) {}

  QJsonValue At(double universalDay) const {
    const int seconds = zone.SecondsEastAt(universalDay), minutes = std::abs(seconds) / 60;
    return zone.LocalOf(universalDay).toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss")) +
           QStringLiteral("%1%2:%3")
               .arg(seconds < 0 ? QLatin1Char('-') : QLatin1Char('+'))
               .arg(minutes / 60, 2, 10, QLatin1Char('0'))
               .arg(minutes % 60, 2, 10, QLatin1Char('0'));
  }
  QJsonValue At(const SkyEvent &event) const { return event.Happens() ? At(event.at) : QJsonValue(); }

  QJsonObject Span(double begins, double ends, QJsonObject rest) const {
    rest.insert(QStringLiteral("begins"), At(begins));
    rest.insert(QStringLiteral("ends"), At(ends));
    return rest;
  }

 private:
  const ExactZone &zone;
};

QJsonObject StateObject(const ExactDay &day) {
  const auto name = [](const SkyEvent &event) { return QLatin1String(StateNames[static_cast<size_t>(event.state)]); };
  return {{"sunrise", name(day.sunrise)},
          {"sunset", name(day.sunset)},
          {"nextSunrise", name(day.nextSunrise)},
          {"moonrise", name(day.moonrise)},
          {"moonset", name(day.moonset)}};
}

QJsonObject MonthObject(const LunarMonth &month, const ExactWords &words, const Moments &moments) {
  return {{"amanta", month.amanta},
          {"amantaName", words.Amanta(month)},
          {"adhika", month.adhika},
          {"kshaya", month.kshaya},
          {"purnimanta", month.purnimanta},
          {"purnimantaName", words.Purnimanta(month)},
          {"purnimantaAdhika", month.purnimantaAdhika},
          {"bright", month.bright},
          {"begins", moments.At(month.begins)},
          {"ends", moments.At(month.ends)},
          {"vikrama", month.vikrama},
          {"shaka", month.shaka}};
}

}  // namespace

namespace ExactOutput {

QString Text(const clsPlanets &todayChart) {
  const ExactDayPage page = FillExactDay(todayChart);
  QString text = page.title + QLatin1Char('\n') + Paragraph(page.lblExactDesc, Width) + QLatin1Char('\n');
  for (const ExactDayPage::Fact &fact : page.facts) text += Line(fact.head.leftJustified(28) + fact.value);
  const auto title = [&](const char *key) { return Rule(todayChart.GetHeadValue(1, QLatin1String(key), QStringLiteral("Exact"))); };
  text += title("LimbHead") + Rows(page.limbs, true);
  text += title("PeriodHead") + Rows(page.periods, false);
  text += title("EventHead") + Rows(page.events, false);
  for (const ExactDayPage::Lane &lane : page.lanes) {
    const QString chogadiya = todayChart.GetHeadValue(1, QStringLiteral("Chogadiya"), QStringLiteral("Exact"));
    const QString hora = todayChart.GetHeadValue(1, QStringLiteral("Hora"), QStringLiteral("Exact"));
    if (lane.bars.empty() || (lane.head != chogadiya && lane.head != hora)) continue;
    text += Rule(lane.head);
    for (const ExactDayPage::Bar &bar : lane.bars) text += Line(bar.spoken);
  }
  return text;
}

QJsonObject Json(const clsPlanets &todayChart) {
  const ExactRules rules = ExactRulesOf(todayChart);
  const ExactWords words(todayChart, rules);
  const ExactDay day = ExactDay::At(UniversalMoment(todayChart, rules), rules);
  const Moments moments(rules.zone);
  const auto limb = [&](const std::vector<LimbSpan> &spans, QString (ExactWords::*nameOf)(int) const) {
    return Each(spans, [&](const LimbSpan &span) {
      return moments.Span(span.begins, span.ends,
                          {{"number", span.number},
                           {"name", (words.*nameOf)(span.number)},
                           {"course", QLatin1String(CourseNames[static_cast<size_t>(span.course)])}});
    });
  };
  const auto part = [&](const std::vector<DayPart> &parts, QString (ExactWords::*nameOf)(int) const) {
    return Each(parts, [&](const DayPart &p) {
      return moments.Span(p.begins, p.ends, {{"type", p.type}, {"name", (words.*nameOf)(p.type)}, {"night", p.ofNight}});
    });
  };
  return {
      {"date", day.date.toString(Qt::ISODate)},
      {"weekday", day.weekday},
      {"rules",
       QJsonObject{{"latitude", rules.place.latitude},
                   {"longitude", rules.place.longitude},
                   {"zone", rules.zone.Name()},
                   {"disc", rules.disc == Ephemeris::DiscRule::CentreNoRefraction ? "centre, no refraction" : "upper limb, refraction"},
                   {"AyanType", todayChart.AyanType()}}},
      {"begins", moments.At(day.begins)},
      {"ends", moments.At(day.ends)},
      {"sunrise", moments.At(day.sunrise)},
      {"sunset", moments.At(day.sunset)},
      {"nextSunrise", moments.At(day.nextSunrise)},
      {"moonrise", moments.At(day.moonrise)},
      {"moonset", moments.At(day.moonset)},
      {"states", StateObject(day)},
      {"sunLongitude", day.sunLongitude},
      {"moonLongitude", day.moonLongitude},
      {"month", MonthObject(day.month, words, moments)},
      {"tithi", limb(day.limbs.tithis, &ExactWords::Tithi)},
      {"nakshatra", limb(day.limbs.nakshatras, &ExactWords::Nakshatra)},
      {"yoga", limb(day.limbs.yogas, &ExactWords::Yoga)},
      {"karana", limb(day.limbs.karanas, &ExactWords::Karana)},
      {"signChanges", Each(day.signChanges,
                           [&](const SignChange &change) {
                             return QJsonObject{{"body", change.body == Ephemeris::Body::Moon ? "Moon" : "Sun"},
                                                {"sign", change.sign},
                                                {"at", moments.At(change.at)}};
                           })},
      {"periods", Each(day.periods,
                       [&](const Period &period) {
                         return moments.Span(period.begins, period.ends,
                                             {{"kind", QLatin1String(PeriodNames[static_cast<size_t>(period.kind)])},
                                              {"good", period.IsGood()},
                                              {"setAside", period.setAside}});
                       })},
      {"chogadiya", part(day.chogadiyas, &ExactWords::Chogadiya)},
      {"hora", part(day.horas, &ExactWords::HoraLord)},
  };
}

QString MonthText(const clsPlanets &todayChart, const QDate &month) {
  const MonthPage page = FillMonth(todayChart, month.year(), month.month());
  QString text = page.title + QLatin1Char('\n') + Paragraph(page.subtitle, Width) + QLatin1Char('\n');
  int column = page.firstColumn;
  for (const MonthPage::Cell &cell : page.cells) {
    const QString weekday = page.weekdays[column++ % 7].left(3);
    text += Line(QStringLiteral("%1 %2  ").arg(QString::number(cell.date.day()).rightJustified(2), weekday) + cell.tithi.leftJustified(30) +
                 cell.nakshatra.leftJustified(28) + cell.sun);
    if (!cell.marks.isEmpty()) text += Line(QString(8, QLatin1Char(' ')) + cell.marks.join(QStringLiteral(", ")));
  }
  return text;
}

QDate ReadMonth(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^\\s*(\\d{4})-(\\d{1,2})\\s*$"));
  const QRegularExpressionMatch match = form.match(text);
  const QDate first(match.captured(1).toInt(), match.captured(2).toInt(), 1);
  if (!match.hasMatch() || !first.isValid())
    throw UsageError(QStringLiteral("--month '%1' cannot be read; give a year and a month, as in 2026-11.").arg(text));
  return first;
}

void WriteIcs(const QString &path, const clsPlanets &todayChart, const QDate &month) {
  WriteWholeFile(path, MonthIcs::Calendar(todayChart, month.year(), month.month(), QDateTime::currentDateTimeUtc()));
}

}  // namespace ExactOutput
