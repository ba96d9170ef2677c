// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <functional>

#include "analysis/MonthPage.h"
#include "content/pages/PageView.h"

class MonthGrid;
class QDate;
class QLabel;
class QPushButton;

// A month of the exact panchang: the grid, other months, and the month on paper, as PDF and as a calendar file.
class MonthView : public PageView {
  Q_OBJECT

 public:
  explicit MonthView(QWidget *parent = nullptr);

  // Shows the analysis moment's month. The session must live as long as the page is shown.
  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

  // Where a file goes; an empty answer saves nothing.
  void SetAskFile(std::function<QString(const QString &suggested)> ask) { askFile = std::move(ask); }

 signals:
  void DayChosen(const QDate &date);  // a day of the grid is to be opened

 private:
  void Step(int months);
  void Show();
  void Guarded(const std::function<void()> &work);
  QString FileName(const char *ending) const;

  SelvaniDailyMod *shown = nullptr;
  MonthPage page;
  std::function<QString(const QString &)> askFile;
  QLabel *title, *subtitle;
  MonthGrid *grid;
  std::vector<QPushButton *> buttons;
};
