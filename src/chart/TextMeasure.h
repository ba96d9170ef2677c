// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// How wide and how high text stands; behind an interface so that the fitting of a chart's texts needs no font to be tested.
class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure &) = delete;
  TextMeasure &operator=(const TextMeasure &) = delete;
  virtual ~TextMeasure() = default;

  // The advance of a text at a font size, both in pixels; an accented text may be heavier than a plain one.
  virtual double Width(const QString &text, int pixelSize, bool accent) const = 0;

  // The distance of two lines at a font size, in pixels.
  virtual double LineHeight(int pixelSize) const = 0;
};
