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

  explicit PlanetTableView(QWidget *parent = nullptr);

  // Whose planets the next filling shows; those of the birth at first.
  void SetChart(Chart which);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  Chart chart = Chart::Birth;
  CaptionTable *table;
};
