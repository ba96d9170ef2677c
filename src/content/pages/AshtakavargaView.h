// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/AshtakavargaPage.h"
#include "content/pages/PageView.h"

class BirthOrDay;
class CellGrid;
class Kundali;
class QComboBox;
class QLabel;
class UserSettings;

// The ashtakavarga: points of nine bodies and their total by sign, the more the warmer, and one row of them as a chart.
class AshtakavargaView : public PageView {
  Q_OBJECT

 public:
  explicit AshtakavargaView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  void ShowChosen();

  std::array<AshtakavargaPage, 2> pages;  // of the birth, of the day
  const UserSettings *settings = nullptr;
  BirthOrDay *which;
  QComboBox *cmbAshtak;
  CellGrid *table;
  QLabel *lblMost, *lblFewest, *chartHead;
  Kundali *chart;
};
