// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <functional>

#include "analysis/ExactDayPage.h"
#include "content/pages/PageView.h"

class CaptionTable;
class DayTimeline;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

// The exact day: its drawing from sunrise to sunrise, the facts, and below them every time to the second.
class ExactDayView : public PageView {
  Q_OBJECT

 public:
  explicit ExactDayView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

  // Where the PDF goes; an empty answer saves nothing.
  void SetAskFile(std::function<QString(const QString &suggested)> ask) { askFile = std::move(ask); }

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  struct FactLabels {
    QWidget *box;
    QLabel *head, *value;
  };

  void FillFacts();
  void ArrangeFacts();
  void MakeTables();
  void FillTables();
  void SavePdf();

  ExactDayPage page;
  std::function<QString(const QString &)> askFile;
  QLabel *title, *description;
  DayTimeline *timeline;
  QGridLayout *factGrid;
  std::vector<FactLabels> facts;
  int factColumns = 0;
  QWidget *limbsCard, *periodsCard;
  CaptionTable *limbs = nullptr, *periods = nullptr, *events = nullptr;
  QPushButton *savePdf, *month;
};
