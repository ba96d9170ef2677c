// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The pages as a user meets them: every element filled under its name, the running period marked,
// and the whole of it within reach of the keyboard.
#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextEdit>
#include <functional>

#include "analysis/TimeText.h"
#include "content/pages/ChogadiyaView.h"
#include "content/pages/CreditsView.h"
#include "content/pages/DashaRow.h"
#include "content/pages/DashaView.h"
#include "content/pages/EvilMuhurthaView.h"
#include "content/pages/HoraView.h"
#include "content/pages/ListView.h"
#include "content/pages/PanchangView.h"
#include "content/pages/PeriodClock.h"
#include "content/pages/PlanetTableView.h"
#include "content/pages/RichTextView.h"
#include "content/pages/TrishulView.h"
#include "screens/PageFixture.h"

namespace {

std::vector<ListView::Entry> ChartEntries() {
  return {{0, 16, "Chowgadiya"}, {1, 22, "EvilMuhurthas"}, {12, 6, "BirthKundali"}, {13, 11, "VimshottariDasha"}, {23, 13, "Panchang"}};
}

class PageViewsTest : public PageFixture {
 protected:
  PageViewsTest() : PageFixture(QDateTime(QDate(2016, 11, 21), QTime(11, 0), Qt::UTC)) {}
};

}  // namespace

TEST_F(PageViewsTest, FillsEveryElement) {
  struct Case {
    const char *frame;
    std::function<PageView *()> make;
    const char *elements;  // with the number of rows where the name ends with the row's number
  };
  const Case cases[] = {
      {"framPlPos",
       [] {
         auto *view = new PlanetTableView;
         view->SetChart(PlanetTableView::Chart::Today);
         return view;
       },
       "lblPlanets 13 lblRashi 13 lblDegrees 13 lblNak 13 lblNakLord 13 lblPad 13 lblState 13 lblPlntHead lblRashiHead lblPDegreeHead "
       "lblPNakHead lblPNakLHead lblPadaHead lblDirHead lblPStateHead"},
      {"framPanchaang", [] { return new PanchangView; },
       "lblPanchBirthHead 9 lblPanchBirthVal 9 lblPanchTodayHead 9 lblPanchTodayVal 9 lblBirthPanchang lblNowPanchang"},
      {"framTrishulChakra", [this] { return new TrishulView(paths); }, "lblTrishulNums 28 lblTrishulName 28 lblTrishulHead lblTrishulText"},
      {"framChog", [] { return new ChogadiyaView; },
       "lblChogTime 16 lblChogName 16 lblChogVerdict 16 lblDayChogHead lblNightChogHead lblTimeHead1 lblTimeHead2 lblChogDesc"},
      {"framHoraChrt", [] { return new HoraView; },
       "lblHoraTime 24 lblHoraName 24 lblDayHoraHead lblNightHoraHead lblTimeRangeHead lblTimeRangeHead2"},
      {"framKulik", [] { return new EvilMuhurthaView; },
       "lblKulikHd lblKulikTmS lblKulikTmE lblKalBlHd lblKalBlTmS lblKalBlTmE lblYamGhanHd lblYamGhanTmS lblYamGhanTmE lblKantakHd "
       "lblKantakTmS lblKantakTmE lblKulikadiDesc lblMuhurthaName lblStartTime lblEndTime"},
      {"framVimsot", [] { return new DashaView; }, "lblVimElement 9 lblVimLevel fflpUp"},
      {"picChartList", [] { return new ListView("picChartList", "flpChartList", ChartEntries()); }, "flpChartList0 flpChartList23"},
      {"picCredits", [] { return new CreditsView("1.0", "https://orvani.example"); }, "lblCreditName 8 lblEphemeris"},
  };
  for (const Case &page : cases) {
    SCOPED_TRACE(page.frame);
    const std::unique_ptr<PageView> view(page.make());
    EXPECT_EQ(view->objectName(), page.frame);
    Show(*view, {500, 350});
    const QStringList words = QString(page.elements).split(' ');
    for (int at = 0; at < words.size(); ++at) {
      const int rows = words.value(at + 1).toInt();  // 0: one element, and the next word is another
      for (int row = 0; row < std::max(1, rows); ++row) {
        const QString text = Text(*view, rows == 0 ? words[at] : words[at] + QString::number(row));
        EXPECT_FALSE(text.isEmpty()) << words[at].toStdString() << row;
      }
      at += rows > 0;
    }
  }
}

TEST_F(PageViewsTest, PlanetTableTellsMotionAndDignityByRole) {
  PlanetTableView page;
  Show(page);
  const clsPlanets &chart = session.BirthChart();
  EXPECT_TRUE(Text(page, "lblDir0").isEmpty());
  int retrograde = 0, dignified = 0;
  for (int planet = 1; planet <= 12; ++planet) {
    const QString dignity = chart.ExaltClassEng(planet);
    const auto role = [&](const char *element) {
      return page.findChild<QLabel *>(QLatin1String(element) + QString::number(planet))->property("role").toString();
    };
    EXPECT_EQ(role("lblDir"), chart.RetroGrade(planet) ? "warn" : "value") << planet;
    EXPECT_EQ(role("lblState"), dignity == "Debi" ? "bad" : dignity.isEmpty() ? "value" : "good") << planet;
    retrograde += chart.RetroGrade(planet);
    dignified += !dignity.isEmpty();
  }
  EXPECT_TRUE(retrograde > 0 && dignified > 0) << "the sample birth shows both";
}

TEST_F(PageViewsTest, TrishulNamesAndMarksTheNumbers) {
  TrishulView page(paths);
  Show(page);
  const int today = session.TodayChart().Nak28GetNakshatra(), birth = session.BirthChart().Nak28GetNakshatra();
  for (int label = 0; label < 28; ++label) {
    const int number = (today - 1 + label) % 28 + 1;
    EXPECT_EQ(Text(page, QStringLiteral("lblTrishulNums%1").arg(label)), QString::number(number));
    const QString name = Text(page, QStringLiteral("lblTrishulName%1").arg(number - 1));
    EXPECT_TRUE(page.findChild<QLabel *>(QStringLiteral("lblTrishulNums%1").arg(label))->toolTip().contains(name));
    const QString where = Text(page, QStringLiteral("lblTrishulWhere%1").arg(number - 1));
    EXPECT_EQ(where.contains("today"), number == today) << number;
    EXPECT_EQ(where.contains("birth"), number == birth) << number;
  }
}

TEST(PeriodClockTest, HoldsFromStartUpToEnd) {
  const std::tuple<double, double, int, int, bool> cases[] = {
      {6.45, 8.15, 6, 45, true},   {6.45, 8.15, 8, 15, false},  {6.45, 8.15, 6, 44, false},  {23.30, 0.50, 0, 10, true},
      {23.30, 0.50, 23, 30, true}, {23.30, 0.50, 0, 50, false}, {23.30, 24.50, 0, 49, true}, {9.0, 9.0, 9, 0, false}};
  for (const auto &[start, end, hour, minute, holds] : cases)
    EXPECT_EQ(PeriodClock::Holds(start, end, QTime(hour, minute)), holds) << start << " " << hour << ":" << minute;
  // Half minutes too are taken to the minute that stands on the page.
  for (int thousandth = 0; thousandth < 600; thousandth += 5) {
    const double clock = 6 + thousandth / 1000.0;
    const QTime shown = QTime::fromString(TimeText(clock).section(QLatin1Char(' '), 0, 0), "H:mm");
    EXPECT_TRUE(PeriodClock::Holds(clock, clock + 1, shown)) << clock;
    EXPECT_FALSE(PeriodClock::Holds(clock, clock + 1, shown.addSecs(-60))) << clock;
  }
  EXPECT_EQ(PeriodClock::Word(QDateTime(QDate(2020, 3, 1), QTime(9, 5), Qt::UTC)), "at 9:05");
}

TEST_F(PageViewsTest, MarksThePeriodThatRuns) {
  const double sunrise = session.TodayChart().SunRiseTime();
  for (const QTime &time : {QTime(3, 0), QTime(6, 40), QTime(7, 0), QTime(12, 30), QTime(17, 20), QTime(18, 0), QTime(23, 59)}) {
    SCOPED_TRACE(time.toString().toStdString());
    session.BuildAnalysis(QDateTime(QDate(2016, 11, 21), time, Qt::UTC));
    ChogadiyaView chogadiya;
    HoraView hora;
    Show(chogadiya);
    Show(hora);
    const bool before = PeriodClock::IsBeforeSunrise(sunrise, time);
    const QList<int> period = Marked(chogadiya, "lblChogMark", 16), lord = Marked(hora, "lblHoraMark", 24);
    EXPECT_EQ(period.size(), before ? 0 : 1);
    EXPECT_EQ(lord.size(), before ? 0 : 1);
    EXPECT_EQ(chogadiya.findChild<QLabel *>("lblBeforeSunrise")->isVisible(), before);
    if (before || period.isEmpty() || lord.isEmpty()) continue;
    EXPECT_EQ(Text(chogadiya, QStringLiteral("lblChogMark%1").arg(period[0])), QStringLiteral("at %1").arg(time.toString("H:mm")));
    // The hora begins less than an hour ago by the time that stands beside it.
    const QString begin = Text(hora, QStringLiteral("lblHoraTime%1").arg(lord[0])).section(' ', 0, 0);
    const int passed = QTime::fromString(begin, "H:mm").secsTo(time);
    EXPECT_TRUE(passed >= 0 && passed < 3600) << begin.toStdString();
  }
}

TEST_F(PageViewsTest, ChogadiyaVerdictsFollowTheNames) {
  ChogadiyaView page;
  Show(page);
  for (int row = 0; row < 16; ++row) {
    const QString name = Text(page, QStringLiteral("lblChogName%1").arg(row));
    const bool good = QStringList{"Amrit", "Shubh", "Laabh"}.contains(name);
    const QString wanted = good ? "good" : name == "Chara" ? "fair" : "bad";
    EXPECT_EQ(Text(page, QStringLiteral("lblChogVerdict%1").arg(row)), wanted) << name.toStdString();
  }
}

TEST_F(PageViewsTest, DashaGoesDownAndUpByClickAndKey) {
  DashaView page;
  Show(page);
  QSignalSpy status(&page, &DashaView::StatusChanged);
  const auto row = [&](int i) { return page.findChild<DashaRow *>(QStringLiteral("lblVimElement%1").arg(i)); };
  const auto captions = [&] {
    QStringList list;
    for (int i = 0; i < 9; ++i) list << row(i)->text();
    return list;
  };
  QTest::keyClick(&page, Qt::Key_Backspace);
  EXPECT_EQ(Text(page, "lblVimStatus"), "Can't go above Mahadasha.");
  std::vector<QStringList> levels{captions()};
  for (int level = 1; level <= 4; ++level) {
    for (int i = 0; i < 9; ++i) {
      if (row(i)->PeriodState() != DashaRow::State::Running) continue;
      EXPECT_TRUE(row(i)->Elapsed() >= 0 && row(i)->Elapsed() < 1);
    }
    // Another page asks the shared dasha for the running chain meanwhile.
    session.CurrentDashaText();
    if (level % 2)
      QTest::mouseClick(row(level), Qt::LeftButton);
    else
      QTest::keyClick(row(level), Qt::Key_Return);
    levels.push_back(captions());
    EXPECT_NE(levels[static_cast<size_t>(level)], levels[static_cast<size_t>(level) - 1]);
    EXPECT_TRUE(Text(page, "lblVimStatus").isEmpty());
  }
  QTest::keyClick(row(0), Qt::Key_Return);
  EXPECT_EQ(Text(page, "lblVimStatus"), "Can't generate beyond Prana Dasha.");
  EXPECT_EQ(status.last().first().toString(), "Can't generate beyond Prana Dasha.");
  for (int level = 3; level >= 0; --level) {
    QTest::mouseClick(page.findChild<QAbstractButton *>("fflpUp"), Qt::LeftButton);
    EXPECT_EQ(captions(), levels[static_cast<size_t>(level)]) << level;
  }
}

TEST_F(PageViewsTest, ListIsWalkedByArrowsAndChosenByEnter) {
  ListView page("picChartList", "flpChartList", ChartEntries());
  Show(page);
  page.activateWindow();
  QSignalSpy chosen(&page, &ListView::Chosen);
  const std::tuple<int, Qt::Key, int> steps[] = {{0, Qt::Key_Right, 1},  {0, Qt::Key_Left, 0}, {0, Qt::Key_Down, 13}, {13, Qt::Key_Up, 0},
                                                 {23, Qt::Key_Down, 23}, {0, Qt::Key_End, 23}, {13, Qt::Key_Home, 0}};
  for (const auto &[from, key, to] : steps) {
    auto *at = page.findChild<QAbstractButton *>(QStringLiteral("flpChartList%1").arg(from));
    at->setFocus();
    QTest::keyClick(at, key);
    EXPECT_EQ(page.focusWidget()->objectName(), QStringLiteral("flpChartList%1").arg(to)) << from;
  }
  QTest::keyClick(page.findChild<QWidget *>("flpChartList12"), Qt::Key_Return);
  QTest::keyClick(page.findChild<QWidget *>("flpChartList23"), Qt::Key_Space);
  ASSERT_EQ(chosen.size(), 2);
  EXPECT_EQ(chosen[0].first().toInt(), 12);
  EXPECT_EQ(chosen[1].first().toInt(), 23);
}

TEST_F(PageViewsTest, RichTextKeepsItsLettersAndItsMeasure) {
  RichTextView page;
  page.AppendHead("Head");
  page.AppendBody(QString("word ").repeated(300));
  Show(page, {1600, 900});
  auto *area = page.findChild<QTextEdit *>("rtf");
  const auto letters = [&](int block) { return area->document()->findBlockByNumber(block).begin().fragment().charFormat().font(); };
  EXPECT_EQ(letters(0).pointSize(), 12);
  EXPECT_TRUE(letters(0).bold());
  EXPECT_EQ(letters(0).families().value(0), "Arial");
  EXPECT_EQ(letters(1).pointSize(), 10);
  EXPECT_FALSE(letters(1).bold());
  // 300 words of five letters in lines of at most 75 or so.
  area->document()->documentLayout();
  EXPECT_GE(area->document()->findBlockByNumber(1).layout()->lineCount(), 16);
  QTest::keyClick(area, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(letters(0).pointSize(), 13);
  EXPECT_EQ(letters(1).pointSize(), 11);
  QTest::keyClick(area, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(letters(1).pointSize(), 10);
  page.Clear();
  page.AppendBody("anew");
  EXPECT_EQ(area->toPlainText(), "anew");
}

TEST(HelpTextTest, EveryLinkHasItsTarget) {
  QFile file(QStringLiteral(ORVANI_DATA_SOURCES "/help/english.html"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(file.readAll());
  int links = 0;
  for (auto it = QRegularExpression("href=\"([^\"]*)\"").globalMatch(text); it.hasNext(); ++links) {
    const QString target = it.next().captured(1);
    EXPECT_TRUE(target.startsWith('#') && text.contains(QStringLiteral("name=\"%1\"").arg(target.mid(1)))) << target.toStdString();
  }
  EXPECT_GT(links, 5);
}

TEST_F(PageViewsTest, WordsOfATableCanBeSelectedWithTheMouse) {
  PanchangView view;
  Show(view);
  auto *value = view.findChild<QLabel *>(QStringLiteral("lblPanchTodayVal1"));
  ASSERT_NE(value, nullptr);
  const QPoint onWords(8, value->height() / 2);
  QTest::mouseDClick(value, Qt::LeftButton, {}, onWords);
  EXPECT_FALSE(value->selectedText().isEmpty());
  EXPECT_TRUE(value->text().contains(value->selectedText())) << value->selectedText().toStdString();
}
