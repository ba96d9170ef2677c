// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/Startup.h"

#include <QApplication>
#include <QIcon>

#include "Version.h"
#include "app/frmSplash.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "content/frmSettings.h"
#include "platform/gui/DesktopScheme.h"

Startup::Startup(const AppPaths &applicationPaths) : paths(applicationPaths) {
  Theme::Apply(*qApp, DesktopScheme::Ask(qApp->palette()), paths.Ephe(QStringLiteral("SKIN")));
  Skin::SetFolder(paths.Ephe(QStringLiteral("SKIN")));
  QApplication::setWindowIcon(Skin::Picture(QStringLiteral("mark")));
}

bool Startup::Open(std::unique_ptr<UserSettings> userSettings) {
  settings = std::move(userSettings);
  bool ended = false;
  frmSplash splash(paths, *settings, ORVANI_VERSION_MAJOR, ORVANI_VERSION_MINOR,
                   {{},
                    [&] { frmSettings(*settings, clsIni(paths)).exec(); },
                    [&] {
                      screen = std::make_unique<frmMain>(paths, *settings, boxes);
                      screen->Load();
                      screen->show();
                    },
                    [&] { ended = true; }});
  splash.Load();
  return !ended && screen;
}
