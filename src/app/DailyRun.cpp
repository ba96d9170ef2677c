// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/DailyRun.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "Version.h"
#include "analysis/SelvaniDailyMod.h"
#include "app/DailyJson.h"
#include "app/DailyOptions.h"
#include "app/DailyText.h"
#include "app/ExactOutput.h"
#include "app/Maker.h"
#include "content/Languages.h"
#include "engine/Ephemeris.h"
#include "persons/PersonStore.h"
#include "platform/AppPaths.h"
#include "platform/DataFiles.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "platform/Numbers.h"
#include "platform/ReportError.h"
#include "platform/StoreKeeper.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"
#include "reports/DailyReport.h"

namespace {

constexpr int StoreFailed = 1, BadUse = 2;

// Ends with the text handed over, so that a full disk is an error and no half answer.
void Print(const QString &text) {
  if (std::fputs(text.toUtf8().constData(), stdout) < 0 || std::fflush(stdout) != 0)
    throw StoreError(QStringLiteral("The answer cannot be written (%1).").arg(QString::fromLocal8Bit(std::strerror(errno))));
}

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
  const QString chosen = ini.GetIniString(QStringLiteral("SelLang"), english);
  // The screen keeps the place in its list of languages, and takes the first for a place beyond it; a hand may write the name.
  bool isPlace = false;
  const int place = chosen.toInt(&isPlace);
  if (isPlace) {
    const std::vector<LanguageRow> shown = OfferedLanguages(paths);
    const int count = static_cast<int>(shown.size());
    if (count > 0) return shown[static_cast<size_t>(place >= 0 && place < count ? place : 0)];
  }
  std::optional<LanguageRow> language = FindLanguage(paths, chosen);
  if (!language) language = FindLanguage(paths, english);
  if (!language)
    throw StoreError(QStringLiteral("The list of languages '%1' holds no English row. Please re-install.").arg(paths.LangsPath()));
  return *language;
}

std::shared_ptr<TextDb> OpenWords(const AppPaths &paths, const LanguageRow &language) {
  // Asked first, since opening would warn in words of its own.
  if (!DataFiles::LanguageFileExists(paths, language.Directory))
    throw StoreError(QStringLiteral("The data file '%1' of the language %2 is missing. Please re-install.")
                         .arg(QDir::toNativeSeparators(paths.LanguageDataPath(language.Directory)), language.Name));
  return OpenLanguageDb(paths, language.Directory);
}

int ListPersons(const Database &persons, DailyOptions::Form form) {
  const QStringList names = PersonStore::NamesIn(persons);
  if (form == DailyOptions::Form::Json)
    Print(QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(names)).toJson()));
  else if (!names.isEmpty())
    Print(names.join(QLatin1Char('\n')) + QLatin1Char('\n'));
  return 0;
}

// A stored ayanamsha that is no number of degrees is a fault of the settings, not of the person whose chart asks for it.
void CheckCustomAyanamsha(const UserSettings &settings, const FileUserSettings &stored) {
  if (settings.IntValue(SettingKeys::AyanType) != SettingKeys::CustomAyanType) return;
  try {
    TextToDegrees(settings.Value(SettingKeys::CustAyan), QStringLiteral("custom ayanamsha (CustAyan)"));
  } catch (const ConversionError &error) {
    throw StoreError(QStringLiteral("The settings file '%1' cannot be used. %2").arg(stored.Path(), error.Sentence()));
  }
}

// Gives false where the list has no such person, or for an empty name no person at all. A person who is in the list and
// cannot be calculated is a fault of the store, not of the call.
bool LoadStored(SelvaniDailyMod &session, const QString &name, const clsIni &ini) {
  try {
    return name.isEmpty() ? session.LoadLastPerson(ini.GetIniString(QStringLiteral("LastPerson"), QString())) : session.LoadPerson(name);
  } catch (const ConversionError &error) {
    throw StoreError(error.Sentence());
  }
}

// A store that cannot be opened names the command that puts its copy back; one that is only doubtful is told and read.
std::shared_ptr<Database> OpenStored(const QString &path, const DailyOptions &options) {
  try {
    return StoreKeeper::OpenForReading(path);
  } catch (const RestorableError &error) {
    const QString folder = options.appDir.isEmpty() ? QString() : QStringLiteral(" --app-dir \"%1\"").arg(options.appDir);
    const StoreError told(QStringLiteral("%1 Do so with: orvani-daily --restore%2").arg(error.Sentence(), folder), error.Reason());
    if (error.StoreState() == RestorableError::State::Unusable) throw told;
    Notices::Show({Notice::Kind::Warning, QString(), QStringLiteral("orvani-daily: ") + told.Sentence()});
    return StoreKeeper::OpenForReading(path, StoreKeeper::Doubt::Accept);
  }
}

int ShowDay(const DailyOptions &options, const AppPaths &paths, std::shared_ptr<Database> persons) {
  const clsIni ini(paths);
  FileUserSettings stored;
  OverlaySettings settings(stored);  // the choices of this run touch no stored setting
  if (options.ayanType) settings.SetIntValue(SettingKeys::AyanType, *options.ayanType);
  if (options.customAyan) settings.SetValue(SettingKeys::CustAyan, *options.customAyan);
  if (options.nodes) settings.SetIntValue(SettingKeys::RahuKetuMode, *options.nodes);
  if (options.upagraha) settings.SetIntValue(SettingKeys::UpagrahaMode, *options.upagraha);
  if (options.divisions) settings.SetIntValue(SettingKeys::DayDivisions, *options.divisions);
  if (options.sunrise) settings.SetIntValue(SettingKeys::SunriseRule, *options.sunrise);
  CheckCustomAyanamsha(settings, stored);

  const auto residences = OpenStored(paths.DailyPath(), options);
  const LanguageRow language = ChosenLanguage(paths, ini);
  SelvaniDailyMod session(settings, {OpenWords(paths, language), persons, residences});
  try {
    const ReportTopics topics = ReportTopics::FromKeys(options.topics);
    if (options.birth) {
      session.SetBirthPerson(*options.birth);
    } else if (!options.personName.isEmpty()) {
      if (!LoadStored(session, options.personName, ini))
        throw UsageError(
            QStringLiteral("--person '%1' is not in the list of persons; orvani-daily --list shows the names.").arg(options.personName));
    } else if (!LoadStored(session, QString(), ini)) {
      throw UsageError(QStringLiteral(
          "The list of persons is empty; give a birth, as in --birth \"1980-07-23 10:50\" --lat 27.09N --long 78.00E --gmt +05.30."));
    }
    session.SetResidence(options.residence);
    session.BuildAnalysis(options.at.value_or(QDateTime(QDate::currentDate(), QTime::currentTime(), Qt::UTC)));
    if (!options.pdfFile.isEmpty()) {
      DailyReport(session, paths, language, Maker::WebAddress).SavePdf(options.pdfFile, topics);
      return 0;
    }
    const clsPlanets &today = session.TodayChart();
    if (!options.icsFile.isEmpty()) {
      ExactOutput::WriteIcs(options.icsFile, today, options.month.value_or(today.clsPerson().GetBirthDate().date()));
      return 0;
    }
    if (options.month) {
      Print(ExactOutput::MonthText(today, *options.month));
      return 0;
    }
    switch (options.form) {
      case DailyOptions::Form::Exact: Print(ExactOutput::Text(today)); break;
      case DailyOptions::Form::Json: Print(QString::fromUtf8(DailyJson(session))); break;
      case DailyOptions::Form::Read: Print(DailyReading(session)); break;
      case DailyOptions::Form::Text: Print(DailyText(session)); break;
    }
    return 0;
  } catch (const StoreError &) {
    throw;
  } catch (const MissingFileError &) {
    throw;
  } catch (const ReportError &) {
    throw;
  } catch (const Error &error) {
    // A number, a date or a place that cannot be calculated.
    return Fail(error, BadUse);
  }
}

// Where the folder is only read, data that cannot be copied to the user's own folder do where they are.
AppPaths Located(const QString &appDir, AppPaths::Access access) {
  try {
    return AppPaths::Locate(appDir, access);
  } catch (const MissingFileError &error) {
    if (appDir.isEmpty()) throw;
    throw UsageError(error.Sentence());
  }
}

// Puts the kept copy of each store that needs it in its place. A store without one is told after the others are done.
int RestoreStores(const AppPaths &paths) {
  std::optional<StoreError> fault;
  for (const QString &path : {paths.RecosPath(), paths.DailyPath()}) {
    const QString shown = QDir::toNativeSeparators(path);
    try {
      StoreKeeper::OpenForReading(path);
      Print(QStringLiteral("%1 is sound and stays as it is.\n").arg(shown));
    } catch (const RestorableError &) {
      const QString kept = StoreKeeper::KeptMoment(path).value_or(QDateTime()).toString(StoreKeeper::MomentFormat);
      const QString aside = StoreKeeper::RestoreCopy(path);
      Print(QStringLiteral("%1 is again as it was on %2.\n").arg(shown, kept));
      if (!aside.isEmpty()) Print(QStringLiteral("What lay there is now %1.\n").arg(QDir::toNativeSeparators(aside)));
    } catch (const StoreError &error) {
      fault = error;
    }
  }
  if (fault) throw *fault;
  return 0;
}

int ShowOrList(const DailyOptions &options) {
  if (options.action == DailyOptions::Action::Restore) return RestoreStores(Located(options.appDir, AppPaths::Access::Write));
  const AppPaths paths = Located(options.appDir, AppPaths::Access::Read);
  DataFiles::CheckPersonStore(paths);
  DataFiles::CheckDataFiles(paths);
  const auto persons = OpenStored(paths.RecosPath(), options);
  return options.action == DailyOptions::Action::ListPersons ? ListPersons(*persons, options.form) : ShowDay(options, paths, persons);
}

}  // namespace

int RunDaily(const QStringList &arguments) {
  try {
    return RunDaily(DailyOptions::Parse(arguments));
  } catch (const UsageError &error) {
    return Fail(error, BadUse);
  }
}

int RunDaily(const DailyOptions &options) {
  try {
    switch (options.action) {
      case DailyOptions::Action::Help: Print(options.helpText); return 0;
      case DailyOptions::Action::Version: Print(VersionText()); return 0;
      default: return ShowOrList(options);
    }
  } catch (const UsageError &error) {
    return Fail(error, BadUse);
  } catch (const Error &error) {
    return Fail(error, StoreFailed);
  }
}
