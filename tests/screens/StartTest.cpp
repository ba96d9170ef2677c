// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>

#include "app/frmFontsError.h"
#include "app/frmMessage.h"
#include "app/frmSplash.h"
#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/Store.h"
#include "screens/ModalAnswer.h"
#include "support/DataFolder.h"

namespace {

QString TextOf(const QWidget &screen, const char *label) { return screen.findChild<QLabel *>(QLatin1String(label))->text(); }

// A start with every step on record.
struct Start {
  DataFolder data;
  MemoryUserSettings settings;
  NoticeRecorder notices;
  QStringList steps, modals;
  int width = 1280;
  bool dontShow = false;

  void Run() {
    const ModalAnswer answer([this](QWidget &screen) {
      modals << screen.objectName();
      if (screen.objectName() == QLatin1String("frmMessage")) {
        screen.findChild<QCheckBox *>()->setChecked(dontShow);
        screen.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
      }
    });
    frmSplash splash(data.Paths(), settings, 3, 7,
                     {[this] { return width; }, [this] { steps << "setup"; }, [this] { steps << "main"; }, [this] { steps << "fatal"; }});
    splash.Load();
    EXPECT_EQ(TextOf(splash, "lblVersion"), "3.7");
    EXPECT_TRUE(steps.contains("fatal") || TextOf(splash, "lblStatus") == "Loading Application...");
    EXPECT_EQ(splash.isVisible(), !steps.contains("main"));
  }
};

}  // namespace

// First of all: a face that was once loaded stays for the whole run.
TEST(Fonts, AMissingOrBrokenFontFileIsTold) {
  DataFolder data;
  for (const QFileInfo &font : QDir(data.File("FONTI")).entryInfoList(QDir::Files)) QFile::remove(font.filePath());
  WriteWholeFile(data.File("FONTI/ASTRO570.IFT"), "no font");
  QString text;
  const ModalAnswer answer([&](QWidget &screen) {
    text = TextOf(screen, "lblText");
    EXPECT_EQ(screen.findChild<QPushButton *>(QStringLiteral("Command1"))->text(), "&Proceed");
    screen.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
  });
  frmFontsError(data.Paths()).CheckFonts();
  EXPECT_EQ(text,
            "Kruti Astro\nKruti Hindi Astro\nKruti Dev Head\nAstro 570\n\nSome Fonts are not installed.\n"
            "To continue running the software, click 'Proceed.'");
}

TEST(Fonts, AFontFileIsLoadedInSilence) {
  DataFolder data;
  if (!QFile::exists(data.File("FONTI/KRTIASTR.IFT"))) GTEST_SKIP() << "the font files were not made";
  const ModalAnswer answer;
  frmFontsError(data.Paths()).CheckFonts();
  EXPECT_EQ(answer.Seen(), 0);
  EXPECT_TRUE(QFontDatabase::hasFamily(QStringLiteral("Kruti Dev Head")));
}

TEST(Splash, TheWizardRunsOnceInAUsersLife) {
  Start start;
  start.Run();
  start.Run();
  EXPECT_EQ(start.steps, QStringList({"setup", "main", "main"}));
  EXPECT_TRUE(start.settings.BoolValue(SettingKeys::DoneSetup));
}

TEST(Splash, ALowScreenIsToldTwiceUntilItIsTurnedOff) {
  Start start;
  const auto told = [&](int width) {
    start.width = width;
    start.modals.clear();
    start.Run();
    return start.modals.count(QStringLiteral("frmMessage"));
  };
  EXPECT_EQ(told(800), 0);
  EXPECT_EQ(told(799), 2);
  start.dontShow = true;
  EXPECT_EQ(told(799), 1);  // the tick counts from the second check of the same start
  EXPECT_EQ(told(799), 0);
  clsIni(start.data.Paths()).WriteIniString(QStringLiteral("13"), QStringLiteral("True"), QStringLiteral("SHOWERROR"));
  EXPECT_EQ(told(799), 1);
}

TEST(Splash, AMissingDataFileEndsTheProgram) {
  for (const char *file : {"COMMON/RECOS.Dat", "COMMON/LANGS.Dat", "COMMON/CONYEAR.DAT", "COMMON/WAIT.AVI"}) {
    Start start;
    const QString path = start.data.File(file);
    ASSERT_TRUE(QFile::remove(path)) << file;
    start.Run();
    EXPECT_EQ(start.steps.last(), "fatal") << file;
    EXPECT_FALSE(start.steps.contains("main")) << file;
    ASSERT_EQ(start.notices.Seen().size(), 1U) << file;
    EXPECT_EQ(start.notices.Seen()[0].title, "File Not Found");
    EXPECT_TRUE(start.notices.Seen()[0].text.endsWith("' Was Not Found.\nPlease Re-Install.")) << file;
    EXPECT_TRUE(start.notices.Seen()[0].text.contains(QFileInfo(path).fileName())) << file;
  }
}

TEST(Splash, ADamagedListOfLanguagesDoesNotEndTheProgram) {
  Start start;
  WriteWholeFile(start.data.File("COMMON/LANGS.Dat"), "no store any more");
  start.Run();
  EXPECT_EQ(start.steps, QStringList({"setup", "main"}));
}

TEST(Splash, AFaultOfTheMainScreenIsToldAndEndsTheProgram) {
  DataFolder data;
  MemoryUserSettings settings;
  settings.SetBoolValue(SettingKeys::DoneSetup, true);
  const NoticeRecorder notices;
  const ModalAnswer answer;
  bool ended = false;
  frmSplash(data.Paths(), settings, 1, 0,
            {[] { return 1280; }, {}, [] { throw StoreError("The store is locked."); }, [&] { ended = true; }})
      .Load();
  EXPECT_TRUE(ended);
  ASSERT_EQ(notices.Seen().size(), 1U);
  EXPECT_EQ(notices.Seen()[0].text, "The store is locked.");
}

TEST(Message, TheLinkIsOneAddress) {
  const std::pair<const char *, const char *> cases[] = {{"orvani.example", "http://orvani.example"},
                                                         {"http://orvani.example/a", "http://orvani.example/a"},
                                                         {"orvani.example/http://b", "http://orvani.example/b"},
                                                         {"https://orvani.example", "https://orvani.example"}};
  for (const auto &[link, address] : cases) EXPECT_EQ(frmMessage::Address(link), address);
}

TEST(Message, ShowsWhatTheCallAsksFor) {
  DataFolder data;
  const clsIni ini(data.Paths());
  QUrl opened;
  frmMessage message(ini);
  message.SetOpener([&](const QUrl &url) { opened = url; });
  QString text;
  bool link = false, tick = false;
  const ModalAnswer answer([&](QWidget &screen) {
    text = TextOf(screen, "lblMessage");
    auto *lblLink = screen.findChild<QPushButton *>(QStringLiteral("lblLink"));
    link = lblLink->isVisible();
    tick = screen.findChild<QCheckBox *>()->isVisible();
    if (link) lblLink->click();
    screen.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  message.ShowLinkMessage("News", "http://orvani.example", "Title", nullptr, true);
  EXPECT_TRUE(link && tick);
  EXPECT_EQ(opened, QUrl("http://orvani.example"));
  message.ShowMessage(14, 13, nullptr, false);
  EXPECT_EQ(text, "Low Resolution");
  EXPECT_FALSE(link || tick);
  EXPECT_THROW(message.ShowMessage(99, 14, nullptr, false), SubscriptError);
}
