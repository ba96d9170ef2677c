// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ScoreBar.h"

#include <QPainter>
#include <algorithm>

#include "content/Theme.h"

ScoreBar::ScoreBar(QWidget *parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void ScoreBar::SetScore(double score, Tone tone) {
  shown = std::clamp(score, 0.0, 100.0);
  shownTone = tone;
  update();
}

void ScoreBar::paintEvent(QPaintEvent *) {
  const Theme &theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF track = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = track.height() / 2;
  painter.setPen(QPen(theme.chart.line, 1));
  painter.setBrush(theme.tint);
  painter.drawRoundedRect(track, radius, radius);
  if (shown <= 0) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(shownTone == Tone::Good ? theme.good : shownTone == Tone::Bad ? theme.bad : theme.chart.gold);
  // A bar shorter than its round ends is drawn as a dot.
  painter.drawRoundedRect(QRectF(track.left(), track.top(), std::max(track.height(), track.width() * shown / 100), track.height()), radius,
                          radius);
}
