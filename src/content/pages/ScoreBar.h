// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "chart/SpokenParts.h"

// A score from 0 to 100 as a bar, in the colour of its tone; the number and the word stand beside it.
class ScoreBar : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  enum class Tone { Bad, Plain, Good };

  explicit ScoreBar(QWidget *parent = nullptr);

  void SetScore(double score, Tone tone);
  double Score() const { return shown; }

  QAccessible::Role SpokenRole() const override { return QAccessible::Graphic; }
  int PartCount() const override { return 0; }
  QString PartWords(int) const override { return {}; }
  QRect PartRoom(int) const override { return {}; }

  QSize sizeHint() const override { return {120, 12}; }
  QSize minimumSizeHint() const override { return {60, 12}; }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  double shown = 0;
  Tone shownTone = Tone::Plain;
};
