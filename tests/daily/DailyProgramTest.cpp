// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// orvani-daily as its users call it: what it prints, and what it says to a wrong call.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSize>

#include "platform/Database.h"
#include "platform/FileTools.h"
#include "support/DataFolder.h"

namespace {

struct Answer {
  int code = -1;
  QByteArray out, err;
};

class DailyProgram : public testing::Test {
 protected:
  Answer Call(QStringList arguments, const QString &outputFile = QString()) {
    if (!arguments.contains("--app-dir")) arguments << "--app-dir" << data.Path();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", config.path());
    process.setProcessEnvironment(environment);
    if (!outputFile.isEmpty()) process.setStandardOutputFile(outputFile);
    process.start(QStringLiteral(ORVANI_DAILY), arguments);
    process.waitForFinished(60000);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }
  QJsonObject Json(const QStringList &arguments = {}, const char *day = "2026-11-21") {
    return QJsonDocument::fromJson(Call(QStringList{"--json", "--at", QLatin1String(day) + QLatin1String(" 09:00")} + arguments).out)
        .object();
  }

  DataFolder data;
  QTemporaryDir config;
};

const QStringList Birth{"--birth", "1980-07-23 10:50", "--lat", "27.09N", "--long", "78.00E", "--gmt", "+05.30"};

}  // namespace

TEST_F(DailyProgram, PrintsTheDay) {
  const Answer list = Call({"--list"});
  EXPECT_EQ(list.code, 0);
  EXPECT_EQ(list.out, "Anvik Telvar\n");
  EXPECT_EQ(QJsonDocument::fromJson(Call({"--list", "--json"}).out).array(), QJsonArray{"Anvik Telvar"});
  const Answer day = Call({"--at", "2026-11-21 09:00"});
  EXPECT_EQ(day.code, 0) << day.err.constData();
  for (const char *part : {"Anvik Telvar", "Agra", "Saturday", "Shukla Dvadashi", "Revati", "Rahu Kaal", "9:16 AM-10:50 AM",
                           "13:20 PM-14:54 PM", "Ven-Sat-Mer", "14:31:25"})
    EXPECT_TRUE(day.out.contains(part)) << part << "\n" << day.out.constData();
  for (const QByteArray &line : day.out.split('\n')) EXPECT_LE(QString::fromUtf8(line).size(), 80) << line.constData();
  EXPECT_EQ(day.err, "");
}

// One Wednesday: its texts wrapped under their titles, and the same ones as JSON, with the two yogas of that morning.
TEST_F(DailyProgram, ReadsTheDaysTexts) {
  const Answer reading = Call({"--read", "--at", "2026-11-25 09:00"});
  EXPECT_EQ(reading.code, 0);
  EXPECT_EQ(reading.err, "");
  const QString read = QString::fromUtf8(reading.out);
  for (const QString &line : read.split('\n')) EXPECT_LE(line.size(), 78) << line.toStdString();

  const QJsonObject day = Json({}, "2026-11-25");
  const QJsonObject texts = day["texts"].toObject();
  const std::pair<const char *, const char *> families[] = {{"weekday", "Weekday"},
                                                            {"tithi", "Tithi"},
                                                            {"nakshatra", "Nakshatra"},
                                                            {"suryayoga", "Surya Yoga"},
                                                            {"rashifala", "Rashifala"},
                                                            {"moontransit", "Moon Transits"},
                                                            {"finance", "Financial Analysis"},
                                                            {"journey", "Journey"}};
  ASSERT_EQ(texts.size(), static_cast<qsizetype>(std::size(families)) + 1) << "and the yogas";
  const QString words = read.simplified();
  qsizetype last = 0;
  for (const auto &[name, title] : families) {
    const QJsonObject entry = texts[QLatin1String(name)].toObject();
    const qsizetype at = words.indexOf(QLatin1String(title) + ' ' + QString(qstrlen(title), '-') + ' ' + entry["text"].toString());
    EXPECT_FALSE(entry["text"].toString().isEmpty()) << name;
    EXPECT_GT(at, last) << name << " stands under its title, in order\n" << reading.out.constData();
    last = at;
  }
  EXPECT_EQ(texts["weekday"]["key"], "Wednesday");
  EXPECT_EQ(day["yogas"].toArray(), (QJsonArray{"VIDAL YOGA", "Ravi Yoga"}));
  const QJsonArray muhurtha = texts["muhurtha"].toArray();
  ASSERT_EQ(muhurtha.size(), 2);
  for (const QJsonValue yoga : muhurtha)
    EXPECT_TRUE(words.contains(yoga["title"].toString() + ' ' + yoga["text"].toString().simplified()))
        << yoga["key"].toString().toStdString();
  EXPECT_EQ(muhurtha[1]["key"], "Ravi Yoga");
  const qsizetype yogas = words.indexOf("Yogas of the Day"), vidala = words.indexOf("Vidala Yoga", yogas);
  EXPECT_GT(yogas, last);
  EXPECT_GT(vidala, yogas);
  EXPECT_GT(words.indexOf("Ravi Yoga", vidala), vidala);

  // A morning without a yoga has no such heading.
  EXPECT_FALSE(Call({"--read", "--at", "2026-11-23 09:00"}).out.contains("Yogas of the Day"));
  EXPECT_EQ(Json({}, "2026-11-23")["yogas"], QJsonArray());
}

TEST_F(DailyProgram, GivesTheSameChartForAPersonOnTheLine) {
  const QJsonObject stored = Json(), given = Json(Birth);
  for (const char *part : {"birth", "day", "dasha"}) EXPECT_EQ(stored[QLatin1String(part)], given[QLatin1String(part)]) << part;
  EXPECT_NEAR(stored["birth"]["PlanetLongi"][1].toDouble(), 96.916919, 1e-3);

  for (const char *chart : {"birth", "day"}) {
    const QJsonObject object = stored[QLatin1String(chart)].toObject();
    const std::pair<const char *, int> arrays[] = {{"PlanetLongi", 26}, {"BhavMid", 13},    {"BhavBegin", 13},  {"KPHouse", 13},
                                                   {"RetroGrade", 13},  {"NakOf", 13},      {"PrediVarga", 17}, {"Hora", 24},
                                                   {"Chogadiya", 16},   {"EvilMuhurtha", 4}};
    for (const auto &[name, size] : arrays) EXPECT_EQ(object[QLatin1String(name)].toArray().size(), size) << name;
    for (const char *name : {"Obliq", "SidrealTime", "Tithi", "Pada", "YogaNumber", "KaranNumber", "VikramiMonth", "Nakshatra",
                             "WeekDayOfBirth", "SunRiseTime", "SunSetTime", "DayDuration", "NightDuration"})
      EXPECT_TRUE(object[QLatin1String(name)].isDouble()) << name;
    EXPECT_TRUE(object["DayBirth"].isBool());
    for (const char *name : {"tithi", "nakshatra", "yoga", "karana", "month", "weekday", "sign"})
      EXPECT_FALSE(object["names"][QLatin1String(name)].toString().isEmpty()) << name;
  }
  EXPECT_EQ(stored["dasha"]["mahadasha"].toArray().size(), 9);
  EXPECT_TRUE(stored["dasha"]["current"].toString().endsWith(':'));
  EXPECT_EQ(stored["overview"]["lblSunriseVal"], "6:46 AM");
}

TEST_F(DailyProgram, ChoosesForOneRunAlone) {
  const QJsonObject before = Json();
  const QJsonObject chosen = Json(Birth + QStringList{"--custom-ayan", "0", "--nodes", "2", "--upagraha", "2", "--corr", "+01.00",
                                                      "--res-lat", "33.52S", "--res-long", "151.12E", "--res-gmt", "+11.00"});
  EXPECT_EQ(chosen["settings"]["AyanType"], 13);
  EXPECT_EQ(chosen["birth"]["PlanetLongi"][13], 0);
  EXPECT_EQ(chosen["residence"]["TextNS"], "S");
  EXPECT_EQ(chosen["residence"]["GMTDIFF"], "11");
  EXPECT_EQ(chosen["person"]["Hour"], 11) << "the correction stays in the record";
  const Answer exact = Call({"--divisions", "2", "--sunrise", "2", "--at", "2026-11-21 09:00"});
  EXPECT_TRUE(exact.out.contains("Exact times of Saturday") && exact.out.contains("upper limb")) << exact.out.toStdString();
  const QJsonObject exactJson = Json({"--divisions", "2"});
  EXPECT_EQ(exactJson["overview"]["lblSunriseVal"], "6:47");
  EXPECT_EQ(exactJson["settings"]["DayDivisions"], 2);
  EXPECT_EQ(Json(), before) << "no setting was kept";
}

TEST_F(DailyProgram, AnswersAWrongCallInOneLine) {
  const std::pair<QStringList, const char *> rows[] = {
      {{"--colour"}, "colour"},
      {{"tomorrow"}, "'tomorrow'"},
      {{"--person", "Nobody"}, "'Nobody'"},
      {{"--at", "2026-02-30 10:00"}, "2026-02-30 10:00"},
      {{"--at", "noon"}, "noon"},
      {{"--at", "0001-01-01 00:30"}, "0100 to 9999"},
      {{"--at", "10000-01-01 10:00"}, "0100 to 9999"},
      {Birth + QStringList{"--corr", "24.5"}, "--corr '24.5'"},
      {{"--custom-ayan", "-360.1"}, "--custom-ayan '-360.1'"},
      {{"--app-dir", "/nowhere"}, "/nowhere"},
      {{"--at"}, "at"},
      {{"--ayan", "14"}, "14"},
      {{"--nodes", "3"}, "--nodes '3'"},
      {{"--upagraha", "x"}, "--upagraha 'x'"},
      {{"--divisions", "exact"}, "--divisions 'exact'"},
      {{"--custom-ayan", "1,5"}, "1,5"},
      {{"--ayan", "2", "--custom-ayan", "1"}, "--ayan 13"},
      {{"--lat", "27.09N"}, "--birth"},
      {{"--birth", "1980-07-23 10:50", "--lat", "27.09N"}, "--long is missing"},
      {{"--birth", "1980-07-23 10:50", "--lat", "97.09N", "--long", "78.00E", "--gmt", "+05.30"}, "97.09N"},
      {{"--birth", "1980-07-23 10:50", "--lat", "27.69N", "--long", "78.00E", "--gmt", "+05.30"}, "27.69N"},
      {{"--birth", "1980-07-23 10:50", "--lat", "27.09N", "--long", "78.00", "--gmt", "+05.30"}, "78.00E"},
      {{"--birth", "1980-07-23 10:50", "--lat", "27.09N", "--long", "78.00E", "--gmt", "IST"}, "IST"},
      {{"--res-lat", "27.09N"}, "--res-long is missing"},
      {Birth + QStringList{"--person", "Anvik Telvar"}, "--person and --birth"},
      {{"--json", "--text"}, "--json and --text"},
      {{"--read", "--json"}, "--json and --read"},
  };
  for (const auto &[arguments, named] : rows) {
    const Answer answer = Call(arguments);
    const std::string call = arguments.join(' ').toStdString();
    EXPECT_EQ(answer.code, 2) << call;
    EXPECT_EQ(answer.out, "") << call;
    EXPECT_EQ(answer.err.count('\n'), 1) << call << ": " << answer.err.constData();
    EXPECT_TRUE(answer.err.startsWith("orvani-daily: ") && answer.err.contains(named)) << call << ": " << answer.err.constData();
  }
}

TEST_F(DailyProgram, TellsAFailingStore) {
  const std::pair<const char *, const char *> rows[] = {
      {"COMMON/SADESAT.Dat", "SADESAT"}, {"ENGLISH/ENGLISH.DAT", "ENGLISH/ENGLISH.DAT"}, {"COMMON/RECOS.Dat", "RECOS"}};
  for (const auto &[file, named] : rows) {
    const QString path = data.File(file);
    QFile::rename(path, path + ".away");
    const Answer answer = Call({});
    EXPECT_EQ(answer.code, 1) << file << answer.err.constData();
    EXPECT_TRUE(answer.err.contains(named)) << answer.err.constData();
    EXPECT_EQ(answer.err.count('\n'), 1) << answer.err.constData();
    QFile::rename(path + ".away", path);
  }
}

TEST_F(DailyProgram, NamesTheStoredRecordThatCannotBeCalculated) {
  const QString persons = data.File("COMMON/RECOS.Dat"), residences = data.File("COMMON/Daily.dat");
  const QByteArray sound = ReadWholeFile(persons);
  const std::pair<QString, const char *> rows[] = {{persons, "UPDATE Person SET GMTDIFF = ''"},
                                                   {persons, "UPDATE Person SET Day = 31, Month = 2"},
                                                   {residences, "INSERT INTO Person (Name, GMTDIFF) VALUES ('Anvik Telvar', 'IST')"}};
  for (const auto &[path, change] : rows) {
    Database::OpenDatabase(path)->Execute(QLatin1String(change));
    const Answer answer = Call({});
    EXPECT_EQ(answer.code, 1) << change;
    EXPECT_EQ(answer.err.count('\n'), 1) << change;
    EXPECT_TRUE(answer.err.contains("'Anvik Telvar'")) << answer.err.constData();
    WriteWholeFile(persons, sound);
  }

  QDir(config.path()).mkdir("orvani");
  for (const char *content : {"[Init]\nAyanType=13\nCustAyan=much\n", "[Init]\nAyanType=13\nCustAyan=9999\n", "garbage"}) {
    WriteWholeFile(config.path() + "/orvani/orvani.conf", content);
    const Answer answer = Call(Birth);
    EXPECT_EQ(answer.code, 1) << content;
    EXPECT_TRUE(answer.err.count('\n') == 1 && answer.err.contains("orvani.conf")) << answer.err.constData();
  }
}

TEST_F(DailyProgram, TellsThatTheAnswerCannotBeWritten) {
  if (!QFileInfo::exists("/dev/full")) GTEST_SKIP() << "this system has no full device";
  for (const char *form : {"--list", "--json", "--help"}) {
    const Answer answer = Call({form}, "/dev/full");
    EXPECT_EQ(answer.code, 1) << form;
    EXPECT_EQ(answer.err.count('\n'), 1) << form << answer.err.constData();
  }
}

// The screen keeps a place in its list, which is English alone; a hand may write any name.
TEST_F(DailyProgram, SpeaksTheChosenLanguage) {
  const auto list = Database::OpenDatabase(data.File("COMMON/LANGS.Dat"));
  list->Execute("DELETE FROM Language WHERE Name <> 'English'");
  list->Execute("UPDATE Language SET Include = 1");
  list->Execute("CREATE TEMP TABLE Other AS SELECT * FROM Language");
  list->Execute("UPDATE Other SET Name = 'Zulu', Directory = 'ZULU'");
  list->Execute("INSERT INTO Language SELECT * FROM Other");
  const std::pair<const char *, bool> rows[] = {{"0", true}, {"1", true}, {"7", true}, {"zulu", false}, {"English", true}, {"Welsh", true}};
  for (const auto &[chosen, english] : rows) {
    WriteWholeFile(data.File("INIFILES/GENDAT.INI"), QByteArray("[Orvani]\nSelLang=") + chosen + '\n');
    const Answer answer = Call({});
    EXPECT_EQ(answer.code, english ? 0 : 1) << chosen;
    EXPECT_EQ(answer.err.contains("ZULU"), !english) << chosen << answer.err.constData();
  }
}

TEST_F(DailyProgram, GivesTheExactDayAndMonth) {
  const Answer day = Call({"--exact", "--at", "2026-11-21 09:00"});
  EXPECT_EQ(day.code, 0) << day.err.constData();
  for (const char *part : {"Dvadashi", "Sunrise", "Abhijit"}) EXPECT_TRUE(day.out.contains(part)) << part << day.out.constData();
  EXPECT_FALSE(Json()["exact"].toObject().isEmpty());
  EXPECT_TRUE(Call({"--month", "2026-11"}).out.contains("Ekadashi"));
  EXPECT_EQ(Call({"--month", "November"}).code, 2);
  const QString file = data.Path() + "/month.ics";
  EXPECT_EQ(Call({"--month", "2026-11", "--ics", file}).code, 0);
  EXPECT_TRUE(ReadWholeFile(file).startsWith("BEGIN:VCALENDAR"));
}

TEST_F(DailyProgram, TellsWhatTheStudyPagesShowUnderTheMembersNames) {
  const QJsonObject day = Json(), birth = day["birth"].toObject();
  // Saturn stands at 29:37 of Leo, farther in its sign than the other six; from there its navamsha is Sagittarius.
  EXPECT_EQ(birth["AtmaKaraka"], 6);
  EXPECT_EQ(birth["AtmaKarakaSign"], 5);
  EXPECT_EQ(birth["KarakamsaLagna"], 9);
  EXPECT_EQ(birth["PlanetInNavamsha"].toArray(), birth["PrediVarga"].toArray().at(5).toArray());
  EXPECT_EQ(birth["PlanetRashiNum"].toArray(), birth["PrediVarga"].toArray().at(0).toArray());
  // A rule for each point, for each of its pairs, or for each sign.
  const std::pair<const char *, QSize> shapes[] = {
      {"NavamshLord", {13, 0}},     {"SashtiAmshaBenefic", {13, 0}},  {"PlanetWithMalefic", {13, 0}}, {"AspectedByEnemy", {13, 0}},
      {"InAdhiMitraHouse", {9, 0}}, {"UpagrahaName", {17, 0}},        {"CountPlanetInSign", {12, 0}}, {"PlanetMutOrb", {13, 13}},
      {"PlanetInKendra", {13, 13}}, {"CheckMaleficAspects", {13, 12}}};
  for (const char *chart : {"birth", "day"})
    for (const auto &[name, size] : shapes) {
      const QJsonArray rows = day[QLatin1String(chart)].toObject()[QLatin1String(name)].toArray();
      EXPECT_EQ(rows.size(), size.width()) << chart << " " << name;
      EXPECT_EQ(rows.first().toArray().size(), size.height()) << chart << " " << name;
    }
}

TEST_F(DailyProgram, WritesTheReport) {
  const QString file = data.Path() + "/day.pdf";
  const Answer whole = Call({"--pdf", file, "--at", "2026-11-21 09:00"});
  EXPECT_EQ(whole.code, 0) << whole.err.constData();
  EXPECT_EQ(whole.out + whole.err, "");
  const QByteArray pages = ReadWholeFile(file);
  EXPECT_TRUE(pages.startsWith("%PDF"));
  // What cannot be written or is asked for wrongly leaves the good file as it is.
  const Answer unknown = Call({"--pdf", file, "--topics", "Vakya,NoSuchTopic"});
  EXPECT_EQ(unknown.code, 2);
  for (const char *word : {"'NoSuchTopic'", "FrontPage", "WeekdayRes", "DivisionalCharts", "Vakya"})
    EXPECT_TRUE(unknown.err.contains(word)) << word << unknown.err.constData();
  EXPECT_EQ(Call({"--pdf", data.Path() + "/day.pdf/inside.pdf"}).code, 1);
  EXPECT_EQ(Call({"--topics", "Rashifala"}).code, 2);
  EXPECT_EQ(ReadWholeFile(file), pages);
  const Answer study = Call({"--pdf", file, "--topics", "dayscores,VAKYA", "--at", "2026-11-21 09:00"});
  EXPECT_EQ(study.code, 0) << study.err.constData();
  EXPECT_EQ(ReadWholeFile(file).count("/Type /Page\n"), 2);
}

TEST_F(DailyProgram, HelpsAndTellsItsVersion) {
  const QByteArray help = Call({"--help"}).out;
  EXPECT_TRUE(help.startsWith("Usage: orvani-daily ")) << help.constData();
  for (const char *word : {"--person", "FrontPage", "DivisionalCharts", "Vakya"}) EXPECT_TRUE(help.contains(word)) << word;
  const Answer version = Call({"--version"});
  EXPECT_EQ(version.code, 0);
  EXPECT_TRUE(version.out.contains("Swiss Ephemeris files")) << version.out.constData();
}
