// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/TextFit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// Every letter is as wide as half the size, a line as high as the size: places can be told by head.
class GridMeasure : public TextMeasure {
 public:
  double Width(const QString &text, int pixelSize, bool accent) const override {
    return static_cast<double>(text.size()) * pixelSize * (accent ? 0.6 : 0.5);
  }
  double LineHeight(int pixelSize) const override { return pixelSize; }
};

FittedText::Task TaskOf(const char *caption, const QRectF &box) {
  FittedText::Task task;
  task.caption = caption;
  task.box = box;
  task.shape = QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
  task.preferredSize = 10;
  task.gap = 0;
  task.middle = false;
  return task;
}

std::string LinesOf(const FittedText &text) {
  QString lines;
  for (size_t i = 0; i < text.words.size(); ++i) {
    if (i > 0) lines += text.words[i].box.top() == text.words[i - 1].box.top() ? " " : "/";
    lines += text.words[i].text;
  }
  return lines.toStdString();
}

TEST(TextFit, CaptionsWrapAtBlanksAndShrinkNoFurtherThanTheyMust) {
  const std::tuple<const char *, QSizeF, const char *, int> cases[] = {
      {"", {50, 50}, "", 0},
      {"Su ", {50, 50}, "Su", 10},
      {"Su Mo  Ma ", {25, 50}, "Su Mo/Ma", 10},                  // 25 is just two words
      {"Su Mo Ma ", {24, 50}, "Su/Mo/Ma", 10},                   // and 24 is not
      {"Su Mo Ma Me ", {24, 38}, "Su Mo/Ma Me", 9},              // four lines of 10 do not fit, two of 9 do
      {"Mercury ", {30, 50}, "Mercury", 8},                      // the longest word rules, below the smallest size if need be
      {"Su Mo Ma Me Ju Ve ", {24, 18}, "Su Mo Ma/Me Ju Ve", 6},  // never cut, never dropped
  };
  for (const auto &[caption, room, lines, size] : cases) {
    const FittedText fitted = FittedText::Fit(TaskOf(caption, QRectF(QPointF(100, 100), room)), GridMeasure());
    EXPECT_EQ(LinesOf(fitted), lines) << caption;
    EXPECT_EQ(fitted.pixelSize, size) << caption;
  }
}

TEST(TextFit, LinesAreCentredAndBeginAtTheTopOrStandInTheMiddle) {
  FittedText::Task task = TaskOf("Su Moon ", QRectF(0, 0, 24, 60));
  task.accentText = "Su";
  FittedText fitted = FittedText::Fit(task, GridMeasure());
  EXPECT_EQ(fitted.words[0].box, QRectF(6, 0, 12, 10));  // accented letters are wider
  EXPECT_EQ(fitted.words[1].box, QRectF(2, 10, 20, 10));
  task.middle = true;
  fitted = FittedText::Fit(task, GridMeasure());
  EXPECT_EQ(fitted.words[0].box.top(), 20);
}

TEST(TextFit, ACrowdedTextTakesTheRestOfItsCellButNotTheNumbersPlace) {
  FittedText::Task task = TaskOf("aa bb cc dd ee ff ", QRectF(30, 5, 40, 12));
  task.shape = QPolygonF({{0, 0}, {100, 0}, {50, 50}});
  task.taken = QRectF(10, 0, 15, 12);
  const FittedText fitted = FittedText::Fit(task, GridMeasure());
  EXPECT_EQ(fitted.pixelSize, 10);
  ASSERT_EQ(fitted.words.size(), 6U);
  for (const auto &word : fitted.words) {
    for (const QPointF &corner : {word.box.bottomLeft(), word.box.bottomRight()})
      EXPECT_TRUE(corner.x() - corner.y() >= 0 && corner.x() + corner.y() <= 100) << word.text.toStdString();
    EXPECT_FALSE(word.box.intersects(task.taken)) << word.text.toStdString();
  }
}

TEST(TextFit, ARectangleIsPushedClearOfTheSidesOnly) {
  const QPolygonF triangle({{0, 0}, {0, 100}, {50, 50}});
  EXPECT_EQ(PushInside(QRectF(10, 45, 10, 10), triangle, 3), QRectF(10, 45, 10, 10));
  const QRectF pushed = PushInside(QRectF(-4, 10, 10, 10), triangle, 3);
  EXPECT_NEAR(pushed.left(), 3, 0.1);
  EXPECT_GE((pushed.top() - pushed.right()) / std::sqrt(2.0), 2.9);
}

}  // namespace
