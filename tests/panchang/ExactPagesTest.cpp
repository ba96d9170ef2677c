// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The exact day and the month as pages, texts, JSON and calendar files.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QTemporaryDir>

#include "analysis/ChogadiyaPage.h"
#include "analysis/EvilMuhurthaPage.h"
#include "analysis/ExactBeside.h"
#include "analysis/ExactDayPage.h"
#include "analysis/ExactSettings.h"
#include "analysis/HoraPage.h"
#include "analysis/MonthIcs.h"
#include "analysis/MonthPage.h"
#include "analysis/NowCardPage.h"
#include "app/ExactOutput.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "support/SampleDay.h"

namespace {

const PlaceRecord AgraPlace{"Agra", "Nowhere", "+05.30", 27, 9, "N", 78, 0, "E"};

class ExactPages : public testing::Test, protected SampleDay {
 protected:
  ExactPages() : SampleDay(Moment(2026, 11, 21, 10)) {}

  const clsPlanets &Chart(const PlaceRecord &place, const QDateTime &moment) {
    session.SetBirthPerson({.Name = "Anvik Telvar", .Day = 23, .Month = 7, .Year = 1980, .Hour = 10, .place = place, .TimeCorr = {}});
    session.BuildAnalysis(moment);
    return session.TodayChart();
  }
  const clsPlanets &Agra() { return Chart(AgraPlace, Moment(2026, 11, 21, 10)); }
  const clsPlanets &Murmansk(int month) {
    return Chart({"Murmansk", "Nowhere", "+03.00", 68, 58, "N", 33, 5, "E"}, Moment(2025, month, 15, 12));
  }

  static QDateTime Moment(int year, int month, int day, int hour) { return QDateTime(QDate(year, month, day), QTime(hour, 6), Qt::UTC); }
};

}  // namespace

TEST_F(ExactPages, DrawTheDayFromSunriseToSunrise) {
  const ExactDayPage page = FillExactDay(Agra());
  EXPECT_EQ(page.title, "Saturday, November 21, 2026");
  EXPECT_EQ(page.lblExactDesc, "Sunrise 6:47 to sunrise 6:47, Agra 27°09'N 78°00'E, UTC+5:30. Disc centre, Lahiri.");
  EXPECT_NEAR(page.now, 199.5, 0.5);
  EXPECT_EQ(page.nowCaption, "10:06");
  ASSERT_EQ(page.lanes.size(), 9u);
  for (const ExactDayPage::Lane &lane : page.lanes) {
    EXPECT_FALSE(lane.bars.empty()) << lane.head.toStdString();
    for (const ExactDayPage::Bar &bar : lane.bars) {
      EXPECT_TRUE(bar.begins >= 0 && bar.begins < bar.ends && bar.ends <= page.minutes) << bar.spoken.toStdString();
      EXPECT_LT(bar.level, lane.levels);
      for (const ExactDayPage::Bar &other : lane.bars)
        EXPECT_TRUE(&bar == &other || bar.level != other.level || bar.ends <= other.begins + 1e-3 || other.ends <= bar.begins + 1e-3)
            << bar.spoken.toStdString() << " meets " << other.spoken.toStdString();
    }
  }
  EXPECT_EQ(page.lanes[0].bars[0].captions[0], "Shukla Dvadashi to 4:57");
  EXPECT_EQ(page.limbs[0].ends, "22 Nov 4:57:01");
  EXPECT_EQ(page.hours.front().caption, "7:00");
  for (const auto &[element, value] :
       {std::pair{"lblExactAmanta", "Kartika, waxing"}, {"lblExactSamvat", "2083 and 1948"}, {"lblExactSun", "6:47 and 17:21"}}) {
    bool found = false;
    for (const ExactDayPage::Fact &fact : page.facts) found |= QLatin1String(fact.element) == QLatin1String(element) && fact.value == value;
    EXPECT_TRUE(found) << element;
  }
  // After midnight the same day goes on.
  const ExactDayPage late = FillExactDay(Chart(AgraPlace, Moment(2026, 11, 22, 3)));
  EXPECT_EQ(late.title, page.title);
  EXPECT_NEAR(late.now, 1219.5, 0.5);
}

// A reason stands wherever there is no time.
TEST_F(ExactPages, TellWhatDoesNotHappen) {
  for (const auto &[month, reason, ends] : {std::tuple{12, "no sunrise: polar night", 0.0}, {6, "no sunrise: midnight sun", 1440.0}}) {
    const ExactDayPage page = FillExactDay(Murmansk(month));
    EXPECT_EQ(page.events[0].ends, reason);
    EXPECT_NEAR(page.dayEnds, ends, 1e-6);
    EXPECT_EQ(page.periods[0].remark, month == 12 ? "polar night" : "midnight sun");
    for (const ExactDayPage::Row &row : page.events) EXPECT_FALSE(row.ends.isEmpty()) << row.name.toStdString();
    for (const ExactDayPage::Fact &fact : page.facts) EXPECT_FALSE(fact.value.isEmpty()) << fact.element;
    for (const ExactDayPage::Lane &lane : page.lanes) EXPECT_FALSE(lane.bars.empty()) << lane.head.toStdString();
    for (const ExactDayPage::Row &row : page.periods) EXPECT_FALSE(row.begins.isEmpty() || row.ends.isEmpty()) << row.name.toStdString();
    EXPECT_EQ(page.lanes[6].bars[0].captions, QStringList{month == 12 ? "none: polar night" : "none: midnight sun"});
    const QJsonObject day = ExactOutput::Json(session.TodayChart());
    EXPECT_TRUE(day["sunrise"].isNull());
    EXPECT_NE(day["states"].toObject()["sunrise"].toString(), "happens");
    const MonthPage grid = FillMonth(session.TodayChart());
    EXPECT_EQ(grid.cells[14].sun, reason);
    const ExactBesidePage beside = ExactBeside(session.TodayChart());
    EXPECT_EQ(beside.sunrise, reason);
    EXPECT_FALSE(beside.rahuKaal.isEmpty());
  }
}

TEST_F(ExactPages, StandBesideFiguresThatPartByMoreThanTenMinutes) {
  const ExactBesidePage beside = ExactBeside(Agra());
  EXPECT_EQ(beside.sunrise, "");
  EXPECT_EQ(beside.rahuKaal, "");
  EXPECT_EQ(beside.yamaghanta, "13:23 to 14:42");
}

TEST_F(ExactPages, FollowTheSettings) {
  const auto nakshatraEnd = [&] { return FillExactDay(Agra()).limbs[2].ends; };
  const QString lahiri = nakshatraEnd();
  settings.SetIntValue(SettingKeys::AyanType, 3);
  const QString krishnamurti = nakshatraEnd();
  settings.SetIntValue(SettingKeys::AyanType, 13);
  settings.SetValue(SettingKeys::CustAyan, QStringLiteral("23.5"));
  const QString custom = nakshatraEnd();
  EXPECT_TRUE(lahiri != krishnamurti && krishnamurti != custom && lahiri != custom);
  EXPECT_DOUBLE_EQ(ExactRulesOf(session.TodayChart()).zodiac.fixedDegrees, 23.5);
  settings.SetIntValue(SettingKeys::SunriseRule, 2);
  EXPECT_TRUE(FillExactDay(Agra()).lblExactDesc.contains("Upper limb"));
}

TEST_F(ExactPages, ShowTheMonthAsAGridAndAsText) {
  const MonthPage page = FillMonth(Agra());
  EXPECT_EQ(page.title, "November 2026");
  EXPECT_EQ(page.firstColumn, 0);
  EXPECT_EQ(page.Weeks(), 5);
  ASSERT_EQ(page.cells.size(), 30u);
  EXPECT_TRUE(page.cells[20].isToday);
  EXPECT_EQ(page.cells[20].tithi, "Shukla Dvadashi 4:57+");
  EXPECT_EQ(page.cells[20].sun, "6:47 - 17:21");
  EXPECT_EQ(page.cells[9].marks, QStringList{"Kartika begins"});
  EXPECT_EQ(page.cells[15].marks, QStringList{"Sun enters Scorpio 19:43"});
  EXPECT_EQ(page.cells[18].marks, QStringList{"Shukla Navami repeated"});
  EXPECT_EQ(page.cells[19].marks, (QStringList{"Ekadashi", "Shukla Ekadashi skipped"}));
  const QString text = ExactOutput::MonthText(session.TodayChart(), QDate(2026, 2, 1));
  EXPECT_TRUE(text.startsWith("February 2026\n"));
  EXPECT_TRUE(text.contains("28 Sat"));
  for (const char *wrong : {"2026", "2026-13", "November", "2026-00", ""}) EXPECT_THROW(ExactOutput::ReadMonth(wrong), UsageError) << wrong;
  EXPECT_EQ(ExactOutput::ReadMonth("2026-11"), QDate(2026, 11, 1));
}

TEST_F(ExactPages, PrintTheDay) {
  const QString text = ExactOutput::Text(Agra());
  for (const char *part :
       {"Saturday, November 21, 2026", "Vikrama and Shaka samvat", "Sunrise             6:46:30", "Rahu Kaal", "Kaal 6:47 to 8:06, avoid"})
    EXPECT_TRUE(text.contains(part)) << part << text.toStdString();
  for (const QString &line : text.split('\n')) EXPECT_LE(line.size(), 80) << line.toStdString();
  const QJsonObject day = ExactOutput::Json(session.TodayChart());
  EXPECT_EQ(day["date"].toString(), "2026-11-21");
  EXPECT_EQ(day["sunrise"].toString(), "2026-11-21T06:46:30+05:30");
  EXPECT_EQ(day["tithi"].toArray()[0].toObject()["ends"].toString(), "2026-11-22T04:57:01+05:30");
  EXPECT_EQ(day["chogadiya"].toArray().size(), 16);
  EXPECT_EQ(day["hora"].toArray().size(), 24);
}

TEST_F(ExactPages, WriteCalendarFilesThatOtherProgramsRead) {
  EXPECT_EQ(MonthIcs::Escaped("a,b;c\\d\r\ne"), "a\\,b\\;c\\\\d\\ne");
  EXPECT_EQ(MonthIcs::Folded("short"), "short\r\n");
  EXPECT_EQ(MonthIcs::Folded(QString(75, 'x')), QByteArray(75, 'x') + "\r\n");
  // A letter of several bytes is never broken, and unfolding gives the text back.
  const QString letters = QString(74, 'x') + QString(100, QChar(0x00B0));
  QByteArray folded = MonthIcs::Folded(letters);
  for (const QByteArray &line : folded.split('\n')) EXPECT_LE(line.size(), 76);
  EXPECT_EQ(QString::fromUtf8(folded.replace("\r\n ", "").trimmed()), letters);

  QTemporaryDir folder;
  ExactOutput::WriteIcs(folder.filePath("month.ics"), Agra(), QDate(2026, 11, 1));
  const QByteArray text = ReadWholeFile(folder.filePath("month.ics"));
  EXPECT_TRUE(text.startsWith("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n") && text.endsWith("END:VCALENDAR\r\n"));
  EXPECT_EQ(text.count("BEGIN:VEVENT"), text.count("END:VEVENT"));
  EXPECT_EQ(text.count("DTSTART;VALUE=DATE:"), 30);
  EXPECT_EQ(text.count("\n"), text.count("\r\n"));
  EXPECT_TRUE(text.contains("DTSTART:20261116T141")) << "the Sun enters Scorpio, in universal time";
  QStringList uids;
  for (const QByteArray &line : text.split('\n'))
    if (line.startsWith("UID:")) uids << QString::fromUtf8(line);
  EXPECT_EQ(uids.removeDuplicates(), 0);
  EXPECT_THROW(ExactOutput::WriteIcs(folder.filePath("month.ics/none.ics"), session.TodayChart(), QDate(2026, 11, 1)), StoreError);
}

// A place of the list has its summer time; a difference that its zone never has is the user's own.
TEST_F(ExactPages, ReadTheClockOfAKnownPlace) {
  const auto rules = [&](const char *gmt) {
    return ExactRulesOf(Chart({"London", "United Kingdom", gmt, 51, 30, "N", 0, 7, "W"}, Moment(2024, 6, 20, 12)));
  };
  EXPECT_EQ(rules("+00.00").zone.Name(), "Europe/London");
  EXPECT_EQ(rules("+01.00").zone.Name(), "Europe/London");
  EXPECT_EQ(rules("+05.30").zone.Name(), "");
  // In every month, also where summer time holds half a year before and after.
  session.SetResidence(PlaceRecord{"New York", "United States of America", "-05.00", 40, 43, "N", 74, 0, "W"});
  for (int month = 1; month <= 12; ++month) {
    session.BuildAnalysis(Moment(2026, month, 9, 12));
    EXPECT_EQ(ExactRulesOf(session.TodayChart()).zone.Name(), "America/New_York") << month;
  }
  session.SetResidence(std::nullopt);
  EXPECT_NEAR(rules("+00.00").place.longitude, -7 / 60.0, 1e-9);
}

// Rows of exact times follow each other from the first sunrise to the next without a gap, as their texts do.
template <typename Page, typename Texts>
void ExpectWholeDay(const Page &page, const Texts &texts) {
  ASSERT_TRUE(page.exact);
  double place = 0;
  QString clock = page.exact->begins;
  for (size_t i = 0; i < texts.size(); ++i) {
    EXPECT_NEAR(page.rows[i].begins, place, 1e-6) << i;
    EXPECT_EQ(texts[i].section('-', 0, 0), clock) << i;
    place = page.rows[i].ends;
    clock = texts[i].section('-', 1);
  }
  EXPECT_NEAR(place, page.exact->minutes, 1e-3);
  EXPECT_EQ(clock, page.exact->ends);
}

TEST_F(ExactPages, ShowExactTimesWhereTheSettingAsksForThem) {
  Agra();
  EXPECT_FALSE(session.FillMainPage().IsExact());
  EXPECT_EQ(session.FillMainPage().lblSunriseVal, "6:46 AM");
  EXPECT_FALSE(FillHoraPage(session.TodayChart()).exact);
  EXPECT_EQ(FillNowCard(session.TodayChart()).rahuKaal, "9:16-10:50");

  settings.SetIntValue(SettingKeys::DayDivisions, 2);
  const OverviewPage overview = session.FillMainPage();
  EXPECT_EQ(overview.lblExactHead,
            "Exact times of Saturday, November 21, 2026: sunrise is the Sun's centre on the horizon, without refraction; clock UTC+5:30.");
  EXPECT_EQ(overview.Captions().back(), (std::pair{QStringLiteral("lblExactHead"), overview.lblExactHead}));
  EXPECT_EQ(overview.lblSunriseVal, "6:47");
  EXPECT_EQ(overview.lblSunsetVal, "17:21");
  EXPECT_EQ(overview.lblRahuKaalVal, "9:25 to 10:44");
  EXPECT_EQ(overview.lblYamghantaVal, "13:23 to 14:42");
  EXPECT_EQ(overview.lblTithiVal, "Shukla Dvadashi");
  EXPECT_EQ(FillNowCard(session.TodayChart()).rahuKaal, "9:25-10:44");
  const HoraPage hora = FillHoraPage(session.TodayChart());
  const ChogadiyaPage chogadiya = FillChogadiyaPage(session.TodayChart());
  ExpectWholeDay(hora, hora.lblHoraTime);
  ExpectWholeDay(chogadiya, chogadiya.lblChogTime);
  EXPECT_EQ(hora.lblHoraName[0], "Saturn");
  EXPECT_EQ(chogadiya.lblChogName[0], "Kaal");
  EXPECT_NEAR(hora.exact->now, 199.5, 0.5);
  const EvilMuhurthaPage evil = FillEvilMuhurthaPage(session.TodayChart());
  const std::array<QString, 4> starts{"6:47", "12:04", "13:23", "10:44"};
  for (size_t row = 0; row < 4; ++row) {
    EXPECT_EQ(evil.rows[row].start, starts[row]);
    EXPECT_NEAR((evil.rows[row].ends - evil.rows[row].begins) * 8, evil.exact->dayEnds, 1e-4);
  }
  settings.SetIntValue(SettingKeys::SunriseRule, 2);
  EXPECT_TRUE(session.FillMainPage().lblExactHead.contains("upper limb on the horizon, with refraction"));
  EXPECT_LT(FillHoraPage(session.TodayChart()).lblHoraTime[0], hora.lblHoraTime[0]) << "the limb is seen some minutes earlier";

  // After midnight the day goes on: its weekday, lords and periods are those of its sunrise, and times tell their date.
  Chart(AgraPlace, Moment(2026, 11, 22, 3));
  const OverviewPage late = session.FillMainPage();
  EXPECT_EQ(late.lblDayVal, "Saturday");
  EXPECT_TRUE(late.lblSunriseVal.startsWith("21 Nov 6:4")) << late.lblSunriseVal.toStdString();
  EXPECT_TRUE(late.lblExactHead.contains("Saturday, November 21"));
  const HoraPage lateHora = FillHoraPage(session.TodayChart());
  EXPECT_EQ(lateHora.lblHoraName, hora.lblHoraName);
  EXPECT_TRUE(lateHora.exact->now > lateHora.rows[20].begins && lateHora.exact->now < lateHora.rows[20].ends);
  settings.SetIntValue(SettingKeys::DayDivisions, 1);
  EXPECT_EQ(session.FillMainPage().lblDayVal, "Sunday") << "the house rule's day is that of the date";
}

TEST_F(ExactPages, NameTheStateOfAPolarDayInEveryCell) {
  settings.SetIntValue(SettingKeys::DayDivisions, 2);
  for (const auto &[month, state] : {std::pair{12, "polar night"}, {6, "midnight sun"}}) {
    Murmansk(month);
    const QString none = QStringLiteral("none: %1").arg(state);
    const OverviewPage overview = session.FillMainPage();
    EXPECT_EQ(overview.lblSunriseVal, QStringLiteral("no sunrise: %1").arg(state));
    EXPECT_EQ(overview.lblSunsetVal, QStringLiteral("no sunset: %1").arg(state));
    EXPECT_EQ(overview.lblRahuKaalVal, none);
    EXPECT_EQ(FillNowCard(session.TodayChart()).rahuKaal, none);
    const HoraPage hora = FillHoraPage(session.TodayChart());
    for (const QString &time : hora.lblHoraTime) EXPECT_EQ(time, none);
    EXPECT_EQ(hora.exact->none, (std::array{none, none}));
    for (const QString &time : FillChogadiyaPage(session.TodayChart()).lblChogTime) EXPECT_EQ(time, none);
    for (const EvilMuhurthaPage::Row &row : FillEvilMuhurthaPage(session.TodayChart()).rows)
      EXPECT_TRUE(row.start == none && row.end == none && row.begins == row.ends);
  }
}
