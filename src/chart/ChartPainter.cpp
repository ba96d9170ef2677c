// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ChartPainter.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "chart/FontMeasure.h"

namespace {

constexpr double FullSize = 320;     // the side, in screen pixels, up to which fonts keep their own size
constexpr double Growth = 0.7;       // beyond it text grows more slowly than the chart: a large chart gains air
constexpr int SmallestText = 9;      // pixels
constexpr double NumberScale = 0.8;  // house numbers against their font's size: they stand back behind the planets
constexpr double NumberWidth = 27;   // units for two digits: more would touch the diagonals of the North drawing

// The way from the 1000 by 1000 square to the rectangle, held clear of the edge by half the border's pen.
struct Frame {
  QRectF area;
  double unit;  // of the smaller side
  double grow;
  double linePen;
  double borderPen;

  // Pens are whole numbers of the device's own dots, or level strokes blur; `dots` of them make one unit of the rectangle.
  Frame(const ChartLayout &layout, const QRectF &target, double dots) {
    const double screenSide = std::min(target.width(), target.height());
    const double pen = std::clamp(screenSide / 420, 1.0, 1.8);
    const auto whole = [dots](double width) { return std::max(1.0, std::round(width * dots)) / dots; };
    linePen = whole(layout.lineWidth * pen * 1.15);
    borderPen = whole(layout.borderWidth * pen * 1.6);
    area = target.adjusted(borderPen / 2, borderPen / 2, -borderPen / 2, -borderPen / 2);
    unit = std::min(area.width(), area.height()) / ChartLayout::Side;
    grow = std::pow(std::max(1.0, screenSide / FullSize), Growth);
  }

  QPointF Map(const QPointF &p) const {
    return {area.left() + p.x() * area.width() / ChartLayout::Side, area.top() + p.y() * area.height() / ChartLayout::Side};
  }
  QRectF Map(const QRectF &r) const { return {Map(r.topLeft()), Map(r.bottomRight())}; }
  QPolygonF Map(const QPolygonF &shape) const {
    QPolygonF mapped;
    for (const QPointF &p : shape) mapped << Map(p);
    return mapped;
  }
};

int SizeOf(const QFont &font, double factor) {
  return std::max(SmallestText, static_cast<int>(std::lround(QFontInfo(font).pixelSize() * factor)));
}

// Upright and level strokes begin and end on the device's own pixels, or they blur.
double Snapped(double value, double scale, double offset, double pen) {
  const double half = pen * scale / 2;
  return (std::round(value * scale + offset - half) + half - offset) / scale;
}

QPen Stroke(const QColor &colour, double width) { return QPen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin); }

QColor Or(const QColor &own, const QColor &skin) { return own.isValid() && own != QColor(Qt::black) ? own : skin; }

// Digits stand on their own ink, not in the line's height, so that a small number can lie close to two lines.
QFont NumberFont(const ChartLayout &layout, int size) {
  QFont font = layout.houseFont;
  font.setPixelSize(size);
  font.setBold(true);
  return font;
}

}  // namespace

ChartPainter::Texts ChartPainter::Arrange(const ChartLayout &layout, const QRectF &target, double dots) const {
  const Frame frame(layout, target, dots);
  const double gap = 3 + frame.linePen / 2;
  Texts texts;

  const double widest = QFontMetricsF(NumberFont(layout, 100)).horizontalAdvance(QStringLiteral("12")) / 100;
  const int fitting = static_cast<int>(NumberWidth * frame.unit / widest);
  texts.numberSize = std::max(SmallestText, std::min(fitting, SizeOf(layout.houseFont, frame.grow * NumberScale)));
  const QFontMetricsF digits(NumberFont(layout, texts.numberSize));
  const double digit = digits.horizontalAdvance(QLatin1Char('0'));
  const double height = digits.tightBoundingRect(QStringLiteral("0")).height();

  const FontMeasure measure(layout.planetFont);
  for (int i = 0; i < ChartLayout::Cells; ++i) {
    const auto index = static_cast<size_t>(i);
    const QPolygonF shape = frame.Map(layout.CellShape(i));
    const ChartLayout::Text &number = layout.lblHouseNo[index];
    if (number.visible && !number.caption.isEmpty()) {
      const QRectF box = frame.Map(number.box);
      const double width = digits.horizontalAdvance(number.caption);
      // The first digit begins at the box's corner; a second one widens the number to both sides.
      QRectF ink(box.left() - (width - digit) / 2, box.top() + height / 3, width, height);
      texts.numbers[index] = {number.caption, PushInside(ink, shape, gap * 0.8)};
    }
    const bool onSurface = layout.textOnSurface && i < ChartLayout::SurfaceTexts;
    FittedText::Task task;
    task.caption = layout.lblPlanet[index].caption;
    task.accentText = layout.accentText;
    task.box = frame.Map(onSurface ? layout.surfaceBoxes[index] : layout.lblPlanet[index].box);
    task.shape = shape;
    task.taken = texts.numbers[index].box;
    task.gap = gap;
    task.preferredSize = SizeOf(layout.planetFont, frame.grow);
    task.smallestSize = SmallestText;
    texts.planets[index] = FittedText::Fit(task, measure);
  }
  return texts;
}

void ChartPainter::Paint(QPainter &painter, const ChartLayout &layout, const QRectF &target) const {
  const QTransform device = painter.deviceTransform();
  const bool upright = device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0;
  const double dots = upright ? device.m11() : 1;
  const Frame frame(layout, target, dots);
  const Texts texts = Arrange(layout, target, dots);
  const auto snapX = [&](double x, double pen) { return upright ? Snapped(x, device.m11(), device.dx(), pen) : x; };
  const auto snapY = [&](double y, double pen) { return upright ? Snapped(y, device.m22(), device.dy(), pen) : y; };
  const QColor back = layout.backColor.isValid() ? layout.backColor : palette.card;

  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  painter.fillRect(target, back);

  const QRectF outline = frame.Map(layout.squMain);
  const QRectF border(QPointF(snapX(outline.left(), frame.borderPen), snapY(outline.top(), frame.borderPen)),
                      QPointF(snapX(outline.right(), frame.borderPen), snapY(outline.bottom(), frame.borderPen)));
  painter.save();
  painter.setClipRect(border);  // the border begins a little inside the square, and no line may stick out of it
  painter.setPen(Stroke(Or(layout.lineColor, palette.maroon), frame.linePen));
  for (const ChartLayout::Line &line : layout.lines) {
    if (!line.visible) continue;
    QPointF from = frame.Map(line.ends.p1());
    QPointF to = frame.Map(line.ends.p2());
    if (from.x() == to.x())
      from.rx() = to.rx() = snapX(from.x(), frame.linePen);
    else if (from.y() == to.y())
      from.ry() = to.ry() = snapY(from.y(), frame.linePen);
    painter.drawLine(from, to);
  }
  painter.restore();
  painter.setPen(Stroke(Or(layout.borderColor, palette.maroon), frame.borderPen));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(border);

  if (!layout.centrePic.isNull()) {
    const QRectF room = frame.Map(layout.imgCenter);
    QRectF picture(QPointF(), QSizeF(layout.centrePic.size()).scaled(room.size(), Qt::KeepAspectRatio));
    picture.moveCenter(room.center());
    painter.drawImage(picture, layout.centrePic);
  }

  painter.setFont(NumberFont(layout, texts.numberSize));
  painter.setPen(Or(layout.numberColor, palette.number));
  for (size_t i = 0; i < texts.numbers.size(); ++i) {
    const auto &number = texts.numbers[i];
    if (number.text.isEmpty()) continue;
    if (layout.lblHouseNo[i].opaque) painter.fillRect(number.box, back);
    painter.drawText(number.box.bottomLeft(), number.text);
  }

  const FontMeasure measure(layout.planetFont);
  for (const FittedText &text : texts.planets) {
    for (const FittedText::Word &word : text.words) {
      const QFont font = measure.FontOf(text.pixelSize, word.accent);
      painter.setFont(font);
      painter.setPen(word.accent ? palette.accent : Or(layout.textColor, palette.ink));
      painter.drawText(QPointF(word.box.left(), word.box.top() + QFontMetricsF(font).ascent()), word.text);
    }
  }
  painter.restore();
}
