// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "platform/AppPaths.h"
#include "platform/UserSettings.h"
#include "platform/clsIni.h"

class QLabel;
class QSvgRenderer;

// Where the program starts: the checks that must pass before anything else, then the main screen.
class frmSplash : public QWidget {
  Q_OBJECT

 public:
  struct Steps {
    std::function<int()> screenWidth;  // pixels; the primary screen's when it is empty
    std::function<void()> runSetup;    // the settings wizard, modally
    std::function<void()> openMain;    // makes and shows the main screen
    std::function<void()> fatal;       // ends the program; called after the message was read
  };

  frmSplash(AppPaths applicationPaths, UserSettings &userSettings, int majorVersion, int minorVersion, Steps steps);

  // Shows the splash and runs everything up to the main screen. Where a check fails for good, fatal was called and
  // nothing after it was done.
  void Load();
  void DoLoad();

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  enum class Outcome { Passed, Failed };

  void CheckDisplay();
  void CheckFonts();
  Outcome CheckLanguages();
  Outcome CheckPersonStore();
  Outcome CheckDataFiles();
  void RunSetup();
  // Runs a check that tells of its failure by an exception; shows its sentence and ends the program then.
  Outcome Guard(const std::function<void()> &check);
  void ShowStatus(const QString &text);

  AppPaths paths;
  UserSettings &settings;
  clsIni ini;
  Steps steps;
  QSvgRenderer *picture;
  QLabel *lblVersion;
  QLabel *lblDesc;
  QLabel *lblStatus;
};
