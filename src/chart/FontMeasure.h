// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>

#include "chart/TextMeasure.h"

// The measures of a real font; accented text is bold.
class FontMeasure : public TextMeasure {
 public:
  explicit FontMeasure(const QFont &textFont) : font(textFont) {}

  double Width(const QString &text, int pixelSize, bool accent) const override;
  double LineHeight(int pixelSize) const override;

  QFont FontOf(int pixelSize, bool accent) const;

 private:
  QFont font;
};
