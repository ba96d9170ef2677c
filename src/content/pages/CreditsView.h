// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/PageView.h"

class CaptionTable;
class QLabel;

// Who made the program, under which licence, and what it stands on.
class CreditsView : public PageView {
  Q_OBJECT

 public:
  // version: of the program; webAddress: of its makers.
  CreditsView(const QString &version, const QString &webAddress, QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  QLabel *name;
  QLabel *maker;
  QLabel *licence;
  QLabel *answered;
  CaptionTable *table;
};
