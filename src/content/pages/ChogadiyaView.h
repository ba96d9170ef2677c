// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/DayNightView.h"

// The sixteen chogadiya periods with their verdicts in words and colour.
class ChogadiyaView : public DayNightView {
  Q_OBJECT

 public:
  explicit ChogadiyaView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
};
