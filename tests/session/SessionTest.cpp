// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The session on real stores: who is loaded, where the day is analysed, and what the pages say.
#include <gtest/gtest.h>

#include "analysis/KundaliPage.h"
#include "analysis/PlanetTablePage.h"
#include "analysis/PredictionPages.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/TimeText.h"
#include "content/Languages.h"
#include "platform/Errors.h"
#include "platform/Notices.h"
#include "platform/Recordset.h"
#include "support/DataFolder.h"

namespace {

class SessionTest : public testing::Test {
 protected:
  SessionTest()
      : persons(Database::OpenDatabase(data.Paths().RecosPath())),
        residences(Database::OpenDatabase(data.Paths().DailyPath())),
        words(OpenLanguageDb(data.Paths(), QStringLiteral("ENGLISH"))),
        session(settings, {words, persons, residences}, [this](const QString &name) { remembered << name; }) {}

  void AddPerson(const QString &name, const QString &zone = QStringLiteral("5.30")) {
    persons->Execute(
        QStringLiteral(
            "INSERT INTO Person (Name, Day, Month, Year, Hour, Minutes, AMPM, City, Sex, Country, GMTDIFF, LatDeg, LatMT, LongDeg, "
            "LongMT, TextNS, TextEW) VALUES (?, 29, 2, 2024, 2, 15, 1, 'Agra', 1, 'India', ?, 27, 9, 78, 0, 'N', 'E')"),
        {name, zone});
  }

  static QDateTime At(int year, int month, int day, int hour, int minute) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, 59), Qt::UTC);
  }

  DataFolder data;
  MemoryUserSettings settings;
  NoticeRecorder notices;
  QStringList remembered;
  std::shared_ptr<Database> persons, residences;
  std::shared_ptr<TextDb> words;
  SelvaniDailyMod session;
};

}  // namespace

TEST_F(SessionTest, ShowsTheSamplePersonsDay) {
  ASSERT_TRUE(session.LoadLastPerson({}));
  session.BuildAnalysis(At(2026, 11, 21, 9, 5));
  const PersonHeader header = session.ShowPersonHeader();
  EXPECT_EQ(header.lblPersonName, "Anvik Telvar");
  EXPECT_EQ(header.lblBDate, "Birth:  Wednesday, July, 23, 1980 (10:50 AM)");
  EXPECT_EQ(header.lblNowIn, "Residence: Agra, India ");
  EXPECT_EQ(session.NowInfo(), "Today : Saturday, November 21, 2026 9:5 ");

  const OverviewPage page = session.FillMainPage();
  for (const auto &[element, caption] : page.Captions()) EXPECT_FALSE(caption.isEmpty()) << element.toStdString();
  EXPECT_EQ(page.lblDayVal, "Saturday");
  EXPECT_EQ(page.kunBirth.houseNumber, 6);
  EXPECT_EQ(page.kunBirth.planets.size(), 13u);
  EXPECT_EQ(page.lblCurDashaVal.split('-').size(), 5);
  EXPECT_TRUE(FillPlanets(session.BirthChart()).rows[0].lblDir.isEmpty());
  EXPECT_TRUE(notices.Seen().empty()) << notices.Seen().front().text.toStdString();
  EXPECT_EQ(remembered, QStringList{"Anvik Telvar"});
}

// Without an ayanamsha the ascendant's entries are alike, as a planet's are that stands still.
TEST_F(SessionTest, TheAscendantNeverReadsRetrograde) {
  settings.SetIntValue(SettingKeys::AyanType, 12);
  ASSERT_TRUE(session.LoadLastPerson({}));
  EXPECT_EQ(session.BirthChart().Direction(0), session.BirthChart().Direction(1));
}

TEST_F(SessionTest, HandsTheSameTextsToThePaper) {
  ASSERT_TRUE(session.LoadLastPerson({}));
  session.BuildAnalysis(At(2026, 11, 25, 9, 0));
  const clsPlanets &today = session.TodayChart();
  QStringList printed, bold;
  const PrintMyText paper = [&](const QString &text, bool isBold) { (isBold ? bold : printed) << text; };

  const QString weekday = WeekdayText(today, 4, &paper), yoga = SuryaYogaText(today, 27, &paper);
  EXPECT_EQ(printed, (QStringList{weekday, yoga}));
  EXPECT_TRUE(SuryaYogaText(today, 28, &paper).isEmpty());
  EXPECT_EQ(printed.size(), 2) << "no yoga, nothing printed";
  EXPECT_TRUE(bold.isEmpty());

  printed.clear();
  const PredictionPage yogas = ShowYogas(today, &paper);
  ASSERT_EQ(yogas.lines.size(), 4u);
  EXPECT_EQ(bold, (QStringList{yogas.lines[0].text, yogas.lines[2].text}));
  EXPECT_EQ(printed, (QStringList{yogas.lines[1].text, yogas.lines[3].text}));
}

TEST_F(SessionTest, LoadsByNameOrLeavesAllAsItWas) {
  AddPerson("O'Brien");
  AddPerson("Zone in words", "five");
  ASSERT_TRUE(session.LoadPerson("  O'Brien "));
  EXPECT_EQ(session.BirthChart().clsPerson().Name(), "O'Brien");
  EXPECT_FALSE(session.LoadPerson("Nobody"));
  EXPECT_THROW(session.LoadPerson("Zone in words"), ConversionError);
  EXPECT_EQ(session.BirthChart().clsPerson().Name(), "O'Brien");
  EXPECT_EQ(remembered, QStringList{"O'Brien"});
  // The last person counts; one that is gone gives way to the first by name.
  EXPECT_TRUE(session.LoadLastPerson("o'brien"));
  EXPECT_EQ(session.BirthChart().clsPerson().Name(), "O'Brien");
  EXPECT_TRUE(session.LoadLastPerson("Gone"));
  EXPECT_EQ(session.BirthChart().clsPerson().Name(), "Anvik Telvar");
  persons->Execute("DELETE FROM Person");
  EXPECT_FALSE(session.LoadLastPerson("Gone"));
}

TEST_F(SessionTest, RefusesWhatNoClockAndNoGlobeHas) {
  AddPerson("Asha");
  residences->Execute("INSERT INTO PERSON (Name, GMTDIFF, LatDeg, LatMT, LongDeg, LongMT) VALUES ('Asha', '5.30', 27, 9, 78, 0)");
  const std::pair<const char *, const char *> rows[] = {{"Hour = 2147483647", "There is no time 2147483647:15;"},
                                                        {"Hour = -1", "There is no time -1:15;"},
                                                        {"Minutes = 99", "There is no time 2:99;"},
                                                        {"LatDeg = 90", "There is no latitude 90:9;"},
                                                        {"LongDeg = -181", "There is no longitude -181:0;"},
                                                        {"LongMT = -2147483648", "There is no longitude 78:-2147483648;"},
                                                        {"GMTDIFF = '99'", "There is no time zone (GMTDIFF) \"99\";"}};
  for (const auto &[spoilt, sentence] : rows) {
    const QString change = QStringLiteral("UPDATE PERSON SET %1 WHERE Name = 'Asha'").arg(QLatin1String(spoilt));
    persons->Execute("SAVEPOINT sound");
    persons->Execute(change);
    try {
      session.LoadPerson("Asha");
      ADD_FAILURE() << spoilt;
    } catch (const ConversionError &error) {
      EXPECT_TRUE(error.Sentence().startsWith(QStringLiteral("The birth of 'Asha' cannot be calculated. ") + QLatin1String(sentence)))
          << error.what();
    }
    persons->Execute("ROLLBACK TO sound");
    if (change.contains(QLatin1String("Hour")) || change.contains(QLatin1String("Minutes"))) continue;
    ASSERT_TRUE(session.LoadPerson("Asha"));
    residences->Execute("SAVEPOINT sound");
    residences->Execute(change);
    EXPECT_THROW(session.BuildAnalysis(At(2020, 3, 1, 12, 0)), StoreError) << spoilt;
    residences->Execute("ROLLBACK TO sound");
  }
  EXPECT_NO_THROW(session.BuildAnalysis(At(2020, 3, 1, 12, 0)));
}

TEST_F(SessionTest, AnalysesAtTheResidenceAsAWhole) {
  AddPerson("Asha");
  session.LoadPerson("Asha");
  session.BuildAnalysis(At(2020, 3, 1, 12, 0));
  EXPECT_EQ(session.TodayChart().clsPerson().PLOB(), "Agra");
  EXPECT_EQ(session.TodayChart().clsPerson().AMPM(), 2);
  // A row is used in full: its empty country does not fall back to the birth's.
  residences->Execute(
      "INSERT INTO PERSON (Name, City, Country, GMTDIFF, LatDeg, LatMT, LongDeg, LongMT, TextNS, TextEW) "
      "VALUES ('Asha', 'Sydney', '', '10.00', 33, 52, 151, 12, 'S', 'E')");
  session.BuildAnalysis(At(2020, 3, 1, 0, 30));
  const clsPerson &now = session.TodayChart().clsPerson();
  EXPECT_EQ(now.PLOB(), "Sydney");
  EXPECT_EQ(now.Country(), "");
  EXPECT_EQ(now.GMTDIFF(), "10");
  EXPECT_EQ(now.TextNS(), "S");
  EXPECT_EQ(now.AMPM(), 1);
  EXPECT_EQ(now.GetBirthDate(), At(2020, 3, 1, 0, 30).addSecs(-59)) << "seconds are dropped";
  EXPECT_EQ(session.BirthChart().clsPerson().PLOB(), "Agra");
}

TEST_F(SessionTest, NeedsAPersonFirst) {
  EXPECT_THROW(session.BuildAnalysis(At(2020, 3, 1, 0, 30)), UsageError);
  EXPECT_THROW(session.ShowPersonHeader(), UsageError);
}

TEST_F(SessionTest, SunriseChartHasTheSunOnItsAscendant) {
  session.LoadLastPerson({});
  for (const int hour : {1, 9, 22}) {
    session.BuildAnalysis(At(2026, 6, 21, hour, 0));
    clsPlanets chart(settings);
    session.TodayChart().CopySettingTo(chart);
    chart.clsPerson().SetBirthDate(SunriseMoment(session.TodayChart()));
    chart.Calculate();
    EXPECT_NEAR(chart.PlanetLongi(0), chart.PlanetLongi(1), 0.3) << hour;
  }
}

TEST_F(SessionTest, ExplainsAMissingLanguageAndKeepsTheOldOne) {
  EXPECT_EQ(OpenLanguageDb(data.Paths(), QStringLiteral("KLINGON")), nullptr);
  ASSERT_EQ(notices.Seen().size(), 1u);
  EXPECT_EQ(notices.Seen()[0].title, "File Not Found");
  EXPECT_EQ(notices.Seen()[0].text, "Could Not Locate Data File For This Language.\r\nPlease Re-install Software.");
}

TEST(TimeText, RoundsClockNumbersToTheWholeMinute) {
  const std::pair<double, const char *> rows[] = {{5.41, "5:41 AM"},    {18.15, "18:15 PM"},  {24.1, "0:10 AM"},   {12.0, "12:00 PM"},
                                                  {0.0, "0:00 AM"},     {11.596, "12:00 PM"}, {23.599, "0:00 AM"}, {6.75, "7:15 AM"},
                                                  {12.235, "12:24 PM"}, {-0.3, "23:30 PM"}};
  for (const auto &[clock, text] : rows) EXPECT_EQ(TimeText(clock), text) << clock;
  EXPECT_EQ(TimeRangeText(12.235, 1.70625), "12:24 PM-14:34 PM");
}

TEST(DecimalGmtDiff, TurnsHoursAndMinutesIntoHours) {
  EXPECT_EQ(DecimalGmtDiff("5.30"), "5.5");
  EXPECT_EQ(DecimalGmtDiff("-05.00"), "-5");
  const std::pair<const char *, double> rows[] = {{"+05.45", 5.75}, {"-3.30", -3.5}, {"0", 0}, {"9.30", 9.5}, {"12.45", 12.75}};
  for (const auto &[stored, decimal] : rows) EXPECT_NEAR(DecimalGmtDiff(QLatin1String(stored)).toDouble(), decimal, 1e-12) << stored;
  for (const char *bad : {"", "five", "5,30"}) EXPECT_THROW(DecimalGmtDiff(QLatin1String(bad)), ConversionError) << bad;
}
