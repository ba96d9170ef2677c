// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "analysis/ExactDayPage.h"
#include "chart/SpokenParts.h"

// The exact day from sunrise to sunrise on the screen. Its bars tell themselves in full under the pointer; the tables of the page
// hold the same times for the keyboard.
class DayTimeline : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  explicit DayTimeline(QWidget *parent = nullptr);

  void SetPage(const ExactDayPage &dayPage);
  // "Rahu Kaal 9:16 to 10:50, avoid" at a point; empty beside the bars.
  QString TextAt(const QPoint &point) const;

  // The bars, lane by lane.
  int PartCount() const override;
  QString PartWords(int bar) const override;
  QRect PartRoom(int bar) const override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool event(QEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  // A bar by its number: the lane, and the bar in it.
  std::pair<size_t, size_t> BarOf(int number) const;

  ExactDayPage page;
};
