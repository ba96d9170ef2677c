// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/BirthRecord.h"

#include "engine/Functions.h"
#include "platform/Numbers.h"

QString DecimalGmtDiff(const QString &stored) {
  const double g = TextToNumber(stored, QStringLiteral("time zone (GMTDIFF)"));
  return NumberToText(Functions::Fix(g) + (g - Functions::Fix(g)) / 60 * 100);
}
