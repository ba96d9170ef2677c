// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>

#include "app/MessageBoxes.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "faults/EditPlan.h"
#include "persons/PersonStore.h"
#include "platform/FileTools.h"
#include "platform/StoreKeeper.h"
#include "support/DataFolder.h"

inline std::ostream &operator<<(std::ostream &out, const QString &text) { return out << '"' << text.toStdString() << '"'; }

// A data folder with some persons, both stores kept, and both programs on it: the window from its splash on, with its boxes on record, and
// orvani-daily.
class FaultFolder : public testing::Test {
 protected:
  struct Answer {
    int code = -1;
    QString out, err;
  };

  FaultFolder() {
    boxes.SetPresenter([this](const Notice &notice) { notices << notice.text; });
    boxes.SetAsker([this](const QString &, const QString &text) {
      questions << text;
      if (whenAsked) whenAsked();
      return answer;
    });
    {
      const auto persons = Database::OpenDatabase(Recos());
      PersonStore store(persons, Daily());
      for (const char *name : {"Mira", "Arun O'Neil", "Zoya"}) store.Save(Numbered(QLatin1String(name), static_cast<int>(qstrlen(name))));
    }
    for (const QString &path : {Recos(), Daily()}) StoreKeeper::OpenUserStore(path);
    settings.SetBoolValue(SettingKeys::DoneSetup, true);
  }

  QString Recos() const { return data.Paths().RecosPath(); }
  QString Daily() const { return data.Paths().DailyPath(); }

  // From the splash to the first page; gives false where the program ended instead.
  bool Start() {
    Theme::Apply(*qApp);
    Skin::SetFolder(data.Paths().Ephe(QStringLiteral("SKIN")));
    questions.clear();
    notices.clear();
    bool ended = false;
    frmSplash splash(data.Paths(), settings, 1, 0,
                     {[] { return 1280; },
                      {},
                      [this] {
                        screen = std::make_unique<frmMain>(data.Paths(), settings, boxes);
                        screen->SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(8, 45), Qt::UTC); });
                        screen->Load();
                        screen->show();
                      },
                      [&ended] { ended = true; }});
    splash.Load();
    QApplication::processEvents();
    return !ended;
  }
  void End() { screen.reset(); }

  Answer Call(QStringList arguments) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", data.Path() + "/config");
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ORVANI_DAILY), arguments << "--app-dir" << data.Path());
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
  }

  // The births of a store, or its residences, as one text.
  static QString Persons(Database &store) {
    QStringList rows;
    for (Recordset row = store.OpenRecordset(QStringLiteral("SELECT * FROM Person ORDER BY Name, rowid")); !row.AtEnd(); row.MoveNext())
      for (const char *column : {"Name", "City", "Country", "GMTDIFF", "LatDeg", "LatMT", "LongDeg", "LongMT", "TextNS", "TextEW"})
        rows << row.Field(QLatin1String(column)).toString();
    return rows.join(u'|');
  }

  // What lies beside a store by the name of damage, and is the damage of nobody else.
  static QStringList SetAsideOf(const QString &path) {
    QStringList found;
    const QFileInfo store(path);
    for (const QString &name : QDir(store.path()).entryList({store.fileName() + "*.damaged"}, QDir::AllEntries | QDir::System))
      found << store.path() + '/' + name;
    return found;
  }

  DataFolder data;
  MemoryUserSettings settings;
  MessageBoxes boxes;
  QStringList questions, notices;
  bool answer = true;
  std::function<void()> whenAsked;
  std::unique_ptr<frmMain> screen;
};
