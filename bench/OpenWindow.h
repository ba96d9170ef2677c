// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QTemporaryDir>
#include <memory>

#include "app/Startup.h"

// The program's window over a copy of the data, so that a run changes nothing.
class OpenWindow {
 public:
  OpenWindow();

  frmMain &Screen() { return startup->Screen(); }

  // Gives the window what waits for it, layout and painting included.
  void Paint();

  // Pages that a user can open.
  static std::vector<int> AllPages();

  // The copy of the data that all windows of a run share.
  static QString DataFolder();

  // The option with which this program opens the window over a data folder, says "open" when it is usable, and ends.
  static QString Option() { return QStringLiteral("--open-window"); }
  static int OpenAndTell(const QString &dataFolder);

 private:
  std::unique_ptr<Startup> startup;
};
