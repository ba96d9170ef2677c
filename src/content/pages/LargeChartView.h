// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/PageView.h"

class HeadedCard;
class Kundali;
class QLabel;

// The large chart of the birth, the sunrise and the transit page. The chart itself keeps its stated rectangle of the
// main screen; around it stand the moment, the place and the style.
class LargeChartView : public PageView {
  Q_OBJECT

 public:
  explicit LargeChartView(QWidget *parent = nullptr);

  void SetKind(int kind) { kindShown = kind; }  // 1 birth, 2 transit, 3 sunrise
  // The chart's place, in this page's coordinates.
  void SetChartRect(const QRect &rect);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  int kindShown = 1;
  QRect chartRect;
  HeadedCard *card;
  Kundali *chart;
  QLabel *lblStyle;
};
