// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// One of several programs that edit the same files at the same time. Arguments: the application folder, the settings file, the editor's
// name. With "hold" for a name it takes the lock of the persons' store and waits for the end of its input. A fault ends it with 1.
#include <QCoreApplication>
#include <cstdio>

#include "faults/EditPlan.h"
#include "persons/PersonStore.h"
#include "persons/PlaceStore.h"
#include "platform/StoreKeeper.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"

namespace {

void Edit(const AppPaths &paths, const QString &settingsFile, const QString &editor) {
  Database::SetBusyTimeout(EditPlan::LongestWaitMs);
  const auto db = StoreKeeper::OpenUserStore(paths.RecosPath());
  PersonStore persons(db, paths.DailyPath());
  PlaceStore places(db);
  const clsIni ini(paths);
  FileUserSettings settings(settingsFile);
  for (int n = 0; n < EditPlan::Rounds; ++n) {
    const QString name = EditPlan::Name(editor, n);
    persons.Save(EditPlan::Person(editor, n, false));
    Place city = EditPlan::City(editor, n, false);
    city.row = places.SaveCity(city);
    ini.WriteIniString(name, QString::number(n));
    settings.SetValue(editor, QString::number(n), name);
    if (EditPlan::Changes(n)) {
      persons.Save(EditPlan::Person(editor, n, true));
      Place changed = EditPlan::City(editor, n, true);
      changed.row = city.row;
      places.SaveCity(changed);
    }
    if (EditPlan::Deletes(n)) {
      persons.Delete(name);
      places.DeleteCity(city.row, name);
    }
  }
}

}  // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const AppPaths paths(arguments.at(1));
  try {
    if (arguments.at(3) == QLatin1String("hold")) {
      const auto db = Database::OpenDatabase(paths.RecosPath());
      db->Execute(QStringLiteral("BEGIN EXCLUSIVE"));
      std::puts("held");
      std::fflush(stdout);
      std::getchar();
      return 0;
    }
    Edit(paths, arguments.at(2), arguments.at(3));
    return 0;
  } catch (const Error &error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
