// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

#include "platform/AppPaths.h"

class QLabel;

// Makes sure of the four symbol faces. One that the desktop does not have is loaded from EPHE/FONTI, for this run only;
// the screen shows only where that fails.
class frmFontsError : public QDialog {
  Q_OBJECT

 public:
  explicit frmFontsError(AppPaths applicationPaths, QWidget *parent = nullptr);

  // Shows this screen modally when a face is still missing at the end; start-up goes on with whatever is there.
  void CheckFonts();

 private:
  bool Install(const QString &face, const QString &file) const;

  AppPaths paths;
  QLabel *lblText;
};
