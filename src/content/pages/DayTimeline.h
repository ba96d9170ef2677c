// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "analysis/ExactDayPage.h"

// The exact day from sunrise to sunrise on the screen. Its bars tell themselves in full under the pointer; the tables of the page
// hold the same times for the keyboard.
class DayTimeline : public QWidget {
  Q_OBJECT

 public:
  explicit DayTimeline(QWidget *parent = nullptr);

  void SetPage(const ExactDayPage &dayPage);
  // "Rahu Kaal 9:16 to 10:50, avoid" at a point; empty beside the bars.
  QString TextAt(const QPoint &point) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool event(QEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  ExactDayPage page;
};
