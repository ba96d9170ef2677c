// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/DailyOptions.h"

#include "app/ExactOutput.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>
#include <cmath>

#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "reports/ReportTopics.h"

namespace {

[[noreturn]] void Refuse(const char *option, const QString &value, const char *right) {
  throw UsageError(QStringLiteral("--%1 '%2' cannot be read; give %3.").arg(QLatin1String(option), value, QLatin1String(right)));
}

QDateTime ReadMoment(const char *option, const QString &text) {
  static const QRegularExpression form(QStringLiteral("^(\\d{4,6})-(\\d{1,2})-(\\d{1,2})[ T](\\d{1,2}):(\\d{2})$"));
  constexpr const char *right = "year, month, day and time of a day that exists, as in \"1980-07-23 10:50\"";
  const QRegularExpressionMatch match = form.match(text.trimmed());
  if (!match.hasMatch()) Refuse(option, text, right);
  const int year = match.captured(1).toInt();
  if (year < 100 || year > 9999) Refuse(option, text, "a moment of the years 0100 to 9999, as in \"1980-07-23 10:50\"");
  const QDate date(year, match.captured(2).toInt(), match.captured(3).toInt());
  const QTime time(match.captured(4).toInt(), match.captured(5).toInt());
  if (!date.isValid() || !time.isValid()) Refuse(option, text, right);
  return QDateTime(date, time, Qt::UTC);
}

struct Angle {
  int degrees, minutes;
  QString hemisphere;
};

Angle ReadAngle(const char *option, const QString &text, const char *letters, int limit, const char *right) {
  static const QRegularExpression form(QStringLiteral("^(\\d{1,3})\\.(\\d{2})([A-Za-z])$"));
  const QRegularExpressionMatch match = form.match(text.trimmed());
  if (!match.hasMatch()) Refuse(option, text, right);
  const Angle angle{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toUpper()};
  const bool inRange = angle.minutes < 60 && angle.degrees * 60 + angle.minutes <= limit * 60;
  if (!inRange || !QLatin1String(letters).contains(angle.hemisphere)) Refuse(option, text, right);
  return angle;
}

// A time difference, hours.minutes, in the stored form.
QString ReadZone(const char *option, const QString &text) {
  static const QRegularExpression form(QStringLiteral("^([+-]?)(\\d{1,2})\\.(\\d{2})$"));
  const QRegularExpressionMatch match = form.match(text.trimmed());
  if (!match.hasMatch() || match.captured(2).toInt() > 15 || match.captured(3).toInt() > 59)
    Refuse(option, text, "hours.minutes ahead of Greenwich, as in +05.30, or -05.00 for New York");
  return QStringLiteral("%1%2.%3").arg(match.captured(1), match.captured(2), match.captured(3));
}

int ReadChoice(const char *option, const QString &text, const QList<int> &allowed, const char *right) {
  bool ok = false;
  const int number = text.toInt(&ok);
  if (!ok || !allowed.contains(number)) Refuse(option, text, right);
  return number;
}

// A decimal number, as text, from -limit to limit.
QString ReadNumber(const char *option, const QString &text, double limit, const char *right) {
  try {
    if (std::abs(TextToNumber(text, QLatin1String(option))) > limit) Refuse(option, text, right);
  } catch (const ConversionError &) {
    Refuse(option, text, right);
  }
  return text.trimmed();
}

struct PlaceOptions {
  const char *latitude, *longitude, *zone;
};

// A place by its three options; none where none is given, a fault where one is missing.
std::optional<PlaceRecord> ReadPlace(const QCommandLineParser &parser, const PlaceOptions &names, const char *because) {
  const QList<const char *> options{names.latitude, names.longitude, names.zone};
  qsizetype given = 0;
  for (const char *option : options) given += parser.isSet(QLatin1String(option));
  if (given == 0) return std::nullopt;
  for (const char *option : options)
    if (!parser.isSet(QLatin1String(option)))
      throw UsageError(QStringLiteral("--%1 is missing; %2 needs --%3 27.09N --%4 78.00E --%5 +05.30.")
                           .arg(QLatin1String(option), QLatin1String(because), QLatin1String(names.latitude),
                                QLatin1String(names.longitude), QLatin1String(names.zone)));
  const QString latText = parser.value(QLatin1String(names.latitude)), longText = parser.value(QLatin1String(names.longitude));
  const Angle latitude = ReadAngle(names.latitude, latText, "NS", 90, "degrees.minutes up to 90.00 and N or S, as in 27.09N");
  const Angle longitude = ReadAngle(names.longitude, longText, "EW", 180, "degrees.minutes up to 180.00 and E or W, as in 78.00E");
  PlaceRecord place;
  place.City = latText.toUpper();
  place.Country = longText.toUpper();
  place.GMTDIFF = ReadZone(names.zone, parser.value(QLatin1String(names.zone)));
  place.LatDeg = latitude.degrees;
  place.LatMT = latitude.minutes;
  place.TextNS = latitude.hemisphere;
  place.LongDeg = longitude.degrees;
  place.LongMT = longitude.minutes;
  place.TextEW = longitude.hemisphere;
  return place;
}

DailyOptions::Form ReadForm(const QCommandLineParser &parser) {
  constexpr std::pair<const char *, DailyOptions::Form> forms[] = {{"json", DailyOptions::Form::Json},
                                                                   {"read", DailyOptions::Form::Read},
                                                                   {"text", DailyOptions::Form::Text},
                                                                   {"exact", DailyOptions::Form::Exact}};
  QStringList given;
  DailyOptions::Form form = DailyOptions::Form::Text;
  for (const auto &[name, value] : forms) {
    if (!parser.isSet(QLatin1String(name))) continue;
    given << QStringLiteral("--") + QLatin1String(name);
    form = value;
  }
  if (given.size() > 1) throw UsageError(given.join(QStringLiteral(" and ")) + QStringLiteral(" exclude each other; give one of them."));
  return form;
}

BirthRecord ReadBirth(const QCommandLineParser &parser) {
  const QDateTime moment = ReadMoment("birth", parser.value(QStringLiteral("birth")));
  const std::optional<PlaceRecord> place = ReadPlace(parser, {"lat", "long", "gmt"}, "a birth");
  if (!place) throw UsageError(QStringLiteral("--lat is missing; a birth needs --lat 27.09N --long 78.00E --gmt +05.30."));
  BirthRecord record;
  record.Name = QStringLiteral("Birth of %1").arg(moment.toString(QStringLiteral("yyyy-MM-dd HH:mm")));
  record.Day = moment.date().day();
  record.Month = moment.date().month();
  record.Year = moment.date().year();
  record.Hour = moment.time().hour();
  record.Minutes = moment.time().minute();
  record.AMPM = record.Hour >= 12 ? 2 : 1;
  record.place = *place;
  if (parser.isSet(QStringLiteral("corr")))
    record.TimeCorr =
        ReadNumber("corr", parser.value(QStringLiteral("corr")), 24, "a correction in decimal hours from -24 to 24, as in +00.50");
  return record;
}

}  // namespace

DailyOptions DailyOptions::Parse(const QStringList &arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Prints the day of a person: birth and day chart, panchang, sunrise, Rahu Kaal and the running dasha."));
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  const auto option = [&](const char *name, const char *description, const char *value = nullptr) {
    parser.addOption(QCommandLineOption(QLatin1String(name), QLatin1String(description), value ? QLatin1String(value) : QString()));
  };
  option("list", "List the persons' names and end; with --json as an array.");
  option("person", "The person; the last one shown, or else the first, when left out.", "NAME");
  option("at", "The moment, local time at the residence; this machine's clock when left out.", "YYYY-MM-DD HH:MM");
  option("birth", "A person given here: the birth, local time. Needs --lat, --long and --gmt.", "YYYY-MM-DD HH:MM");
  option("lat", "Latitude of the birth place, degrees.minutes.", "27.09N");
  option("long", "Longitude of the birth place, degrees.minutes.", "78.00E");
  option("gmt", "Time difference at the birth, hours.minutes.", "+05.30");
  option("corr", "Correction of the birth time, decimal hours.", "+00.00");
  option("res-lat", "Latitude of the residence.", "27.09N");
  option("res-long", "Longitude of the residence.", "78.00E");
  option("res-gmt", "Time difference at the residence.", "+05.30");
  option("ayan", "Ayanamsha for this run: 1 Lahiri, 2 Raman, 3 Krishnamurti, 4 to 11 by rate, 12 none, 13 custom, 15 Vakya.", "N");
  option("custom-ayan", "Degrees of the custom ayanamsha for this run; chooses --ayan 13.", "D");
  option("nodes", "Rahu and Ketu for this run: 1 mean, 2 true.", "1|2");
  option("upagraha", "Reckoning of the upagrahas for this run: 1 or 2.", "1|2");
  option("divisions", "Day divisions for this run: 1 house rule, 2 exact.", "1|2");
  option("sunrise", "Sunrise of exact times for this run: 1 disc centre without refraction, 2 upper limb with it.", "1|2");
  option("text", "Print text (the default).");
  option("json", "Print one JSON object with full-precision numbers.");
  option("read", "Print the day's texts to read.");
  option("exact", "Print the day as a printed panchang has it, every limb to the second.");
  option("month", "Print a month of the exact panchang in place of the day.", "YYYY-MM");
  option("ics", "Write that month, or the day's, as a calendar file and print nothing.", "FILE");
  option("pdf", "Write the daily report to a PDF and print nothing.", "FILE");
  const std::span<const ReportTopics::Group> groups = ReportTopics::Groups();
  parser.addOption(QCommandLineOption(
      QStringLiteral("topics"),
      QStringLiteral("The topics of the report, parted by commas, as in FrontPage,Rashifala. Main is the daily report, printed when this "
                     "is left out: %1. Study is all the study pages: %2.")
          .arg(ReportTopics::KeysOf(groups[0]), ReportTopics::KeysOf(groups[1])),
      QStringLiteral("KEY,KEY")));
  option("restore", "Put the kept copies of damaged stores back in their place and end; what lay there is moved aside.");
  option("app-dir", "The folder that holds the data folder EPHE.", "DIR");
  option("help", "Show this help and end.");
  option("version", "Show the version and end.");

  if (!parser.parse(arguments)) throw UsageError(parser.errorText().simplified() + QStringLiteral(" See orvani-daily --help."));
  if (!parser.positionalArguments().isEmpty())
    throw UsageError(QStringLiteral("'%1' is not an option; a name goes with --person, a moment with --at. See orvani-daily --help.")
                         .arg(parser.positionalArguments().first()));

  DailyOptions options;
  // The usage line names the program as it was called; without its folder the line is the same on every machine.
  options.helpText = parser.helpText();
  if (const qsizetype at = options.helpText.indexOf(arguments.first()); at >= 0)
    options.helpText.replace(at, arguments.first().size(), QFileInfo(arguments.first()).fileName());
  if (parser.isSet(QStringLiteral("help"))) {
    options.action = Action::Help;
    return options;
  }
  if (parser.isSet(QStringLiteral("version"))) {
    options.action = Action::Version;
    return options;
  }
  if (parser.isSet(QStringLiteral("list"))) options.action = Action::ListPersons;
  if (parser.isSet(QStringLiteral("restore"))) options.action = Action::Restore;
  options.form = ReadForm(parser);
  options.appDir = parser.value(QStringLiteral("app-dir"));
  if (parser.isSet(QStringLiteral("app-dir")) && options.appDir.trimmed().isEmpty())
    Refuse("app-dir", options.appDir, "the folder that holds the data folder EPHE");

  if (parser.isSet(QStringLiteral("month"))) options.month = ExactOutput::ReadMonth(parser.value(QStringLiteral("month")));
  options.icsFile = parser.value(QStringLiteral("ics"));
  if (parser.isSet(QStringLiteral("ics")) && options.icsFile.trimmed().isEmpty())
    Refuse("ics", options.icsFile, "the file to write, as in month.ics");
  options.pdfFile = parser.value(QStringLiteral("pdf"));
  if (parser.isSet(QStringLiteral("pdf")) && options.pdfFile.trimmed().isEmpty())
    Refuse("pdf", options.pdfFile, "the file to write, as in day.pdf");
  if (parser.isSet(QStringLiteral("topics")) && options.pdfFile.isEmpty())
    throw UsageError(QStringLiteral("--topics belongs to a report; give --pdf day.pdf with it."));
  options.topics = parser.value(QStringLiteral("topics")).split(QLatin1Char(','), Qt::SkipEmptyParts);

  options.personName = parser.value(QStringLiteral("person"));
  if (parser.isSet(QStringLiteral("person")) && options.personName.trimmed().isEmpty())
    Refuse("person", options.personName, "the name of a person of the list (orvani-daily --list)");
  const bool hasBirth = parser.isSet(QStringLiteral("birth"));
  if (hasBirth && parser.isSet(QStringLiteral("person")))
    throw UsageError(QStringLiteral("--person and --birth exclude each other; give one of them."));
  for (const char *name : {"lat", "long", "gmt", "corr"})
    if (!hasBirth && parser.isSet(QLatin1String(name)))
      throw UsageError(QStringLiteral("--%1 belongs to a birth; give --birth \"1980-07-23 10:50\" with it.").arg(QLatin1String(name)));
  if (hasBirth) options.birth = ReadBirth(parser);
  options.residence = ReadPlace(parser, {"res-lat", "res-long", "res-gmt"}, "a residence");
  if (parser.isSet(QStringLiteral("at"))) options.at = ReadMoment("at", parser.value(QStringLiteral("at")));

  if (parser.isSet(QStringLiteral("ayan")))
    options.ayanType = ReadChoice("ayan", parser.value(QStringLiteral("ayan")), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15},
                                  "a number from 1 to 13, or 15, as in --ayan 1 for Lahiri");
  if (parser.isSet(QStringLiteral("custom-ayan"))) {
    options.customAyan =
        ReadNumber("custom-ayan", parser.value(QStringLiteral("custom-ayan")), 360, "decimal degrees from -360 to 360, as in 23.50");
    if (options.ayanType.value_or(13) != 13)
      throw UsageError(
          QStringLiteral("--custom-ayan goes with --ayan 13, and --ayan %1 was given; leave one of them out.").arg(*options.ayanType));
    options.ayanType = 13;
  }
  if (parser.isSet(QStringLiteral("nodes")))
    options.nodes = ReadChoice("nodes", parser.value(QStringLiteral("nodes")), {1, 2}, "1 for the mean nodes or 2 for the true ones");
  if (parser.isSet(QStringLiteral("upagraha")))
    options.upagraha = ReadChoice("upagraha", parser.value(QStringLiteral("upagraha")), {1, 2}, "1 or 2");
  if (parser.isSet(QStringLiteral("divisions")))
    options.divisions =
        ReadChoice("divisions", parser.value(QStringLiteral("divisions")), {1, 2}, "1 for the house rule or 2 for exact times");
  if (parser.isSet(QStringLiteral("sunrise")))
    options.sunrise =
        ReadChoice("sunrise", parser.value(QStringLiteral("sunrise")), {1, 2}, "1 for the disc's centre or 2 for its upper limb");
  return options;
}
