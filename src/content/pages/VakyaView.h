// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/VakyaPage.h"
#include "content/pages/PageView.h"

class BirthOrDay;
class CaptionTable;
class QLabel;

// The siddhantic positions beside the modern ones, with their difference.
class VakyaView : public PageView {
  Q_OBJECT

 public:
  explicit VakyaView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  void ShowChosen();

  std::array<VakyaPage, 2> pages;  // of the birth, of the day
  BirthOrDay *which;
  CaptionTable *table;
  QLabel *lblFailure, *lblNodeNote, *lblPlaceNote;
};
