// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/PageView.h"

class CaptionTable;

// The planet table, of the birth or of today: place, nakshatra, motion and dignity of the ascendant and twelve planets.
class PlanetTableView : public PageView {
  Q_OBJECT

 public:
  enum class Chart { Birth, Today };

  explicit PlanetTableView(Chart which, QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  Chart chart;
  CaptionTable *table;
};
