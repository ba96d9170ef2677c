// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// What clocks showed, against the histories as they are told in almanacs.
#include "PersonFiles.h"

#include "persons/ClockHistory.h"
#include "persons/PersonFields.h"

namespace {

using Kind = ClockHistory::Reading::Kind;
using Certainty = ClockHistory::Reading::Certainty;

TEST(ClockHistory, KnowsWarTimeSummerTimeAndOldStandards) {
  struct Row {
    const char *zone;
    QDate date;
    QTime time;
    const char *difference;
    Kind kind;
    Certainty certainty = Certainty::Sure;
  };
  const Row rows[] = {
      {"America/New_York", {1944, 1, 15}, {12, 0}, "-04.00", Kind::War},
      {"America/New_York", {1990, 1, 15}, {12, 0}, "-05.00", Kind::Standard},
      {"America/New_York", {1990, 7, 15}, {12, 0}, "-04.00", Kind::Daylight},
      {"America/New_York", {2020, 3, 8}, {2, 30}, "-05.00", Kind::Standard, Certainty::Never},
      {"America/New_York", {2020, 11, 1}, {1, 30}, "-04.00", Kind::Daylight, Certainty::Twice},
      {"America/New_York", {2020, 11, 1}, {2, 0}, "-05.00", Kind::Standard},
      {"America/New_York", {2020, 11, 1}, {0, 59}, "-04.00", Kind::Daylight},
      {"Asia/Kolkata", {1943, 6, 1}, {5, 0}, "+06.30", Kind::War},
      {"Asia/Kolkata", {1980, 7, 23}, {10, 50}, "+05.30", Kind::Standard},
      {"Europe/London", {1969, 1, 10}, {9, 0}, "+01.00", Kind::Standard},
      {"Europe/London", {1941, 7, 1}, {9, 0}, "+02.00", Kind::War},
      {"Asia/Kathmandu", {1985, 12, 31}, {23, 0}, "+05.30", Kind::Standard},
      {"Asia/Kathmandu", {1986, 1, 2}, {0, 0}, "+05.45", Kind::Standard},
      {"America/St_Johns", {1990, 1, 1}, {0, 0}, "-03.30", Kind::Standard},
  };
  for (const Row &row : rows) {
    const auto reading = ClockHistory::At(row.zone, row.date, row.time);
    ASSERT_TRUE(reading) << row.zone;
    const std::string where =
        std::string(row.zone) + " " + row.date.toString(Qt::ISODate).toStdString() + " " + row.time.toString().toStdString();
    EXPECT_EQ(PersonFields::DifferenceText(reading->MinutesEast()), row.difference) << where;
    EXPECT_EQ(reading->kind, row.kind) << where;
    EXPECT_EQ(reading->certainty, row.certainty) << where;
  }
  EXPECT_FALSE(ClockHistory::At("", {2000, 1, 1}, {0, 0}));
  EXPECT_FALSE(ClockHistory::At("Mars/Olympus", {2000, 1, 1}, {0, 0}));
  EXPECT_FALSE(ClockHistory::At("Asia/Kolkata", {2001, 2, 29}, {0, 0}));
}

TEST(ClockHistory, SaysWhenTheDifferenceOnTheScreenIsAnother) {
  const auto war = ClockHistory::Advise("New York", "America/New_York", {1944, 1, 15}, {12, 0}, "-05.00");
  ASSERT_TRUE(war);
  EXPECT_TRUE(war->differs);
  EXPECT_EQ(war->offered, "-04.00");
  EXPECT_TRUE(war->sentence.contains("showed -04.00") && war->sentence.contains("not -05.00")) << war->sentence;
  EXPECT_FALSE(ClockHistory::Advise("New York", "America/New_York", {1944, 1, 15}, {12, 0}, "-4:00")->differs);
  EXPECT_TRUE(ClockHistory::Advise("New York", "America/New_York", {1944, 1, 15}, {12, 0}, "soon")->differs);
  // Either difference is right for a time that came twice.
  for (const char *right : {"-04.00", "-05.00"})
    EXPECT_FALSE(ClockHistory::Advise("New York", "America/New_York", {2020, 11, 1}, {1, 30}, right)->differs) << right;
}

TEST(PersonFields, ReadsWhatIsMeantAndGuessesNothing) {
  struct Row {
    const char *typed, *time, *degrees, *difference;  // as written back; empty where it is refused
  };
  const Row rows[] = {
      {"9.05", "09.05", "", "+09.05"},
      {"09:05", "09.05", "009:05", "+09.05"},
      {"23.59", "23.59", "", ""},
      {"24.00", "", "", ""},
      {"9.5", "", "", ""},
      {"12.60", "", "", ""},
      {"", "", "", ""},
      {"+05.30", "", "", "+05.30"},
      {"-3.30", "", "", "-03.30"},
      {"-00.30", "", "", "-00.30"},
      {"16.00", "16.00", "", ""},
      {"027:09", "", "027:09", ""},
      {"180:00", "", "180:00", ""},
      {"180:01", "", "", ""},
      {"12:60", "", "", ""},
      {" 7:08 ", "07.08", "007:08", "+07.08"},
      {"\xE0\xA5\xAF:05", "", "", ""},
  };
  for (const Row &row : rows) {
    const auto time = PersonFields::ReadTime(row.typed);
    EXPECT_EQ(time ? PersonFields::TimeText(time->hour, time->minutes) : QString(), row.time) << row.typed;
    const auto degrees = PersonFields::ReadDegrees(row.typed);
    EXPECT_EQ(degrees ? PersonFields::DegreesText(degrees->degrees, degrees->minutes) : QString(), row.degrees) << row.typed;
    const auto difference = PersonFields::ReadDifference(row.typed);
    EXPECT_EQ(difference ? PersonFields::DifferenceText(*difference) : QString(), row.difference) << row.typed;
  }
  const std::pair<const char *, const char *> stored[] = {
      {"5.3", "+05.30"}, {"5.30", "+05.30"}, {"0", "+00.00"}, {"-3.5", "-03.50"}, {"noon", "noon"}};
  for (const auto &[text, shown] : stored) EXPECT_EQ(PersonFields::ShownDifference(text), shown);
  EXPECT_EQ(PersonFields::ShownDegrees("02709"), "027:09");
  EXPECT_EQ(PersonFields::StoredDegrees("027:09"), "02709");
  const int minutes = 27 * 60 + 9;
  for (const char *south : {"S", "s", "W", "w"}) EXPECT_EQ(PersonFields::SignedArcMinutes("02709", south), -minutes) << south;
  for (const char *north : {"N", "e", ""}) EXPECT_EQ(PersonFields::SignedArcMinutes("02709", north), minutes) << north;
  EXPECT_EQ(PersonFields::SignedArcMinutes("027:09", "E"), minutes);
  EXPECT_EQ(PersonFields::SignedArcMinutes("2709", "E"), minutes) << "as a number would be kept";
  EXPECT_EQ(PersonFields::SignedArcMinutes("soon", "S"), 0);

  const std::tuple<const char *, bool, const char *> halves[] = {
      {"01.30", true, "13.30"},  {"1.30", true, "13.30"},   {"13.30", true, "13.30"}, {"12.30", false, "00.30"},
      {"23.59", false, "11.59"}, {"09.05", false, "09.05"}, {"", true, ""},           {"noon", true, "noon"}};
  for (const auto &[typed, afternoon, result] : halves) EXPECT_EQ(PersonFields::InHalfOfDay(typed, afternoon), result) << typed;
}

}  // namespace
