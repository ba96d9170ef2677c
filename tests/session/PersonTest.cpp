// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The cursor over the store of persons.
#include <gtest/gtest.h>

#include "persons/clsPerson.h"
#include "platform/Errors.h"
#include "support/DataFolder.h"

TEST(Person, WalksAndChangesTheStore) {
  const DataFolder data;
  const auto store = Database::OpenDatabase(data.Paths().RecosPath());
  clsPerson person;
  EXPECT_THROW(person.MoveLast(), StoreError) << "no store yet";
  person.SetDB(store);
  ASSERT_EQ(person.Count(), 1);
  person.MoveTo(0);
  EXPECT_EQ(person.Name(), "Anvik Telvar");
  EXPECT_EQ(person.PLOB(), "Agra");

  clsPerson added = person;
  added.SetName("  O'Neil \xE2\x80\x93 \xE0\xA4\x85  ");
  added.SetDay(1.5);  // half to even
  added.SetMonth(2.5);
  added.SetYear(1985.5);
  added.SetTimeCorr("+01.00");
  added.SetTimeCorrInde(3);
  added.AddNew();

  clsPerson read;
  read.SetDB(store);
  ASSERT_EQ(read.Count(), 2);
  read.MoveLast();
  EXPECT_EQ(read.DayText(), "02");
  EXPECT_EQ(read.MonthText(), "02");
  EXPECT_EQ(read.Year(), 1986);
  EXPECT_EQ(read.TimeCorr(), "+01.00");
  EXPECT_EQ(read.TimeCorrInde(), 3);
  EXPECT_EQ(read.FindPerson("Nobody"), 0);
  EXPECT_EQ(read.TimeCorr(), "+01.00") << "left as it was";
  EXPECT_EQ(read.FindPerson("anvik telvar"), 1);
  EXPECT_EQ(read.Name(), "Anvik Telvar");

  // A row without a correction loads as none, and a save writes that.
  store->Execute("UPDATE Person SET TCorrVal = NULL, Tcorrinde = NULL WHERE Name = 'Anvik Telvar'");
  clsPerson bare;
  bare.SetDB(store);
  bare.MoveFirst();
  EXPECT_EQ(bare.TimeCorr(), "+00.00");
  bare.Save();
  EXPECT_EQ(store->OpenRecordset("SELECT TCorrVal FROM Person WHERE Name = ?", {"Anvik Telvar"}).Field("TCorrVal").toString(), "+00.00");

  read.SetDB(store);
  read.MoveLast();
  read.Delete();
  EXPECT_EQ(store->OpenRecordset("Person").RecordCount(), 1);
}

TEST(Person, SaysTheHalfOfTheDay) {
  clsPerson person;
  const std::pair<int, const char *> rows[] = {{0, "12:07 AM"}, {11, "11:07 AM"}, {12, "12:07 PM"}, {13, "01:07 PM"}};
  for (const auto &[hour, text] : rows) {
    person.SetAMPM(0);
    person.SetHour(hour);
    person.SetMinutes(7);
    EXPECT_EQ(person.GetBirthTimeFull(), text);
    EXPECT_EQ(person.AMPM(), hour >= 12 ? 2 : 1);
  }
  person.SetYear(1.9e9);
  EXPECT_THROW(person.SetDay(3e9), ConversionError);
}
