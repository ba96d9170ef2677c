// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/UpagrahasPage.h"
#include "content/pages/PageView.h"

class BirthOrDay;
class CaptionTable;
class QLabel;

// The upagrahas in both ways of casting them, side by side.
class UpagrahasView : public PageView {
  Q_OBJECT

 public:
  explicit UpagrahasView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  void ShowChosen();

  std::array<UpagrahasPage, 2> pages;  // of the birth, of the day
  BirthOrDay *which;
  QLabel *lblJaimini;
  std::array<QLabel *, 2> titles{};
  std::array<CaptionTable *, 2> tables{};
};
