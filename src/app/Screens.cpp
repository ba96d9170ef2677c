// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/Screens.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <cstdio>

#include "app/Maker.h"
#include "app/MessageBoxes.h"
#include "app/frmDate.h"
#include "app/frmMain.h"
#include "content/PageNumber.h"
#include "content/contentManager.h"
#include "content/frmSettings.h"
#include "persons/frmEditLongLat.h"
#include "persons/frmManageUsers.h"
#include "persons/frmPeople.h"
#include "platform/AppPaths.h"
#include "platform/UserSettings.h"
#include "reports/DailyReport.h"
#include "reports/frmDayPrint.h"
#include "reports/frmPratyan.h"

namespace {

const QDateTime Moment(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC);

struct Writer {
  QDir folder;
  bool failed = false;

  void Write(QWidget &widget, const QString &name) {
    QApplication::processEvents();
    const QString path = folder.filePath(name + QStringLiteral(".png"));
    if (widget.grab().save(path)) return;
    failed = true;
    std::fprintf(stderr, "orvani: the picture '%s' cannot be written.\n", qUtf8Printable(path));
  }
};

}  // namespace

int WriteScreens(const QString &folder, const AppPaths &paths, MessageBoxes &boxes) {
  QDir().mkpath(folder);
  Writer writer{QDir(folder)};
  boxes.SetPresenter([](const Notice &notice) { std::fprintf(stderr, "orvani: %s\n", qUtf8Printable(notice.text)); });
  boxes.SetAsker([](const QString &, const QString &) { return false; });  // nobody is there to answer
  MemoryUserSettings settings;
  const qreal scale = qApp->devicePixelRatio();
  const QString suffix = scale > 1 ? QStringLiteral("@%1x").arg(scale) : QString();

  struct Size {
    int width, height;
  };
  for (const Size &size : {Size{1280, 800}, Size{800, 600}, Size{1024, 768}, Size{1920, 1080}}) {
    frmMain screen(paths, settings, boxes);
    screen.SetClock([] { return Moment; });
    screen.resize(size.width, size.height);
    screen.show();
    screen.Load();
    const QString prefix = size.width == 1280 ? QString() : QStringLiteral("%1x%2-").arg(size.width).arg(size.height);
    for (const contentManager::Row &row : contentManager::Table()) {
      // The other sizes show the pages whose layout differs.
      if (size.width != 1280 && (row.page == PageNumber::SunriseKundali || row.page == PageNumber::TransitKundali ||
                                 row.page == PageNumber::TodayPlanets || row.page > PageNumber::EvilMuhurthas))
        continue;
      screen.Pages().ShowPage(row.page);
      writer.Write(screen, prefix + QStringLiteral("page%1").arg(row.page, 2, 10, QLatin1Char('0')) + suffix);
    }
    screen.Pages().ShowPage(PageNumber::Help);
    writer.Write(screen, prefix + QStringLiteral("help") + suffix);
    if (size.width != 1280) continue;
    // The South drawing keeps the numbers of the style before it, so the North one comes between, as in most hands.
    for (const int style : {1, 0, 2}) {
      settings.SetIntValue(SettingKeys::KundStyle, style);
      screen.Pages().ShowPage(PageNumber::BirthKundali);
      if (style == 0) continue;
      writer.Write(screen, QStringLiteral("page06-style%1").arg(style) + suffix);
    }
    settings.SetIntValue(SettingKeys::KundStyle, 0);

    frmDate date([] { return Moment; });
    date.SetMoment(Moment);
    date.show();
    writer.Write(date, QStringLiteral("frmDate") + suffix);
    frmPeople people;
    people.SetNames({"Anvik Telvar", "Asha Verma", "Maya O'Brien", "Ravi Kumar"});
    people.SetCurrent("Anvik Telvar");
    people.show();
    writer.Write(people, QStringLiteral("frmPeople") + suffix);
    if (const std::shared_ptr<Database> &persons = screen.Session().OpenStores().personDb) {
      frmManageUsers manager(persons, paths.DailyPath());
      manager.show();
      writer.Write(manager, QStringLiteral("frmManageUsers") + suffix);
      frmEditLongLat options(persons, settings, clsIni(paths));
      options.show();
      writer.Write(options, QStringLiteral("frmEditLongLat") + suffix);
      DailyReport report(screen.Session(), paths, FindLanguage(paths, QStringLiteral("English")).value_or(LanguageRow()),
                         Maker::WebAddress);
      frmDayPrint topics(report);
      topics.show();
      writer.Write(topics, QStringLiteral("frmDayPrint") + suffix);
      frmPratyan tree;
      tree.FindPratyantara(screen.Session().BirthChart(), Moment);
      tree.show();
      writer.Write(tree, QStringLiteral("frmPratyan") + suffix);
    }
    frmSettings wizard(settings, clsIni(paths));
    wizard.show();
    writer.Write(wizard, QStringLiteral("frmSettings") + suffix);
  }
  return writer.failed ? 1 : 0;
}
