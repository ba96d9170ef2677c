// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <cmath>

#include "engine/clsPlanets.h"

// The words of the study pages.
inline QString StudyWord(const clsPlanets &chart, const QString &head) { return chart.GetHeadValue(1, head, QStringLiteral("Study")); }
inline QString StudyWord(const clsPlanets &chart, const char *head) { return StudyWord(chart, QString::fromLatin1(head)); }
inline QString StudyWord(const clsPlanets &chart, const char *head, int number) {
  return StudyWord(chart, QLatin1String(head) + QString::number(number));
}

// The names of the signs, 1 to 12; entry 0 is empty.
struct SignNames {
  std::array<QString, 13> full, narrow;

  static SignNames Of(const clsPlanets &chart) {
    SignNames names;
    for (int sign = 1; sign <= 12; ++sign) {
      names.full[static_cast<size_t>(sign)] = chart.ConvertRashi(sign);
      names.narrow[static_cast<size_t>(sign)] = StudyWord(chart, "Sign", sign);
    }
    return names;
  }
};

// An arc as degrees, minutes and seconds, rounded to the second: 1°02'03". The sign is dropped.
inline QString ArcText(double degrees) {
  const int seconds = static_cast<int>(std::abs(degrees) * 3600 + 0.5);
  return QStringLiteral("%1°%2'%3\"")
      .arg(seconds / 3600)
      .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
      .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}
