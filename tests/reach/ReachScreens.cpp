// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reach/ReachScreens.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QLabel>
#include <QPalette>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "app/Maker.h"
#include "app/frmDate.h"
#include "app/frmFontsError.h"
#include "app/frmMain.h"
#include "app/frmMessage.h"
#include "app/frmSplash.h"
#include "app/frmStatus.h"
#include "content/PageNumber.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/contentManager.h"
#include "content/frmSettings.h"
#include "persons/frmEditLongLat.h"
#include "persons/frmManageUsers.h"
#include "persons/frmPeople.h"
#include "reports/DailyReport.h"
#include "reports/frmDayPrint.h"
#include "reports/frmPratyan.h"

namespace {

const QDateTime Moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);

}  // namespace

ReachScreens::ReachScreens(bool dark, QSize size) : windowSize(size) {
  boxes.SetPresenter([](const Notice &) {});
  QPalette desktop;
  desktop.setColor(QPalette::Window, dark ? QColor(0x20, 0x20, 0x20) : QColor(0xF0, 0xF0, 0xF0));
  qApp->setPalette(desktop);
  Skin::SetFolder(data.Paths().Ephe(QStringLiteral("SKIN")));
  Theme::Apply(*qApp, data.Paths().Ephe(QStringLiteral("SKIN")));
}

ReachScreens::~ReachScreens() {
  qApp->setPalette(QPalette());
  Theme::Apply(*qApp);
}

void ReachScreens::ForEach(const Visit &visit) {
  frmMain main(data.Paths(), settings, boxes);
  main.SetClock([] { return Moment; });
  main.SetEnd([] {});
  main.resize(windowSize);
  main.show();
  main.Load();
  main.activateWindow();
  QTest::qWaitForWindowActive(&main);
  for (const contentManager::Row &row : contentManager::Table()) {
    main.Pages().ShowPage(row.page);
    ShowTo(visit, QStringLiteral("%1 %2").arg(row.page).arg(main.Pages().TitleOf(row.page)), main);
  }
  main.Pages().ShowPage(PageNumber::Help);
  ShowTo(visit, QStringLiteral("Help"), main);
  for (const int style : {1, 2}) {
    settings.SetIntValue(SettingKeys::KundStyle, style);
    main.Pages().ShowPage(6);
    ShowTo(visit, style == 1 ? QStringLiteral("6 East Indian") : QStringLiteral("6 South Indian"), main);
  }
  settings.SetIntValue(SettingKeys::KundStyle, 0);
  main.Pages().ShowPage(18);
  Dialogs(visit, main);
  Messages(visit);
}

void ReachScreens::ShowTo(const Visit &visit, const QString &name, QWidget &screen) {
  if (!screen.isVisible()) screen.show();
  screen.activateWindow();
  // Layouts that follow a width need a second round for the height.
  for (int round = 0; round < 4; ++round) QApplication::processEvents();
  visit(name, screen);
}

void ReachScreens::Dialogs(const Visit &visit, frmMain &main) {
  const AppPaths paths = data.Paths();
  const std::shared_ptr<Database> &persons = main.Session().OpenStores().personDb;
  {
    frmDate date([] { return Moment; }, &main);
    date.SetMoment(Moment);
    date.OpenAt({0, 0});
    ShowTo(visit, QStringLiteral("Date and time"), date);
  }
  {
    frmPeople people(&main);
    people.SetNames({"Anvik Telvar", "Asha Verma", "Maya O'Brien", "Ravi Kumar"});
    people.SetCurrent(QStringLiteral("Anvik Telvar"));
    people.OpenAt({0, 0});
    ShowTo(visit, QStringLiteral("List of persons"), people);
  }
  {
    frmManageUsers manager(persons, paths.DailyPath(), &main);
    manager.show();
    ShowTo(visit, QStringLiteral("Persons"), manager);
  }
  {
    frmEditLongLat options(persons, settings, clsIni(paths), &main);
    options.show();
    auto *tabs = options.findChild<QTabWidget *>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
      if (tabs) tabs->setCurrentIndex(tab);
      ShowTo(visit, tabs ? QStringLiteral("Options: %1").arg(tabs->tabText(tab).remove(u'&')) : QStringLiteral("Options"), options);
    }
  }
  {
    DailyReport report(main.Session(), paths, FindLanguage(paths, QStringLiteral("English")).value_or(LanguageRow()), Maker::WebAddress);
    frmDayPrint topics(report, &main);
    ShowTo(visit, QStringLiteral("Print"), topics);
  }
  {
    frmPratyan tree(&main);
    tree.FindPratyantara(main.Session().BirthChart(), Moment);
    ShowTo(visit, QStringLiteral("Dasha tree"), tree);
  }
  {
    frmSettings wizard(settings, clsIni(paths), &main);
    wizard.show();
    auto *next = wizard.findChild<QAbstractButton *>(QStringLiteral("flpNextFrame"));
    for (int step = 1; step <= 4; ++step) {
      ShowTo(visit, QStringLiteral("Settings, step %1").arg(step), wizard);
      next->click();
    }
  }
}

void ReachScreens::Messages(const Visit &visit) {
  const AppPaths paths = data.Paths();
  {
    frmStatus status;
    status.PDFStatus();
    status.SetProgress(3, 10);
    status.SetCancelVisible(true);
    ShowTo(visit, QStringLiteral("Progress"), status);
  }
  {
    frmFontsError fonts(paths);
    fonts.findChild<QLabel *>()->setText(QStringLiteral("Siddhanta\n\nSome Fonts are not installed."));
    ShowTo(visit, QStringLiteral("Missing fonts"), fonts);
  }
  {
    frmSplash splash(paths, settings, 0, 1, {});
    ShowTo(visit, QStringLiteral("Start"), splash);
  }
  // These run a loop of their own: they are visited from it.
  const auto modal = [&](const QString &name, const std::function<void()> &open) {
    QTimer timer;
    bool seen = false;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      QWidget *screen = QApplication::activeModalWidget();
      if (!screen) return;
      if (!seen) ShowTo(visit, name, *screen);
      seen = true;
      screen->close();
    });
    timer.start(5);
    open();
  };
  modal(QStringLiteral("Message with a link"), [&] {
    frmMessage(clsIni(paths))
        .ShowLinkMessage(QStringLiteral("News of this program are told on its page."), Maker::WebAddress, Maker::Title, nullptr, true);
  });
  modal(QStringLiteral("Question"), [&] { boxes.Ask(Maker::Title, QStringLiteral("Do you really want to exit?")); });
  modal(QStringLiteral("Warning"), [&] {
    boxes.SetPresenter({});
    boxes.Show(
        {Notice::Kind::Warning, Maker::Title, QStringLiteral("The store of persons cannot be read: /home/user/EPHE/COMMON/RECOS.Dat")});
  });
}
