// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <memory>

#include "app/MessageBoxes.h"
#include "app/frmMain.h"
#include "platform/AppPaths.h"

// What a user meets from the start on: the splash with its checks, the wizard at the first start, the main screen.
// One at a time, as it receives every notice while it lives.
class Startup {
 public:
  // Dresses the application in the theme and the pictures of the data folder.
  explicit Startup(const AppPaths &applicationPaths);

  // Opens the main screen; false where a check has told what is missing.
  bool Open(std::unique_ptr<UserSettings> userSettings);

  frmMain &Screen() { return *screen; }  // once it is open
  MessageBoxes &Boxes() { return boxes; }

 private:
  AppPaths paths;
  MessageBoxes boxes;
  std::unique_ptr<UserSettings> settings;
  std::unique_ptr<frmMain> screen;
};
