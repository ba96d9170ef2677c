// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "app/MessageBoxes.h"
#include "app/frmDate.h"
#include "app/frmStatus.h"
#include "persons/frmPeople.h"
#include "platform/Errors.h"
#include "platform/Store.h"
#include "support/DataFolder.h"

namespace {

QDateTime Moment(const char *text) {
  QDateTime moment = QDateTime::fromString(QLatin1String(text), QStringLiteral("yyyy-MM-dd HH:mm"));
  moment.setTimeSpec(Qt::UTC);
  return moment;
}

template <class Widget>
Widget *Find(QWidget &screen, const char *name) {
  return screen.findChild<Widget *>(QLatin1String(name));
}

struct DateScreen {
  frmDate screen{[] { return Moment("2026-11-24 09:05"); }};
  QLineEdit *time = Find<QLineEdit>(screen, "txtDTime");
  QCalendarWidget *month = Find<QCalendarWidget>(screen, "mntToday");
  QList<QDateTime> chosen;

  DateScreen() {
    QObject::connect(&screen, &frmDate::Chosen, [this](const QDateTime &moment) { chosen << moment; });
    Open();
  }
  void Open() {
    screen.SetMoment(Moment("2026-11-21 06:30"));
    screen.OpenAt({0, 0});
  }
};

}  // namespace

TEST(Date, ReadsEveryTimeTheMaskCanHold) {
  const std::tuple<const char *, const char *> cases[] = {{"06:30", "2026-12-31 06:30"}, {"1_:3_", "2026-12-31 10:30"},
                                                          {"__:__", "2026-12-31 00:00"}, {"24:00", "2027-01-01 00:00"},
                                                          {"23:60", "2027-01-01 00:00"}, {"_7:_5", "2026-12-31 07:05"}};
  for (const auto &[time, moment] : cases) EXPECT_EQ(frmDate::MomentOf(QDate(2026, 12, 31), time), Moment(moment)) << time;
  EXPECT_THROW(frmDate::MomentOf(QDate(2026, 12, 31), "ab:cd"), ConversionError);
}

TEST(Date, EnterTakesAlsoAnIncompleteTime) {
  DateScreen date;
  date.time->selectAll();
  QTest::keyClicks(date.time, "1");
  QTest::keyClick(date.time, Qt::Key_Return);
  EXPECT_FALSE(date.screen.isVisible());
  EXPECT_EQ(date.chosen, QList<QDateTime>{Moment("2026-11-21 10:00")});
}

TEST(Date, EveryWayOutTakesOnceOrNotAtAll) {
  DateScreen date;
  QTest::keyClick(date.time, Qt::Key_Escape);
  EXPECT_FALSE(date.screen.isVisible());
  EXPECT_TRUE(date.chosen.isEmpty());

  date.Open();
  emit date.month->clicked(date.month->selectedDate());
  emit date.month->activated(date.month->selectedDate());  // the second half of a double click
  EXPECT_EQ(date.chosen, QList<QDateTime>{Moment("2026-11-21 06:30")});

  date.chosen.clear();
  date.Open();
  Find<QPushButton>(date.screen, "flpNextDay")->click();
  Find<QPushButton>(date.screen, "flpNextDay")->click();
  Find<QPushButton>(date.screen, "flpPrevDay")->click();
  EXPECT_TRUE(date.chosen.isEmpty());
  EXPECT_EQ(Find<QLabel>(date.screen, "lblMoment")->text(), "Sunday, November 22, 2026  06:30");
  Find<QPushButton>(date.screen, "flpCloseX")->click();
  EXPECT_EQ(date.chosen, QList<QDateTime>{Moment("2026-11-22 06:30")});

  date.chosen.clear();
  date.Open();
  Find<QPushButton>(date.screen, "flpNow")->click();
  EXPECT_EQ(date.chosen, QList<QDateTime>{Moment("2026-11-24 09:05")});
}

namespace {

struct PeopleScreen {
  frmPeople screen;
  QLineEdit *find = Find<QLineEdit>(screen, "txtFind");
  QListView *list = Find<QListView>(screen, "lvwPeople");
  QStringList chosen;
  int managed = 0;

  PeopleScreen() {
    QObject::connect(&screen, &frmPeople::Chosen, [this](const QString &name) { chosen << name; });
    QObject::connect(&screen, &frmPeople::ManagePersons, [this] { ++managed; });
  }
  QStringList Shown() const {
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(); ++row) names << list->model()->index(row, 0).data().toString();
    return names;
  }
};

}  // namespace

TEST(People, FindsByAnyPartAndChoosesByKeyAndMouse) {
  PeopleScreen people;
  people.screen.SetNames({"Amala O'Brien", "Anvik Telvar", "Bala [x]", "telma"});
  people.screen.SetCurrent("anvik telvar ");
  people.screen.OpenAt({0, 0});
  EXPECT_EQ(people.list->currentIndex().data().toString(), "Anvik Telvar");
  const std::pair<const char *, QStringList> parts[] = {
      {"TEL", {"Anvik Telvar", "telma"}}, {"o'b", {"Amala O'Brien"}}, {"[", {"Bala [x]"}}, {"zz", {}}};
  for (const auto &[part, names] : parts) {
    people.find->setText(part);
    EXPECT_EQ(people.Shown(), names) << part;
    EXPECT_EQ(Find<QLabel>(people.screen, "lblNone")->isVisible(), names.isEmpty()) << part;
  }
  QTest::keyClick(people.find, Qt::Key_Return);  // nothing to choose
  EXPECT_TRUE(people.screen.isVisible());

  people.find->clear();
  people.list->setFocus();
  QTest::keyClicks(people.list, "tel");  // typed into the list, it narrows too
  QTest::keyClick(people.find, Qt::Key_Down);
  QTest::keyClick(people.find, Qt::Key_Down);  // stays on the last
  QTest::keyClick(people.find, Qt::Key_Return);
  EXPECT_EQ(people.chosen, QStringList{"telma"});
  EXPECT_FALSE(people.screen.isVisible());

  people.find->clear();
  people.screen.OpenAt({0, 0});
  const QPoint third = people.list->visualRect(people.list->model()->index(2, 0)).center();
  QTest::mouseClick(people.list->viewport(), Qt::LeftButton, {}, third);
  EXPECT_TRUE(people.screen.isVisible());
  QTest::mouseDClick(people.list->viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(people.chosen, QStringList({"telma", "Bala [x]"}));

  people.screen.OpenAt({0, 0});
  QTest::keyClick(people.find, Qt::Key_Escape);
  EXPECT_FALSE(people.screen.isVisible());
  EXPECT_EQ(people.chosen.size(), 2);
  people.screen.OpenAt({0, 0});
  Find<QPushButton>(people.screen, "cmdManage")->click();
  EXPECT_EQ(people.managed, 1);
  EXPECT_FALSE(people.screen.isVisible());
}

TEST(Status, TellsWhatIsGoingOnAndCanBeCancelled) {
  frmStatus status;
  const std::tuple<void (frmStatus::*)(), const char *, const char *> works[] = {
      {&frmStatus::ExportStatus, "Exporting HTML", "Exporting HTML please wait. This can take a little while..."},
      {&frmStatus::PrintStatus, "Printing...", "Printing Document, please wait. This will take a little while..."},
      {&frmStatus::PDFStatus, "Exporting PDF...", "Exporting PDF File. Please wait, this will take a little while..."},
      {&frmStatus::MuhurthaStatus, "Looking for Muhurtha...", "Searching for the first best Muhurtha in the time range. Please wait..."}};
  for (const auto &[begin, caption, text] : works) {
    (status.*begin)();
    EXPECT_TRUE(status.isVisible());
    EXPECT_EQ(status.windowTitle(), caption);
    EXPECT_EQ(Find<QLabel>(status, "lblStatus")->text(), text);
  }
  auto *bar = Find<QProgressBar>(status, "prgStatus");
  EXPECT_FALSE(bar->isVisible());
  status.SetProgress(12, 10);
  EXPECT_EQ(bar->value(), 10);

  status.reject();  // Esc, while the work cannot be stopped
  EXPECT_TRUE(status.isVisible());
  EXPECT_FALSE(status.WasCancelled());
  status.SetCancelVisible(true);
  QTimer::singleShot(0, Find<QPushButton>(status, "cmdCancel"), &QPushButton::click);
  status.SetProgress(10, 10);  // the report lets the press through
  EXPECT_TRUE(status.WasCancelled());
  status.PrintStatus();
  EXPECT_FALSE(status.WasCancelled());
}

TEST(MessageBoxes, ManyBadKeysAreOneBox) {
  MessageBoxes boxes;
  QStringList shown;
  boxes.SetPresenter([&](const Notice &notice) {
    shown << notice.title + '|' + notice.text;
    // What comes while a box is open waits for it, and the same is not said again.
    if (notice.text == "first") {
      Notices::Show({Notice::Kind::Information, "", "first"});
      Notices::Show({Notice::Kind::Information, "", "second"});
      EXPECT_EQ(shown.size(), 1);
    }
  });
  Notices::Show({Notice::Kind::Information, "", "first"});
  EXPECT_EQ(shown, QStringList({"|first", "|second"}));

  shown.clear();
  {
    const MessageBoxes::Fill page(boxes);
    for (int i = 0; i < 40; ++i) {
      const MessageBoxes::Fill part(boxes);
      Notices::Show({Notice::Kind::Warning, "Words", QString::number(i % 10)});
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(shown.isEmpty());
  }
  EXPECT_TRUE(shown.isEmpty());
  QCoreApplication::processEvents();
  EXPECT_EQ(shown, QStringList{"Words|0\n\n1\n\n2\n\n3\n\n4\n\n5\n\n6\n\n7\n\n... and 2 more."});

  shown.clear();
  Notices::Show({Notice::Kind::Warning, "Words", "0"});  // another page, said again
  EXPECT_EQ(shown, QStringList{"Words|0"});
}

TEST(MessageBoxes, AFaultInABoxLeavesTheNextOneFree) {
  MessageBoxes boxes;
  int shown = 0;
  boxes.SetPresenter([&](const Notice &) {
    if (++shown == 1) throw UsageError("fault");
  });
  EXPECT_THROW(boxes.Show({Notice::Kind::Warning, "", "a"}), UsageError);
  boxes.Show({Notice::Kind::Warning, "", "b"});
  EXPECT_EQ(shown, 2);
}
