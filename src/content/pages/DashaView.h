// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "content/pages/PageView.h"

class DashaRow;
class ImageButton;
class PageScroll;
class QLabel;
class QPushButton;
class SpanStrip;

// One level of the Vimshottari dasha: nine periods, each of which opens the level below it.
class DashaView : public PageView {
  Q_OBJECT

 public:
  explicit DashaView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &shown) override;
  void ApplyFonts(const SetFonts &fonts) override;

 public slots:
  void GoDeep(int index);  // 0 to 8
  void GoUp();

 signals:
  void GoToTree();
  void StatusChanged(const QString &line);  // empty when there is nothing to say

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Restore();
  void ShowLevel();
  void ShowStrip();
  void FocusRow(int row);

  SelvaniDailyMod *session = nullptr;
  std::vector<int> steps;  // the periods gone into, from the top
  QLabel *levelHeading;
  QLabel *pathHeading;
  QLabel *status;
  ImageButton *up;
  QPushButton *tree;
  std::array<DashaRow *, 9> rows{};
  SpanStrip *strip;
  PageScroll *scroll;
};
