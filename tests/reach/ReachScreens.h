// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QSize>
#include <functional>

#include "app/MessageBoxes.h"
#include "platform/UserSettings.h"
#include "support/DataFolder.h"

class QWidget;

// Every page and every dialog of the program, opened one after the other at one moment for one person.
class ReachScreens {
 public:
  // dark: as on a desktop of dark windows. size: of the window, in device-independent pixels.
  ReachScreens(bool dark, QSize size);
  ~ReachScreens();

  // The name is that of the page's title or of the dialog's window; the screen is on display and active.
  using Visit = std::function<void(const QString &name, QWidget &screen)>;
  void ForEach(const Visit &visit);

 private:
  void Dialogs(const Visit &visit, class frmMain &main);
  void Messages(const Visit &visit);
  static void ShowTo(const Visit &visit, const QString &name, QWidget &screen);

  DataFolder data;
  MemoryUserSettings settings;
  MessageBoxes boxes;
  QSize windowSize;
};
