// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The whole program as a user drives it: from the first start to every page, by mouse and by keyboard.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include "app/ElidedLabel.h"
#include "app/MessageBoxes.h"
#include "app/SkyDial.h"
#include "app/frmDate.h"
#include "app/frmMain.h"
#include "chart/ImageButton.h"
#include "chart/Kundali.h"
#include "content/PageNumber.h"
#include "content/SetFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/contentManager.h"
#include "content/frmSettings.h"
#include "content/pages/ScoreLine.h"
#include "persons/frmPeople.h"
#include "platform/FileTools.h"
#include "platform/Recordset.h"
#include "support/DataFolder.h"

namespace {

const QDateTime Moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);

class MainScreen : public testing::Test {
 protected:
  MainScreen() {
    Theme::Apply(*qApp);
    Skin::SetFolder(data.Paths().Ephe("SKIN"));
    boxes.SetPresenter([this](const Notice &notice) { notices << notice.text; });
    boxes.SetAsker([this](const QString &title, const QString &text) {
      questions << title + "|" + text;
      return answer;
    });
  }

  frmMain &Open() {
    screen = std::make_unique<frmMain>(data.Paths(), settings, boxes);
    screen->SetClock([] { return Moment; });
    screen->SetEnd([this] { ++ended; });
    screen->SetOpener([this](const QUrl &url) { opened << url.toString(); });
    screen->resize(1280, 800);
    screen->show();
    screen->Load();
    screen->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
    QApplication::processEvents();
    return *screen;
  }

  // By name among what is on screen: a name can stand on several pages.
  template <typename Widget>
  Widget *Find(const QString &name) {
    for (Widget *widget : screen->findChildren<Widget *>(name))
      if (widget->isVisible()) return widget;
    return nullptr;
  }
  QString Caption(const char *name) {
    const QLabel *label = Find<QLabel>(name);
    return label ? label->text() : QString();
  }
  void Press(const char *name) {
    auto *button = Find<ImageButton>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }

  // Born in New York on a leap day.
  void AddMaya() {
    Database::OpenDatabase(data.Paths().RecosPath())
        ->Execute(
            "INSERT INTO Person (Name, Day, Month, Year, Hour, Minutes, AMPM, City, Sex, Country, GMTDIFF, LatDeg, LatMT, LongDeg, LongMT, "
            "TextNS, TextEW) VALUES ('Maya O''Brien', 29, 2, 2024, 2, 15, 1, 'New York', 2, 'USA', '-5.00', 40, 43, 74, 0, 'N', 'W')");
  }

  // What a user does in the modal screen that the next action opens.
  template <typename Screen>
  void InModal(std::function<void(Screen &)> act) {
    auto *timer = new QTimer(screen.get());
    QObject::connect(timer, &QTimer::timeout, [act, timer] {
      QWidget *open = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : QApplication::activeModalWidget();
      auto *modal = dynamic_cast<Screen *>(open);
      if (!modal) return;
      timer->stop();
      act(*modal);
      if (modal->isVisible()) modal->close();
    });
    timer->start(5);
  }

  void ChooseInWizard(const char *option) {
    InModal<frmSettings>([option](frmSettings &wizard) {
      for (const char *button : {option, "flpNextFrame", "flpNextFrame", "flpNextFrame", "flpFinish"})
        wizard.findChild<QAbstractButton *>(QLatin1String(button))->click();
    });
    Press("flpSettings");
  }

  DataFolder data;
  MemoryUserSettings settings;
  MessageBoxes boxes;
  QStringList notices, questions, opened;
  bool answer = false;
  int ended = 0;
  std::unique_ptr<frmMain> screen;
};

}  // namespace

TEST_F(MainScreen, OpensOnTheOverviewOfTheDay) {
  Open();
  EXPECT_EQ(screen->Pages().Current(), 18);
  EXPECT_EQ(Caption("lblMainChartName"), "Today's Overview");
  EXPECT_EQ(Caption("lblPersonName"), "Anvik Telvar");
  EXPECT_EQ(Caption("lblNowInfo"), "Today : Saturday, November 21, 2026 8:45 ");
  EXPECT_EQ(Caption("lblRahuKaalVal"), "9:16 AM-10:50 AM");
  EXPECT_EQ(Caption("lblTithiVal"), "Shukla Dvadashi");
  EXPECT_EQ(Caption("nowRahuKaal"), "9:16-10:50");
  const auto *language = Find<QComboBox>("cmbLang");
  EXPECT_EQ(language->count(), 1);
  EXPECT_EQ(language->currentText(), "English");
  EXPECT_TRUE(notices.isEmpty()) << notices.join("; ").toStdString();
}

TEST_F(MainScreen, ReachesEveryPageThroughItsButtonsAndSavesItAsAPdf) {
  Open();
  QTemporaryDir folder;
  QString suggested;
  screen->SetFileChooser([&](const QString &name) {
    suggested = name;
    return folder.filePath("page.pdf");
  });
  for (const contentManager::Row &row : contentManager::Table()) {
    const char *list = nullptr;
    int index = -1;
    for (int i = 0; i < 30 && !list; ++i)
      if (frmMain::PageOfChartList(i) == row.page)
        list = "flpCharts", index = i;
      else if (frmMain::PageOfPredictionList(i) == row.page)
        list = "flpPredictions", index = i;
    if (list) {
      Press(list);
      auto *tile = Find<QAbstractButton>(QString(list == QLatin1String("flpCharts") ? "flpChartList%1" : "flpPrediList%1").arg(index));
      ASSERT_NE(tile, nullptr) << row.page;
      QTest::mouseClick(tile, Qt::LeftButton);
    } else {
      screen->Pages().ShowPage(row.page);  // the lists, home, credits, and the Moon's transit, which no list names
    }
    EXPECT_EQ(screen->Pages().Current(), row.page);
    EXPECT_FALSE(Caption("lblMainChartName").isEmpty()) << row.page;
    if (QLatin1String(row.element) == QLatin1String("rtf")) {
      const auto *text = Find<QTextEdit>("rtf");
      ASSERT_NE(text, nullptr) << row.page;
      EXPECT_GT(text->toPlainText().size(), 100) << row.page;
    } else {
      EXPECT_NE(Find<QWidget>(row.element), nullptr) << row.element;
    }
    QFile::remove(folder.filePath("page.pdf"));
    Press("flpPdf");
    EXPECT_GT(QFileInfo(folder.filePath("page.pdf")).size(), 1000) << row.page;
    EXPECT_TRUE(suggested.contains("Anvik Telvar")) << suggested.toStdString();
  }
  EXPECT_TRUE(notices.isEmpty()) << notices.join("; ").toStdString();
  for (const int index : {2, 5, 19, 21, 24, -1, 99}) EXPECT_EQ(frmMain::PageOfChartList(index), 0) << index;
  const int before = screen->Pages().Current();
  for (const int page : {0, 3, 4, 14, 26, 40, 999}) screen->Pages().ShowPage(page);
  EXPECT_EQ(screen->Pages().Current(), before) << "a number that is no page changes nothing";
  screen->SetFileChooser([](const QString &) { return QString("/dev/null/page.pdf"); });
  Press("flpPdf");
  QApplication::processEvents();
  EXPECT_EQ(notices.size(), 1);
}

TEST_F(MainScreen, GoesBackOneStep) {
  Open();
  Press("flpCharts");
  Press("flpCredits");
  Press("imgBack");
  EXPECT_EQ(screen->Pages().Current(), 1);
  QTest::keyClick(screen.get(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(screen->Pages().Current(), 5) << "back twice returns to where one started";
  Press("fflpHome");
  EXPECT_EQ(screen->Pages().Current(), 18);
  QTest::mouseClick(Find<Kundali>("kunBirth"), Qt::LeftButton);
  EXPECT_EQ(screen->Pages().Current(), 6);
  Press("fflpHome");
  QTest::keyClick(Find<Kundali>("kunTransit"), Qt::Key_Return);
  EXPECT_EQ(screen->Pages().Current(), 8);
  QTest::keyClick(screen.get(), Qt::Key_F1);
  EXPECT_EQ(screen->Pages().Current(), PageNumber::Help);
}

TEST_F(MainScreen, KeepsTheStatedRectangle) {
  Open();
  for (const QSize &size : {QSize(800, 600), QSize(1280, 800), QSize(1920, 1080)}) {
    screen->resize(size);
    for (const auto &[page, name] : {std::pair(6, "Kundali"), std::pair(19, "pageRtf")}) {
      screen->Pages().ShowPage(page);
      QApplication::processEvents();
      const QWidget *widget = Find<QWidget>(name);
      ASSERT_NE(widget, nullptr) << name;
      const QRect at(widget->mapTo(screen->centralWidget(), QPoint(0, 0)), widget->size());
      const QRect stated = contentManager::ContentRect(screen->centralWidget()->size());
      EXPECT_LE((at.topLeft() - stated.topLeft()).manhattanLength(), 6) << name << size.width();
      EXPECT_LE((at.bottomRight() - stated.bottomRight()).manhattanLength(), 6) << name << size.width();
    }
  }
}

TEST_F(MainScreen, ChangesPersonAndMoment) {
  AddMaya();
  Open();
  screen->Pages().ShowPage(9);
  const QString ascendant = Caption("lblDegrees0");
  InModal<frmPeople>([](frmPeople &people) {
    QTest::keyClicks(people.findChild<QLineEdit *>("txtFind"), "brien");
    QTest::keyClick(people.findChild<QLineEdit *>("txtFind"), Qt::Key_Return);
  });
  QTest::keyClick(screen.get(), Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(Caption("lblPersonName"), "Maya O'Brien");
  EXPECT_NE(Caption("lblDegrees0"), ascendant) << "the page is shown again";
  EXPECT_EQ(clsIni(data.Paths()).GetIniString("LastPerson", ""), "Maya O'Brien");
  EXPECT_EQ(Caption("lblNowIn"), "Residence: New York, USA ");

  InModal<frmDate>([](frmDate &date) {
    auto *time = date.findChild<QLineEdit *>("txtDTime");
    time->setFocus();
    time->selectAll();
    QTest::keyClicks(time, "2400");
    QTest::keyClick(time, Qt::Key_Return);
  });
  Press("flpDropToday");
  EXPECT_EQ(Caption("lblNowInfo"), "Today : Sunday, November 22, 2026 0:0 ");
  EXPECT_EQ(Caption("lblPersonName"), "Maya O'Brien");
  screen->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  QTest::keyClick(screen.get(), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Caption("lblNowInfo"), "Today : Monday, November 23, 2026 0:0 ");
}

TEST_F(MainScreen, AResidenceThatCannotBeUsedLeavesAWholeBirth) {
  AddMaya();
  Database::OpenDatabase(data.Paths().DailyPath())
      ->Execute("INSERT INTO Person (Name, GMTDIFF, LatDeg, LongDeg) VALUES ('Maya O''Brien', '-5.00', 999, 74)");
  Open();
  screen->Pages().ShowPage(11);
  auto *row = Find<QAbstractButton>("lblVimElement3");
  ASSERT_NE(row, nullptr);
  screen->ChangePerson("Maya O'Brien");
  ASSERT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices[0].contains("999")) << notices[0].toStdString();
  EXPECT_EQ(Caption("lblPersonName"), "Maya O'Brien");
  const QString caption = row->text();
  QTest::mouseClick(row, Qt::LeftButton);
  EXPECT_NE(row->text(), caption);
  EXPECT_EQ(screen->Session().DashaCalc().Level(), 2);
}

// No fault of a stored value may stand between the user and the screen on which it is mended.
TEST_F(MainScreen, StartsWithAResidenceOrAnAyanamshaThatCannotBeUsed) {
  const auto residences = Database::OpenDatabase(data.Paths().DailyPath());
  residences->Execute("DELETE FROM Person");
  residences->Execute("INSERT INTO Person (Name, City, GMTDIFF, LatDeg, LongDeg) VALUES ('Anvik Telvar', 'Nowhere', '5.30', 120, 74)");
  settings.SetIntValue(SettingKeys::AyanType, 13);
  for (const char *ayanamsha : {"23.5", "99999999999", "words"}) {
    notices.clear();
    settings.SetValue(SettingKeys::CustAyan, ayanamsha);
    const bool isUsable = ayanamsha == std::string("23.5");
    Open();
    ASSERT_EQ(notices.size(), isUsable ? 1 : 2) << notices.join('\n').toStdString();
    EXPECT_TRUE(notices.last().contains("120")) << notices.last().toStdString();
    EXPECT_EQ(settings.IntValue(SettingKeys::AyanType), isUsable ? 13 : 1);
    EXPECT_EQ(settings.Value(SettingKeys::CustAyan), ayanamsha) << "it stays to be mended";
    EXPECT_EQ(Caption("lblPersonName"), "Anvik Telvar");
    EXPECT_TRUE(Caption("lblNowIn").contains("Agra")) << "the birth place";
    screen->ChangeMoment(Moment.addDays(1));
    EXPECT_EQ(screen->Session().AnalysisMoment(), Moment.addDays(1));
    EXPECT_EQ(notices.size(), isUsable ? 1 : 2) << "told once";
    settings.SetIntValue(SettingKeys::AyanType, 13);
  }
}

TEST_F(MainScreen, AsksBeforeItEnds) {
  Open();
  Press("flpExit");
  EXPECT_EQ(questions, QStringList{"Exit Orvani?|Do you really want to exit?"});
  EXPECT_EQ(ended, 0);
  screen->close();
  EXPECT_TRUE(screen->isVisible()) << "closing only asks";
  EXPECT_EQ(settings.Value(SettingKeys::Width), "1280");
  answer = true;
  QTest::keyClick(screen.get(), Qt::Key_Escape);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(questions.size(), 3);
}

TEST_F(MainScreen, ShowsHintsAndOpensTheAddress) {
  Open();
  auto *charts = Find<ImageButton>("flpCharts");
  charts->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Caption("lblHint"), "See astrological charts.");
  charts->clearFocus();
  EXPECT_EQ(Caption("lblHint"), "");
  Press("flpWebsite");
  EXPECT_EQ(opened, QStringList{"https://orvani.example"});
}

TEST_F(MainScreen, GoesOnWithoutItsStoresPicturesAndWords) {
  WriteWholeFile(data.File("COMMON/RECOS.Dat"), "no store any more");
  QDir(data.File("SKIN")).removeRecursively();
  Open();
  ASSERT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices[0].contains("RECOS.Dat")) << notices[0].toStdString();
  EXPECT_EQ(Caption("lblPersonName"), "Anvik Telvar") << "the sample person";
  EXPECT_EQ(Caption("lblTithiVal"), "Shukla Dvadashi");
  auto *home = Find<ImageButton>("fflpHome");
  EXPECT_EQ(home->text(), "Home") << "a button without its picture shows its text";
  Press("flpCharts");
  EXPECT_EQ(screen->Pages().Current(), 1);
  Press("flpDropNameList");
  EXPECT_EQ(notices.size(), 2) << "nobody to choose is told";
}

TEST_F(MainScreen, OffersTheKeptCopyOfADamagedStore) {
  Open();  // keeps a copy
  screen.reset();
  const QString store = data.File("COMMON/RECOS.Dat");
  WriteWholeFile(store, ReadWholeFile(store).first(9000));
  answer = true;
  Open();
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains("put back"));
  ASSERT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices[0].contains("RECOS.Dat.damaged")) << notices[0].toStdString();
  EXPECT_NE(screen->Session().OpenStores().personDb, nullptr);
}

TEST_F(MainScreen, AClickOnAScoresCourseGoesToItsDay) {
  Open();
  screen->Pages().ShowPage(34);
  auto *line = Find<ScoreLine>("linScore0");
  ASSERT_NE(line, nullptr);
  const double later = line->Scores()[9];
  QTest::mouseClick(line, Qt::LeftButton, {}, line->PointOf(9).toPoint());
  EXPECT_EQ(screen->Session().AnalysisMoment(), Moment.addDays(9));
  EXPECT_EQ(screen->Pages().Current(), 34);
  EXPECT_EQ(line->Scores()[0], later);  // the page counts from the day that was chosen
  EXPECT_TRUE(line->TellDay(0).startsWith("Monday, 30 November 2026"));
}

TEST_F(MainScreen, GoesOnWithDamagedLanguageFiles) {
  // With the words of the pages still there, and without them.
  for (const auto &[file, words] : {std::pair(data.Paths().LangsPath(), true), {data.Paths().LanguageDataPath("ENGLISH"), false}}) {
    const QByteArray whole = ReadWholeFile(file);
    WriteWholeFile(file, "no store any more");
    notices.clear();
    Open();
    EXPECT_FALSE(notices.isEmpty()) << file.toStdString();
    EXPECT_EQ(screen->Pages().Current(), 18);
    EXPECT_EQ(Caption("lblTithiVal") == "Shukla Dvadashi", words) << file.toStdString();
    Press("flpCredits");
    EXPECT_EQ(screen->Pages().Current(), 5);
    screen.reset();
    WriteWholeFile(file, whole);
  }
}

TEST_F(MainScreen, AsksForTheEndEvenWhereItsPlaceCannotBeKept) {
  class FullDisk : public MemoryUserSettings {
   public:
    void SetAll(const std::vector<Change> &) override { throw StoreError("The disk is full."); }
  } full;
  frmMain other(data.Paths(), full, boxes);
  other.SetClock([] { return Moment; });
  other.show();
  other.Load();
  other.close();
  EXPECT_EQ(questions.size(), 1);
  EXPECT_TRUE(notices.contains("The disk is full."));
}

TEST_F(MainScreen, TheSamplePersonFollowsTheSettingsToo) {
  Database::OpenDatabase(data.Paths().RecosPath())->Execute("DELETE FROM Person");
  Open();
  screen->Pages().ShowPage(9);
  const QString ascendant = Caption("lblDegrees0");
  ChooseInWizard("optSayan");
  EXPECT_NE(Caption("lblDegrees0"), ascendant);
}

TEST_F(MainScreen, ShowsTheOpenPageAnewInExactTimes) {
  Open();
  screen->Pages().ShowPage(17);
  const QString house = Caption("lblHoraTime3"), card = Caption("nowRahuKaal");
  ChooseInWizard("optDivisionsExact");
  EXPECT_NE(Caption("lblHoraTime3"), house);
  EXPECT_TRUE(Caption("lblHoraTime3").contains('-'));
  EXPECT_NE(Caption("nowRahuKaal"), card);
  ChooseInWizard("optDivisionsHouse");
  EXPECT_EQ(Caption("lblHoraTime3"), house);
  EXPECT_EQ(Caption("nowRahuKaal"), card);
}

TEST_F(MainScreen, ALeftPageLeavesNothingBehind) {
  Open();
  screen->Pages().ShowPage(19);
  auto *text = Find<QTextEdit>("rtf");
  Press("fflpHome");
  EXPECT_EQ(text->toPlainText(), "");
  screen->Pages().ShowPage(9);
  QWidget *planets = screen->Pages().CurrentWidget();
  const QString ascendant = Caption("lblDegrees0");
  screen->Pages().ShowPage(10);
  EXPECT_EQ(screen->Pages().CurrentWidget(), planets) << "one table for both";
  EXPECT_NE(Caption("lblDegrees0"), ascendant);
  QWidget broken;
  screen->Pages().AddPage(23, {&broken, [] { throw std::runtime_error("broken page"); }, {}});
  screen->Pages().ShowPage(23);
  EXPECT_EQ(Caption("lblMainChartName"), screen->Pages().TitleOf(23));
  EXPECT_FALSE(screen->Pages().TitleOf(23).isEmpty());
  QApplication::processEvents();
  EXPECT_EQ(notices, QStringList{"broken page"});
}

TEST_F(MainScreen, ShowsTheWholeMomentOnASmallScreen) {
  Open();
  screen->resize(800, 600);
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  const auto *moment = Find<ElidedLabel>("lblNowInfo");
  EXPECT_TRUE(moment->Holds(moment->contentsRect().width()));
  EXPECT_EQ(Caption("nowNext"), "Trayodashi 4:58");
  const auto *rahuKaal = Find<QLabel>("lblRahuKaalVal");
  EXPECT_LE(rahuKaal->fontMetrics().horizontalAdvance(rahuKaal->text()), rahuKaal->width()) << "on one line";
}

TEST(ElidedLabelTip, IsTheTextThatIsCutNow) {
  ElidedLabel label;
  label.resize(60, 20);
  for (const char *text : {"Saturday, 21 November 2026 at Jaipur", "Sunday, 22 November 2026 at Jaipur", "Jaipur"}) {
    label.setText(text);
    label.grab();
    EXPECT_EQ(label.toolTip(), label.text().size() > 10 ? label.text() : QString());
  }
}

TEST(SetFontsSymbols, ALaterLanguageKeepsThoseOfTheFirst) {
  class Tongue : public TextDb {
   public:
    explicit Tongue(QString name) : tongue(std::move(name)) {}
    TextRow Find(const QString &, const QString &head, const QString &category) override { return {true, false, tongue + category + head}; }

   private:
    QString tongue;
  };
  MemoryUserSettings settings;
  clsPlanets chart(settings);
  for (const char *tongue : {"a", "b"}) {
    chart.setTextDB(std::make_shared<Tongue>(tongue), nullptr);
    const std::pair<int, const char *> kinds[] = {{0, ""},          {1, "aSymbols:"}, {2, "aSymbols:"}, {3, "aSymbols/"},
                                                  {4, "aSymbols-"}, {5, "aSymbols+"}, {6, ""}};
    for (const auto &[kind, symbol] : kinds) EXPECT_EQ(SetFonts::GetSymbol(kind, chart), symbol) << tongue << kind;
  }
}

TEST(SkyDialDots, NearPlanetsStandBelowEachOther) {
  EXPECT_EQ(SkyDial::StepsInward({10, 100, 13, 16, 250}, 7), (std::vector<int>{0, 0, 1, 2, 0}));
  EXPECT_EQ(SkyDial::StepsInward({359, 2}, 7), (std::vector<int>{1, 0})) << "the circle closes at Aries";
}
