// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/AspectsPage.h"
#include "content/pages/PageView.h"

class BirthOrDay;
class CaptionTable;
class CellGrid;
class QComboBox;
class QLabel;

// The aspects: a grid of planets by planets, and planet by planet in words with dignity and combustion.
class AspectsView : public PageView {
  Q_OBJECT

 public:
  explicit AspectsView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  void ShowChosen();
  void ShowGrid(const AspectsPage &page);

  std::array<AspectsPage, 2> pages;  // of the birth, of the day
  bool filled = false;
  BirthOrDay *which;
  QComboBox *cmbAspectKind;
  CellGrid *grid;
  QLabel *lblAspectHelp;
  CaptionTable *bySign, *byDegrees;
};
