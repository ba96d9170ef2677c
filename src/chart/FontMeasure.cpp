// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/FontMeasure.h"

#include <QFontMetricsF>

QFont FontMeasure::FontOf(int pixelSize, bool accent) const {
  QFont made = font;
  made.setPixelSize(pixelSize);
  if (accent) made.setBold(true);
  return made;
}

double FontMeasure::Width(const QString &text, int pixelSize, bool accent) const {
  return QFontMetricsF(FontOf(pixelSize, accent)).horizontalAdvance(text);
}

double FontMeasure::LineHeight(int pixelSize) const {
  const QFontMetricsF metrics(FontOf(pixelSize, false));
  return metrics.ascent() + metrics.descent();
}
