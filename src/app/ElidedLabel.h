// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QLabel>
#include <optional>

// A text of one or two lines that ends in an ellipsis where its room is short, and then tells the whole in its tool tip.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  void SetMaxLines(int lines) { maxLines = lines; }
  // The smaller font that is taken where the lines do not hold the text in the label's own.
  void SetShortFont(const QFont &font);

  // Whether the whole text shows at this width, in pixels.
  bool Holds(int width) const { return LineCount(FontFor(width), width) <= maxLines; }

  QSize minimumSizeHint() const override { return {40, QLabel::minimumSizeHint().height()}; }
  bool hasHeightForWidth() const override { return maxLines > 1; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  int LineCount(const QFont &font, int width) const;
  QFont FontFor(int width) const;

  int maxLines = 1;
  std::optional<QFont> shortFont;
};
