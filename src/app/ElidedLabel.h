// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QLabel>

// A text of one or two lines that ends in an ellipsis where its room is short, and then tells the whole in its tool tip.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  void SetMaxLines(int lines) { maxLines = lines; }

  QSize minimumSizeHint() const override { return {40, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  int maxLines = 1;
};
