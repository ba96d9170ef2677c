// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "content/SetFonts.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/PageView.h"

class SpanStrip;
class QLabel;
class QVBoxLayout;

// The four periods to keep clear of, as a table and on a strip of the day.
class EvilMuhurthaView : public PageView {
  Q_OBJECT

 public:
  explicit EvilMuhurthaView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  CaptionTable::TextSize TextSize() const;

  SetFonts fontsShown;
  CaptionTable::TextSize sizeShown = CaptionTable::TextSize::Small;
  CaptionTable *table;
  QLabel *description;
  QLabel *exactHead;
  QLabel *stripTitle;
  SpanStrip *strip;
  QVBoxLayout *column;
  QWidget *stripCard;
};
