// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/PageView.h"

class CaptionTable;
class QLabel;

// The attributes of the birth Moon, each with a line of help.
class BirthAttributesView : public PageView {
  Q_OBJECT

 public:
  explicit BirthAttributesView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  QLabel *lblMoon;
  CaptionTable *table;
};
