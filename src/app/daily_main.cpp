// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// orvani-daily: the day of a person without a screen, for terminals, cron and scripts.
#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

#include "Version.h"
#include "analysis/SelvaniDailyMod.h"
#include "app/DailyJson.h"
#include "app/DailyOptions.h"
#include "app/DailyText.h"
#include "app/Maker.h"
#include "content/Languages.h"
#include "engine/Ephemeris.h"
#include "platform/AppPaths.h"
#include "platform/DataFiles.h"
#include "platform/Errors.h"
#include "platform/Recordset.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"
#include "reports/DailyReport.h"

namespace {

constexpr int StoreFailed = 1, BadUse = 2;

void Print(const QString &text) { std::fputs(text.toUtf8().constData(), stdout); }

int Fail(const Error &error, int code) {
  std::fprintf(stderr, "orvani-daily: %s\n",
               QString(error.Sentence()).replace(QLatin1Char('\n'), QLatin1Char(' ')).simplified().toUtf8().constData());
  return code;
}

QString VersionText() {
  // Ask for one position, so that the ephemeris that answers can be named.
  Ephemeris::Longitude(Ephemeris::JulianDay(2000, 1, 1, 12), Ephemeris::Body::Moon);
  return QStringLiteral("orvani-daily %1\nSwiss Ephemeris library %2, positions from: %3\n")
      .arg(QStringLiteral(ORVANI_VERSION), Ephemeris::Version(), Ephemeris::Source());
}

LanguageRow ChosenLanguage(const AppPaths &paths, const clsIni &ini) {
  const QString english = QStringLiteral("English");
  std::optional<LanguageRow> language = FindLanguage(paths, ini.GetIniString(QStringLiteral("SelLang"), english));
  if (!language) language = FindLanguage(paths, english);
  if (!language)
    throw StoreError(QStringLiteral("The list of languages '%1' holds no English row. Please re-install.").arg(paths.LangsPath()));
  return *language;
}

std::shared_ptr<TextDb> OpenWords(const AppPaths &paths, const LanguageRow &language) {
  std::shared_ptr<TextDb> words = OpenLanguageDb(paths, language.Directory);
  if (!words) throw StoreError(QStringLiteral("The data file of the language %1 is missing. Please re-install.").arg(language.Name));
  return words;
}

int ListPersons(Database &persons) {
  Recordset rows = persons.OpenRecordset(QStringLiteral("SELECT Name FROM Person ORDER BY Name"));
  for (; !rows.AtEnd(); rows.MoveNext()) Print(rows.Field(QStringLiteral("Name")).toString() + QLatin1Char('\n'));
  return 0;
}

int ShowDay(const DailyOptions &options, const AppPaths &paths, std::shared_ptr<Database> persons) {
  const clsIni ini(paths);
  FileUserSettings stored;
  OverlaySettings settings(stored);  // the choices of this run touch no stored setting
  if (options.ayanType) settings.SetIntValue(SettingKeys::AyanType, *options.ayanType);
  if (options.customAyan) settings.SetValue(SettingKeys::CustAyan, *options.customAyan);
  if (options.nodes) settings.SetIntValue(SettingKeys::RahuKetuMode, *options.nodes);
  if (options.upagraha) settings.SetIntValue(SettingKeys::UpagrahaMode, *options.upagraha);

  const auto residences = Database::OpenDatabase(paths.DailyPath(), Database::Mode::ReadOnly);
  const LanguageRow language = ChosenLanguage(paths, ini);
  SelvaniDailyMod session(settings, {OpenWords(paths, language), persons, residences});
  try {
    const ReportTopics topics = ReportTopics::FromKeys(options.topics);
    if (options.birth) {
      session.SetBirthPerson(*options.birth);
    } else if (!options.personName.isEmpty()) {
      if (!session.LoadPerson(options.personName))
        throw UsageError(
            QStringLiteral("--person '%1' is not in the list of persons; orvani-daily --list shows the names.").arg(options.personName));
    } else if (!session.LoadLastPerson(ini.GetIniString(QStringLiteral("LastPerson"), QString()))) {
      throw UsageError(QStringLiteral(
          "The list of persons is empty; give a birth, as in --birth \"1980-07-23 10:50\" --lat 27.09N --long 78.00E --gmt +05.30."));
    }
    session.SetResidence(options.residence);
    session.BuildAnalysis(options.at.value_or(QDateTime(QDate::currentDate(), QTime::currentTime(), Qt::UTC)));
    if (!options.pdfFile.isEmpty()) {
      DailyReport(session, paths, language, Maker::WebAddress).SavePdf(options.pdfFile, topics);
      return 0;
    }
    switch (options.form) {
      case DailyOptions::Form::Json: Print(QString::fromUtf8(DailyJson(session))); break;
      case DailyOptions::Form::Read: Print(DailyReading(session)); break;
      case DailyOptions::Form::Text: Print(DailyText(session)); break;
    }
    return 0;
  } catch (const StoreError &) {
    throw;
  } catch (const Error &error) {
    // A number, a date or a place that cannot be calculated.
    return Fail(error, BadUse);
  }
}

int Run(const DailyOptions &options) {
  const AppPaths paths = AppPaths::Locate(options.appDir);
  DataFiles::CheckFileExists(paths, QStringLiteral("COMMON\\RECOS.Dat"));
  DataFiles::CheckDataFiles(paths);
  const auto persons = Database::OpenDatabase(paths.RecosPath(), Database::Mode::ReadOnly);
  return options.action == DailyOptions::Action::ListPersons ? ListPersons(*persons) : ShowDay(options, paths, persons);
}

// Fonts need the part of Qt that draws, though no window is shown: not even a screen is needed.
std::unique_ptr<QCoreApplication> MakeApplication(int &argc, char **argv) {
  const bool draws = std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
    return argument == "--pdf" || argument == "-pdf" || argument.starts_with("--pdf=") || argument.starts_with("-pdf=");
  });
  if (!draws) return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});  // a bare session is no news to mail
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

int main(int argc, char **argv) {
  const auto app = MakeApplication(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("orvani"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ORVANI_VERSION));
  try {
    const DailyOptions options = DailyOptions::Parse(app->arguments());
    switch (options.action) {
      case DailyOptions::Action::Help: Print(options.helpText); return 0;
      case DailyOptions::Action::Version: Print(VersionText()); return 0;
      default: return Run(options);
    }
  } catch (const UsageError &error) {
    return Fail(error, BadUse);
  } catch (const Error &error) {
    return Fail(error, StoreFailed);
  }
}
