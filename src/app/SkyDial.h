// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

#include "analysis/NowCardPage.h"
#include "chart/SpokenParts.h"

// A small dial of the zodiac with the planets where they stand; names that would overlap are spread apart.
class SkyDial : public QWidget, public SpokenParts {
  Q_OBJECT

 public:
  explicit SkyDial(QWidget *parent = nullptr);

  void Show(const NowCardPage &page);
  // The ascendant and the planets.
  int PartCount() const override { return filled ? static_cast<int>(shown.names.size()) : 0; }
  QString PartWords(int body) const override;
  QRect PartRoom(int) const override { return rect(); }

  QSize sizeHint() const override { return {164, 164}; }
  QSize minimumSizeHint() const override { return {132, 112}; }

  // The angles at which names are written, in the order of the longitudes: as near to their planets as a distance of
  // at least 'apart' degrees allows.
  static std::vector<double> SpreadApart(const std::vector<double> &longitudes, double apart);

  // How far inward a dot stands, 0 to 2 steps, so that none within 'apart' degrees of another covers it.
  static std::vector<int> StepsInward(const std::vector<double> &longitudes, double apart);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  NowCardPage shown;
  bool filled = false;
};
