// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/SkyDial.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

#include "content/Theme.h"
#include "engine/clsPlanets.h"

namespace {

// Aries begins at the left, on the eastern horizon of a chart, and the signs run against the clock.
QPointF OnCircle(const QPointF &centre, double radius, double degrees) {
  const double angle = (180 + degrees) * std::numbers::pi / 180;
  return centre + QPointF(std::cos(angle) * radius, -std::sin(angle) * radius);
}

}  // namespace

SkyDial::SkyDial(QWidget *parent) : QWidget(parent) {
  setObjectName("skyDial");
  setAccessibleName(tr("Dial of the sky"));
}

void SkyDial::Show(const NowCardPage &page) {
  shown = page;
  filled = true;
  QStringList words;
  for (int body = 0; body < PartCount(); ++body) words << PartWords(body);
  setAccessibleDescription(words.join(QStringLiteral(", ")));
  setToolTip(words.join(QStringLiteral("\n")));
  update();
}

QString SkyDial::PartWords(int body) const {
  const auto i = static_cast<size_t>(body);
  return QStringLiteral("%1 %2").arg(shown.names[i],
                                     clsPlanets::PlanetRashiNameEngSmall(static_cast<int>(shown.longitudes[i] / 30) % 12 + 1));
}

std::vector<double> SkyDial::SpreadApart(const std::vector<double> &longitudes, double apart) {
  std::vector<size_t> order(longitudes.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return longitudes[a] < longitudes[b]; });
  std::vector<double> placed(longitudes);
  // Neighbours that stand too close push each other away by half of what is missing, round after round.
  for (int round = 0; round < 200; ++round) {
    bool moved = false;
    for (size_t i = 0; i < order.size(); ++i) {
      const bool last = i + 1 == order.size();
      double &a = placed[order[i]], &b = placed[order[last ? 0 : i + 1]];
      const double gap = b - a + (last ? 360 : 0);
      if (gap >= apart - 1e-6 || order.size() < 2) continue;
      a -= (apart - gap) / 2;
      b += (apart - gap) / 2;
      moved = true;
    }
    if (!moved) break;
  }
  return placed;
}

std::vector<int> SkyDial::StepsInward(const std::vector<double> &longitudes, double apart) {
  std::vector<size_t> order(longitudes.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return longitudes[a] < longitudes[b]; });
  std::vector<int> steps(longitudes.size(), 0);
  for (size_t i = 0; i < order.size(); ++i) {
    // The first step that no near neighbour has taken; the circle closes at Aries, so the last may meet the first.
    for (int step = 0; step < 3; ++step) {
      steps[order[i]] = step;
      const bool taken = std::any_of(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(i), [&](size_t other) {
        const double way = std::abs(longitudes[order[i]] - longitudes[other]);
        return steps[other] == step && std::min(way, 360 - way) < apart;
      });
      if (!taken) break;
    }
  }
  return steps;
}

void SkyDial::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(width(), height()) - 2;
  const QPointF centre = QRectF(rect()).center();
  const double outer = side / 2, ring = outer * 0.80, planets = outer * 0.73, inward = outer * 0.085, names = outer * 0.43,
               hub = outer * 0.24;
  painter.setPen(QPen(theme.chart.line, 1));
  painter.setBrush(theme.chart.paper);
  painter.drawEllipse(centre, outer, outer);
  painter.setBrush(theme.chart.card);
  painter.drawEllipse(centre, ring, ring);
  painter.setBrush(theme.selection);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(centre, hub, hub);

  QFont small = font();
  small.setPixelSize(std::max(9, static_cast<int>(outer * 0.105)));
  painter.setFont(small);
  for (int sign = 1; sign <= 12; ++sign) {
    painter.setPen(QPen(theme.chart.line, 1));
    painter.drawLine(OnCircle(centre, ring, (sign - 1) * 30), OnCircle(centre, outer, (sign - 1) * 30));
    painter.setPen(theme.chart.muted);
    const QPointF middle = OnCircle(centre, (ring + outer) / 2, sign * 30 - 15);
    painter.drawText(QRectF(middle.x() - 20, middle.y() - 10, 40, 20), Qt::AlignCenter, clsPlanets::PlanetRashiNameEngSmall(sign));
  }
  if (!filled) return;

  const std::vector<double> longitudes(shown.longitudes.begin(), shown.longitudes.end());
  const std::vector<double> labels = SpreadApart(longitudes, 34);
  const std::vector<int> steps = StepsInward(longitudes, 7);
  small.setBold(true);
  painter.setFont(small);
  for (size_t i = 0; i < longitudes.size(); ++i) {
    const bool accent = i == 0 || i == 7;  // the ascendant and the Moon
    const QColor colour = accent ? theme.chart.saffron : theme.chart.maroon;
    const QPointF dot = OnCircle(centre, planets - steps[i] * inward, longitudes[i]), label = OnCircle(centre, names, labels[i]);
    painter.setPen(QPen(theme.chart.line, 1));
    painter.drawLine(dot, OnCircle(centre, names + outer * 0.09, labels[i]));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(dot, outer * 0.035, outer * 0.035);
    painter.setPen(accent ? theme.chart.accent : theme.chart.ink);
    painter.drawText(QRectF(label.x() - 20, label.y() - 10, 40, 20), Qt::AlignCenter, shown.names[i].left(2));
  }
}
