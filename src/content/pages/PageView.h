// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

class SelvaniDailyMod;
class SetFonts;

// One page of the content area. It is filled from the session's page models when it is shown, and keeps nothing of
// the charts. Its elements carry their names as object names.
class PageView : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  virtual void Fill(SelvaniDailyMod &session) = 0;
  virtual void ApplyFonts(const SetFonts &fonts) = 0;

 signals:
  void GoToPage(int page);  // a part of the page leads to another
};
