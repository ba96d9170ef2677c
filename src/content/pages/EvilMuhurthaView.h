// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "content/SetFonts.h"
#include "content/pages/PageView.h"

class CaptionTable;
class SpanStrip;
class QLabel;

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
  bool IsRoomy() const;

  SetFonts fontsShown;
  bool roomyShown = false;
  CaptionTable *table;
  QLabel *description;
  QLabel *stripTitle;
  SpanStrip *strip;
};
