// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/TextFit.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>

namespace {

// A text is set as large as its box holds, and once it is at its smallest readable size it spreads into the whole cell.
// Only where even the cell is too small does it shrink below that size, down to this one, under which nothing is a
// text any more: a planet that is left out would make the chart wrong.
constexpr int LeastSize = 5;

// The room of a line that lies between two heights.
using Room = std::function<LevelSpan(double top, double bottom)>;
using Words = std::vector<FittedText::Word>;

Words WordsOf(const FittedText::Task &task) {
  Words words;
  for (const QString &text : task.caption.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    words.push_back({text, !task.accentText.isEmpty() && text == task.accentText, {}});
  return words;
}

// Sets the words line by line from `top` on; a line too narrow for the next word stays empty. Fails where `bottom` is passed.
std::optional<Words> Flow(const Words &words, int size, const TextMeasure &measure, const Room &room, double top, double bottom) {
  const double height = measure.LineHeight(size);
  const double blank = measure.Width(QStringLiteral(" "), size, false);
  Words set = words;
  size_t next = 0;
  for (double y = top; next < set.size(); y += height) {
    if (y + height > bottom + 0.01) return std::nullopt;
    const LevelSpan span = room(y, y + height);
    const size_t first = next;
    double used = 0;
    while (next < set.size()) {
      const double width = measure.Width(set[next].text, size, set[next].accent);
      const double with = next == first ? width : used + blank + width;
      if (with > span.right - span.left) break;
      set[next].box = QRectF(with - width, y, width, height);
      used = with;
      ++next;
    }
    // Centred on purpose: the cells are triangles and diamonds, whose room lies about their middle, and a text that
    // began at its box's left edge would stand against a slanted line.
    const double start = span.left + (span.right - span.left - used) / 2;
    for (size_t i = first; i < next; ++i) set[i].box.translate(start, 0);
  }
  return set;
}

Room BoxRoom(const QRectF &box) {
  return [box](double, double) { return LevelSpan{box.left(), box.right()}; };
}

Room CellRoom(const FittedText::Task &task) {
  return [&task](double top, double bottom) {
    const LevelSpan above = SpanAt(task.shape, top);
    const LevelSpan below = SpanAt(task.shape, bottom);
    // A slanted side comes nearer than the gap measured along the line.
    const double gap = task.gap * std::sqrt(2.0);
    LevelSpan span{std::max(above.left, below.left) + gap, std::min(above.right, below.right) - gap};
    if (!task.taken.isEmpty() && top < task.taken.bottom() && bottom > task.taken.top()) {
      if (task.taken.center().x() < task.shape.boundingRect().center().x())
        span.left = std::max(span.left, task.taken.right() + task.gap);
      else
        span.right = std::min(span.right, task.taken.left() - task.gap);
    }
    return span;
  };
}

std::optional<Words> FitBox(const Words &words, int size, const FittedText::Task &task, const TextMeasure &measure) {
  auto set = Flow(words, size, measure, BoxRoom(task.box), task.box.top(), task.box.bottom());
  if (set && task.middle && !set->empty()) {
    const double shift = (task.box.bottom() - set->back().box.bottom()) / 2;
    for (auto &word : *set) word.box.translate(0, shift);
  }
  return set;
}

// Of all heights to begin at, the one that keeps the text nearest to the middle of its box.
std::optional<Words> FitCell(const Words &words, int size, const FittedText::Task &task, const TextMeasure &measure) {
  const QRectF bounds = task.shape.boundingRect().adjusted(0, task.gap, 0, -task.gap);
  const Room room = CellRoom(task);
  std::optional<Words> best;
  double bestWay = std::numeric_limits<double>::max();
  for (double top = bounds.top(); top < bounds.bottom(); top += std::max(1.0, measure.LineHeight(size) / 4)) {
    auto set = Flow(words, size, measure, room, top, bounds.bottom());
    if (!set) continue;
    const double way = std::abs((set->front().box.top() + set->back().box.bottom()) / 2 - task.box.center().y());
    if (way < bestWay) {
      bestWay = way;
      best = std::move(set);
    }
  }
  return best;
}

}  // namespace

LevelSpan SpanAt(const QPolygonF &shape, double y) {
  LevelSpan span{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
  const auto include = [&span](double x) {
    span.left = std::min(span.left, x);
    span.right = std::max(span.right, x);
  };
  for (qsizetype i = 0; i < shape.size(); ++i) {
    const QPointF a = shape[i];
    const QPointF b = shape[(i + 1) % shape.size()];
    if (y < std::min(a.y(), b.y()) || y > std::max(a.y(), b.y())) continue;
    if (a.y() == b.y()) {
      include(a.x());
      include(b.x());
    } else {
      include(a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y()));
    }
  }
  return span;
}

FittedText FittedText::Fit(const Task &task, const TextMeasure &measure) {
  const Words words = WordsOf(task);
  if (words.empty()) return {};
  const int smallest = std::max(task.smallestSize, LeastSize);
  const int preferred = std::max(task.preferredSize, smallest);
  for (int size = preferred; size >= smallest; --size)
    if (auto set = FitBox(words, size, task, measure)) return {size, std::move(*set)};
  for (int size = preferred; size >= LeastSize; --size)
    if (auto set = FitCell(words, size, task, measure)) return {size, std::move(*set)};
  const auto limitless = [&task](double, double) { return LevelSpan{task.box.center().x() - 1e6, task.box.center().x() + 1e6}; };
  return {LeastSize, *Flow(words, LeastSize, measure, limitless, task.box.top(), std::numeric_limits<double>::max())};
}

QRectF PushInside(QRectF rectangle, const QPolygonF &shape, double gap) {
  const QPointF middle = [&shape] {
    QPointF sum;
    for (const QPointF &point : shape) sum += point;
    return sum / static_cast<double>(shape.size());
  }();
  for (int round = 0; round < 16; ++round) {
    bool moved = false;
    for (qsizetype i = 0; i < shape.size(); ++i) {
      const QPointF a = shape[i];
      const QLineF edge(a, shape[(i + 1) % shape.size()]);
      QPointF inward = QPointF(-edge.dy(), edge.dx()) / edge.length();
      if (QPointF::dotProduct(inward, middle - a) < 0) inward = -inward;
      double least = std::numeric_limits<double>::max();
      for (const QPointF &corner : {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomLeft(), rectangle.bottomRight()})
        least = std::min(least, QPointF::dotProduct(inward, corner - a));
      if (least >= gap - 0.001) continue;
      rectangle.translate(inward * (gap - least));
      moved = true;
    }
    if (!moved) break;
  }
  return rectangle;
}
