// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "analysis/KundaliPage.h"

class clsPlanets;

// The overview of the day: both charts, the limbs of the panchang, sunrise to Yamaghanta, and the running dasha.
struct OverviewPage {
  KundaliPage kunBirth, kunTransit;
  QString lblDayVal, lblTithiVal, lblNakVal, lblYogaVal, lblKaranVal, lblRahuKaalVal, lblSunriseVal, lblSunsetVal, lblCurDashaVal,
      lblYamghantaVal;
  QString lblBKundali, lblTransKundali, lblTodPanchang, lblOthFactors, lblDayHead, lblTithiHead, lblNakHead, lblYogaHead, lblKaranHead,
      lblRahuKaalHead, lblSunRiseHead, lblSunSetHead, lblYamGhantaHead, lblCurDashaHead;

  // Where the times are the exact ones, what says so: in full and in short. Empty by the house rule.
  QString lblExactHead, lblExactBrief;
  bool IsExact() const { return !lblExactHead.isEmpty(); }

  // Element names with their captions, in the order of filling.
  std::vector<std::pair<QString, QString>> Captions() const;
};

// currentDasha: the text of the running chain of dasha lords.
OverviewPage FillOverview(const clsPlanets &birthChart, const clsPlanets &todayChart, const QString &currentDasha);
