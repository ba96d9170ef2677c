// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>

#include "content/pages/PageView.h"
#include "platform/AppPaths.h"

class CaptionTable;
class QLabel;
class TrishulPicture;

// The Trishul Chakra: the tridents with the 28 nakshatras, their names in a list beside them.
class TrishulView : public PageView {
  Q_OBJECT

 public:
  explicit TrishulView(const AppPaths &paths, QWidget *parent = nullptr);

  void Fill(SelvaniDailyMod &session) override;
  void ApplyFonts(const SetFonts &fonts) override;

 private:
  TrishulPicture *picture;
  QLabel *head;
  QLabel *text;
  std::array<CaptionTable *, 2> legend{};  // numbers 1 to 14 and 15 to 28
};
