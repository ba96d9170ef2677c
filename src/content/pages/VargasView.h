// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/VargasPage.h"
#include "content/pages/PageView.h"

class BirthOrDay;
class CaptionTable;
class CellGrid;
class Kundali;
class QComboBox;
class QLabel;
class UserSettings;

// The divisional charts: one as a chart and a list, and all of them as a table.
class VargasView : public PageView {
  Q_OBJECT

 public:
  explicit VargasView(QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  void ShowChosen();

  std::array<VargasPage, 2> pages;  // of the birth, of the day
  const UserSettings *settings = nullptr;
  BirthOrDay *which;
  QComboBox *cmbVarga;
  QLabel *chartHead;
  Kundali *chart;
  CaptionTable *list;
  CellGrid *table;
  QLabel *lblVargottama;
};
