// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/PageView.h"

class QTextBrowser;

// The help text, with a table of contents that leads into it.
class HelpView : public PageView {
  Q_OBJECT

 public:
  // path: of the help file of the language.
  explicit HelpView(const QString &path, QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void Load();  // needs no session
  void ApplyFonts(const SetFonts &fonts) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  void FitMeasure();

  QString file;
  QTextBrowser *browser;
};
