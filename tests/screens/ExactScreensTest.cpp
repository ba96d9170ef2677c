// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The exact day and the month as their users meet them.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <set>

#include "analysis/ExactDayPage.h"
#include "content/pages/ChogadiyaView.h"
#include "content/pages/DayTimeline.h"
#include "content/pages/EvilMuhurthaView.h"
#include "content/pages/ExactDayView.h"
#include "content/pages/HoraView.h"
#include "content/pages/MonthGrid.h"
#include "content/pages/MonthView.h"
#include "content/pages/OverviewView.h"
#include "content/pages/PagePdf.h"
#include "platform/FileTools.h"
#include "platform/ReportError.h"
#include "platform/gui/AskSaveFile.h"
#include "screens/PageFixture.h"

namespace {

class ExactScreens : public PageFixture {
 protected:
  ExactScreens() : PageFixture(QDateTime(QDate(2026, 11, 21), QTime(10, 6), Qt::UTC)) {}

  QTemporaryDir folder;
};

}  // namespace

TEST_F(ExactScreens, ShowTheDayAndSaveIt) {
  ExactDayView view;
  for (const QSize &size : {QSize(862, 618), QSize(480, 400), QSize(1500, 900)}) {
    Show(view, size);
    const auto *timeline = view.findChild<DayTimeline *>("picExactDay");
    ASSERT_NE(timeline, nullptr);
    EXPECT_LE(timeline->width(), view.width());
    EXPECT_TRUE(QTest::qWaitFor([&] { return timeline->height() == timeline->sizeHint().height(); }, 2000)) << timeline->height();
    // Somewhere along the first lane the running tithi tells itself.
    bool told = false;
    for (int y = 0; y < timeline->height() / 4; y += 4)
      told |= timeline->TextAt({timeline->width() / 2, y}).contains("Shukla Dvadashi, 6:32 to 22 Nov 4:57");
    EXPECT_TRUE(told);
    EXPECT_EQ(timeline->TextAt({2, timeline->height() - 2}), "");
    for (const QLabel *label : view.findChildren<QLabel *>()) {
      if (label->wordWrap()) continue;
      EXPECT_GE(label->width(), label->sizeHint().width() - 1) << label->objectName().toStdString() << " at " << size.width();
    }
  }
  EXPECT_EQ(Text(view, "lblExactWeekday"), "Saturday");
  EXPECT_EQ(Text(view, "lblExactName0"), "Shukla Dvadashi");
  Show(view, {862, 618});  // filled again, the tables are there once
  EXPECT_EQ(view.findChildren<QLabel *>("lblExactName0").size(), 1);

  QSignalSpy pages(&view, &PageView::GoToPage);
  QTest::mouseClick(view.findChild<QPushButton *>("cmdExactMonth"), Qt::LeftButton);
  EXPECT_EQ(pages.at(0).at(0).toInt(), 37);

  QString path = folder.filePath("day.pdf");
  view.SetAskFile([&](const QString &) { return path; });
  QTest::mouseClick(view.findChild<QPushButton *>("cmdExactPdf"), Qt::LeftButton);
  EXPECT_TRUE(ReadFileIfAny(path).startsWith("%PDF"));
  EXPECT_EQ(ReadFileIfAny(path).count("/Type /Page\n"), 1);
  path = folder.path();  // a folder is no file
  QTest::mouseClick(view.findChild<QPushButton *>("cmdExactPdf"), Qt::LeftButton);
  EXPECT_EQ(notices.Seen().size(), 1u);
  notices.Clear();
}

// The tables grow and shrink with the day, and no row keeps the words or the colour of the day before.
TEST_F(ExactScreens, GiveEachDayItsOwnRows) {
  ExactDayView view;
  std::set<size_t> counts;
  for (const int day : {0, 1, 2, 3, 4, 5, 2, 0}) {
    session.BuildAnalysis(QDateTime(QDate(2026, 11, 21).addDays(day), QTime(10 + day, 6), Qt::UTC));
    Show(view, {862, 618});
    const ExactDayPage page = FillExactDay(session.TodayChart());
    counts.insert(page.limbs.size());
    const auto table = [&](const std::vector<ExactDayPage::Row> &rows, const char *element, QString ExactDayPage::Row::*words) {
      const auto label = [&](size_t row) { return view.findChild<QLabel *>(QLatin1String(element) + QString::number(row)); };
      for (size_t row = 0; row < rows.size(); ++row) {
        ASSERT_NE(label(row), nullptr) << element << row << " on day " << day;
        EXPECT_EQ(label(row)->text(), rows[row].*words) << element << row << " on day " << day;
        EXPECT_TRUE(label(row)->isVisible()) << element << row << " on day " << day;
      }
      EXPECT_EQ(label(rows.size()), nullptr) << element << " on day " << day;
    };
    table(page.limbs, "lblExactName", &ExactDayPage::Row::name);
    table(page.periods, "lblExactPeriod", &ExactDayPage::Row::name);
    table(page.events, "lblExactAt", &ExactDayPage::Row::ends);
    for (size_t row = 0; row < page.limbs.size(); ++row)
      EXPECT_EQ(view.findChild<QLabel *>("lblExactName" + QString::number(row))->property("role").toString(),
                page.limbs[row].running ? "warn" : "value");
  }
  EXPECT_GT(counts.size(), 1u) << "the days of this test are to differ";
}

TEST_F(ExactScreens, WalkThroughTheMonths) {
  MonthView view;
  Show(view, {862, 700});
  auto *grid = view.findChild<MonthGrid *>("picMonth");
  const auto *title = view.findChild<QLabel *>("lblMonthTitle");
  EXPECT_EQ(title->text(), "November 2026");
  EXPECT_EQ(grid->Chosen(), QDate(2026, 11, 21));
  QSignalSpy opened(&view, &MonthView::DayChosen);
  QTest::keyClick(grid, Qt::Key_Up);
  QTest::keyClick(grid, Qt::Key_Right);
  EXPECT_TRUE(grid->accessibleDescription().startsWith("Sunday 15, Shukla Shashthi"));
  QTest::keyClick(grid, Qt::Key_Return);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.at(0).at(0).toDate(), QDate(2026, 11, 15));
  QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(grid->width() / 14, grid->height() / 4));
  EXPECT_EQ(grid->Chosen().dayOfWeek(), 7);
  QTest::keyClick(grid, Qt::Key_End);
  QTest::keyClick(grid, Qt::Key_Right);
  EXPECT_EQ(title->text(), "December 2026");
  QTest::keyClick(grid, Qt::Key_PageDown);
  EXPECT_EQ(title->text(), "January 2027");
  QTest::mouseClick(view.findChild<QPushButton *>("cmdMonthPrevious"), Qt::LeftButton);
  EXPECT_EQ(title->text(), "December 2026");
  Show(view, {480, 400});  // filled again, it is the month of the moment
  EXPECT_EQ(title->text(), "November 2026");

  view.SetAskFile([&](const QString &suggested) { return folder.filePath(suggested); });
  QTest::mouseClick(view.findChild<QPushButton *>("cmdMonthPdf"), Qt::LeftButton);
  QTest::mouseClick(view.findChild<QPushButton *>("cmdMonthIcs"), Qt::LeftButton);
  EXPECT_EQ(ReadFileIfAny(folder.filePath("November 2026.pdf")).count("/Type /Page\n"), 1);
  EXPECT_TRUE(ReadFileIfAny(folder.filePath("November 2026.ics")).startsWith("BEGIN:VCALENDAR"));
}

// In a window narrower than its words, too, a tool that reads the screen finds a day where the pointer does.
TEST_F(ExactScreens, TellTheRoomOfADayWhereItIsPainted) {
  for (const int width : {700, 200}) {
    MonthGrid grid;
    grid.SetPage(FillMonth(session.TodayChart(), 2026, 11));
    grid.resize(width, 300);
    grid.resize(width, grid.minimumHeight());
    for (int day = 0; day < grid.PartCount(); ++day) {
      QTest::mouseClick(&grid, Qt::LeftButton, {}, grid.PartRoom(day).bottomRight() - QPoint(4, 4));
      EXPECT_EQ(grid.Chosen(), QDate(2026, 11, 1).addDays(day)) << "at " << width;
    }
  }
}

// A name typed without its ending is that of a file all the same, and the file is not replaced unasked.
TEST_F(ExactScreens, AskBeforeAFileIsReplaced) {
  const QString held = folder.filePath("held.pdf");
  WriteWholeFile(held, {});
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    QString question;
    bool typed = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
      QWidget *open = QApplication::activeModalWidget();
      if (auto *box = qobject_cast<QMessageBox *>(open)) {
        question = box->text();
        box->button(answer)->click();
      } else if (auto *dialog = qobject_cast<QFileDialog *>(open); dialog && !typed) {
        typed = true;
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText("held");
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
      } else if (dialog && !question.isEmpty()) {
        dialog->reject();
      }
    });
    user.start(5);
    const QString chosen = AskSaveFile(nullptr, "Save", folder.filePath("day.pdf"), "PDF (*.pdf)");
    EXPECT_TRUE(question.contains("held.pdf")) << question.toStdString();
    EXPECT_EQ(chosen, answer == QMessageBox::Yes ? held : QString());
  }
}

TEST_F(ExactScreens, TellOfAPrinterThatTakesNoPage) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder.filePath("nowhere/day.pdf"));
  bool painted = false;
  EXPECT_THROW(PagePdf::PaintSheet(printer, [&](QPainter &, const QRectF &) { painted = true; }), ReportError);
  EXPECT_FALSE(painted);
}

TEST_F(ExactScreens, TellExactTimesAndSaySo) {
  settings.SetIntValue(SettingKeys::DayDivisions, 2);
  // The rows that run at an hour. The night's last parts still run before sunrise.
  for (const auto &[hour, period, lord] : {std::tuple(3, 13, 20), {7, 0, 0}, {10, 2, 3}, {18, 8, 12}, {23, 11, 17}}) {
    SCOPED_TRACE(hour);
    session.BuildAnalysis(QDateTime(QDate(2026, 11, 21), QTime(hour, 6), Qt::UTC));
    ChogadiyaView chogadiya;
    HoraView hora;
    for (const QSize &size : {QSize(1500, 900), QSize(862, 618), QSize(414, 340)}) {
      Show(chogadiya, size);
      Show(hora, size);
      EXPECT_EQ(Marked(chogadiya, "lblChogMark", 16), QList<int>{period});
      EXPECT_EQ(Marked(hora, "lblHoraMark", 24), QList<int>{lord});
      for (const QWidget *view : std::initializer_list<QWidget *>{&chogadiya, &hora}) {
        const auto *head = view->findChild<QLabel *>("lblExactHead");
        EXPECT_TRUE(head->isVisible() && head->text().startsWith("Exact times of "));
        EXPECT_GE(head->height(), head->heightForWidth(head->width()));
        EXPECT_FALSE(view->findChild<QLabel *>("lblBeforeSunrise")->isVisible());
      }
    }
  }
  session.BuildAnalysis(QDateTime(QDate(2026, 11, 21), QTime(13, 36), Qt::UTC));
  EvilMuhurthaView evil;
  Show(evil, {862, 618});
  EXPECT_EQ(Text(evil, "lblYamGhanTmS"), "13:23");
  EXPECT_EQ(Marked(evil, "lblMuhurthaMark", 4), QList<int>{2});
  EXPECT_TRUE(evil.findChild<QLabel *>("lblExactHead")->isVisible());
  OverviewView overview;
  Show(overview, {862, 618});
  auto *says = overview.findChild<QPushButton *>("lblExactHead");
  EXPECT_TRUE(says->isVisible() && says->toolTip().contains("Sun's centre"));
  EXPECT_EQ(says->text(), "exact, sunrise of the Sun's centre");
  EXPECT_EQ(Text(overview, "lblYamghantaVal"), "13:23 to 14:42");
  QPushButton *beside = overview.findChild<QPushButton *>("exact_lblYamghantaVal");
  EXPECT_FALSE(beside->isVisible());
  QSignalSpy pages(&overview, &PageView::GoToPage);
  QTest::mouseClick(says, Qt::LeftButton);
  EXPECT_EQ(pages.at(0).at(0).toInt(), 36);

  settings.SetIntValue(SettingKeys::DayDivisions, 1);
  Show(overview, {862, 618});
  Show(evil, {862, 618});
  EXPECT_FALSE(says->isVisible());
  EXPECT_TRUE(beside->isVisible());
  EXPECT_FALSE(evil.findChild<QLabel *>("lblExactHead")->isVisible());
  EXPECT_EQ(Text(evil, "lblYamGhanTmS"), "13:20 PM");
}

TEST_F(ExactScreens, NameAPolarNightInPlaceOfItsParts) {
  settings.SetIntValue(SettingKeys::DayDivisions, 2);
  session.SetResidence(PlaceRecord{"Murmansk", "Russia", "+03.00", 68, 58, "N", 33, 5, "E"});
  session.BuildAnalysis(QDateTime(QDate(2025, 1, 1), QTime(12, 0), Qt::UTC));
  ChogadiyaView chogadiya;
  EvilMuhurthaView evil;
  Show(chogadiya, {862, 618});
  Show(evil, {862, 618});
  for (const char *half : {"lblNoParts0", "lblNoParts1"}) {
    EXPECT_TRUE(chogadiya.findChild<QLabel *>(half)->isVisible());
    EXPECT_EQ(Text(chogadiya, half), "none: polar night");
  }
  EXPECT_FALSE(chogadiya.findChild<QLabel *>("lblChogTime0")->isVisible());
  EXPECT_EQ(Text(evil, "lblKantakTmE"), "none: polar night");
  EXPECT_EQ(Marked(evil, "lblMuhurthaMark", 4), QList<int>());
  session.SetResidence(std::nullopt);
  session.BuildAnalysis(QDateTime(QDate(2025, 1, 1), QTime(12, 0), Qt::UTC));
  Show(chogadiya, {862, 618});
  EXPECT_FALSE(chogadiya.findChild<QLabel *>("lblNoParts0")->isVisible());
  EXPECT_TRUE(chogadiya.findChild<QLabel *>("lblChogTime0")->isVisible());
}
