// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reach/Contrast.h"

#include <QHash>
#include <algorithm>
#include <cmath>

namespace {

double Luminance(const QColor &colour) {
  const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

}  // namespace

double Contrast::Between(const QColor &a, const QColor &b) {
  const double first = Luminance(a) + 0.05, second = Luminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QColor Contrast::Ground(const QImage &image, const QRect &room) {
  QHash<QRgb, int> counts;
  const QRect inside = room.intersected(image.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y)
    for (int x = inside.left(); x <= inside.right(); ++x) ++counts[image.pixel(x, y)];
  const auto most = std::max_element(counts.cbegin(), counts.cend());
  return most == counts.cend() ? QColor() : QColor(most.key());
}

double Contrast::Strongest(const QImage &image, const QRect &room, const QColor &ground) {
  QHash<QRgb, double> known;
  double strongest = 1;
  const QRect inside = room.intersected(image.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y)
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (!known.contains(pixel)) known.insert(pixel, Between(QColor(pixel), ground));
      strongest = std::max(strongest, known.value(pixel));
    }
  return strongest;
}

QColor Contrast::Over(const QColor &colour, const QColor &ground) {
  const float share = colour.alphaF();
  return QColor::fromRgbF(colour.redF() * share + ground.redF() * (1 - share), colour.greenF() * share + ground.greenF() * (1 - share),
                          colour.blueF() * share + ground.blueF() * (1 - share));
}
