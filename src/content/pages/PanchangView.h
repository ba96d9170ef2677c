// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "content/pages/PageView.h"

class CaptionTable;
class QLabel;

// The limbs of the panchang at birth and now, side by side.
class PanchangView : public PageView {
  Q_OBJECT

 public:
  explicit PanchangView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  std::array<QLabel *, 2> titles{};         // birth, now
  std::array<CaptionTable *, 2> columns{};  // birth, now
};
