// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFrame>

#include "analysis/NowCardPage.h"

class QBoxLayout;
class QLabel;
class SkyDial;

// What the sky does now, in sight on every page: the dial, the Moon, the running limbs and the next change.
class NowCard : public QFrame {
  Q_OBJECT

 public:
  explicit NowCard(QWidget *parent = nullptr);

  void Fill(const NowCardPage &page);
  // The dial stands beside the rows, above them in a narrow column, and gives way where the screen is low.
  enum class Dial { Hidden, Beside, Above };
  void SetDial(Dial place);

 private:
  QBoxLayout *parts;
  SkyDial *dial;
  QLabel *moon, *nakshatra, *tithi, *next, *rahuKaal;
};
