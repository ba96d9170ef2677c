// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/DayNightView.h"

// The twenty-four horas with the pictures of their lords.
class HoraView : public DayNightView {
  Q_OBJECT

 public:
  explicit HoraView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
};
