// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/TrishulPage.h"

#include "engine/clsPlanets.h"

TrishulPage FillTrishulChakra(const clsPlanets &todayChart) {
  TrishulPage page;
  int number = todayChart.Nak28GetNakshatra();
  for (int &label : page.lblTrishulNums) {
    while (number > 28) number -= 28;
    label = number++;
  }
  page.lblTrishulHead = todayChart.GetGenText(QStringLiteral("TrishulChakra"));
  page.lblTrishulText = todayChart.GetGenText(QStringLiteral("TrishulChakraPred"));
  return page;
}
