// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/BirthRecord.h"

#include <QCoreApplication>
#include <cmath>

#include "engine/Functions.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace {

QString tr(const char *text) { return QCoreApplication::translate("BirthRecord", text); }

bool Reaches(int whole, int sixtieths, int limit) { return std::abs(sixtieths / 60.0) <= 1 && std::abs(whole + sixtieths / 60.0) <= limit; }

void CheckAngle(const QString &name, int degrees, int minutes, int limit) {
  if (!Reaches(degrees, minutes, limit))
    throw ConversionError(
        tr("There is no %1 %2:%3; give degrees up to %4 and minutes up to 59.").arg(name).arg(degrees).arg(minutes).arg(limit));
}

}  // namespace

QString DecimalGmtDiff(const QString &stored) {
  const double g = TextToNumber(stored, tr("time zone (GMTDIFF)"));
  return NumberToText(Functions::Fix(g) + (g - Functions::Fix(g)) / 60 * 100);
}

void CheckPlace(const PlaceRecord &place) {
  CheckAngle(tr("latitude"), place.LatDeg, place.LatMT, 90);
  CheckAngle(tr("longitude"), place.LongDeg, place.LongMT, 180);
  if (std::abs(TextToNumber(place.GMTDIFF, tr("time zone (GMTDIFF)"))) > 24)
    throw ConversionError(
        tr("There is no time zone (GMTDIFF) \"%1\"; give hours.minutes ahead of Greenwich, as in +05.30.").arg(place.GMTDIFF));
}

void CheckBirth(const BirthRecord &birth) {
  if (birth.Hour < 0 || birth.Minutes < 0 || !Reaches(birth.Hour, birth.Minutes, 24))
    throw ConversionError(tr("There is no time %1:%2; give hours up to 23 and minutes up to 59.").arg(birth.Hour).arg(birth.Minutes));
  CheckPlace(birth.place);
}
