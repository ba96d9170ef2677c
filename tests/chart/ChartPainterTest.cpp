// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ChartPainter.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>

#include "chart/KundaliModel.h"

namespace {

constexpr std::array<const char *, 7> Crowd{"Asc", "Sun", "Mer", "Venus", "Mars", "Jup", "Moon"};

KundaliModel Crowded(int style, int sign, size_t planets) {
  KundaliModel model;
  model.SetPlanetFont(QFont("Arial", 9));
  model.SetHouseFont(QFont("Arial", 9));
  model.SetAccentText("Asc");
  model.SetChartStyle(style);
  model.SetHouseNumber(3);  // two-digit numbers come into the narrow corners in turn
  for (size_t i = 0; i < planets; ++i) model.PlanetPlace(sign, Crowd[i]);
  return model;
}

bool Holds(const QPolygonF &shape, const QRectF &box) {
  const auto corners = {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
  return std::all_of(corners.begin(), corners.end(),
                     [&shape](const QPointF &corner) { return shape.containsPoint(corner, Qt::OddEvenFill); });
}

// The cell on the target, without the border's half pen: wide enough to judge by.
QPolygonF OnTarget(const QPolygonF &shape, const QRectF &target) {
  QPolygonF mapped;
  for (const QPointF &p : shape)
    mapped << QPointF(target.left() + p.x() * target.width() / 1000, target.top() + p.y() * target.height() / 1000);
  return mapped;
}

TEST(ChartPainter, SevenInOneSignStayReadableAt320Pixels) {
  const ChartPainter painter(ChartPalette::Light());
  for (const QRectF &target : {QRectF(0, 0, 320, 320), QRectF(10, 20, 480, 320), QRectF(0, 0, 1000, 1000)}) {
    for (int style = 0; style <= 2; ++style) {
      for (int sign = 1; sign <= 12; ++sign) {
        for (const size_t planets : {1U, 3U, 7U}) {
          SCOPED_TRACE(testing::Message() << target.width() << " style " << style << " sign " << sign << " planets " << planets);
          const KundaliModel model = Crowded(style, sign, planets);
          const auto texts = painter.Arrange(model.Layout(), target);
          std::vector<QRectF> boxes;
          for (int i = 0; i < 12; ++i) {
            const auto cell = static_cast<size_t>(i);
            const QPolygonF shape = OnTarget(model.Layout().CellShape(i), target);
            const FittedText &fitted = texts.planets[cell];
            if (!fitted.words.empty()) {
              EXPECT_EQ(fitted.words.size(), planets);
              EXPECT_GE(fitted.pixelSize, 9);
            }
            for (const auto &word : fitted.words) {
              EXPECT_TRUE(Holds(shape, word.box)) << word.text.toStdString();
              boxes.push_back(word.box);
            }
            if (!texts.numbers[cell].text.isEmpty()) {
              EXPECT_TRUE(Holds(shape, texts.numbers[cell].box)) << "number " << texts.numbers[cell].text.toStdString();
              boxes.push_back(texts.numbers[cell].box);
            }
          }
          for (size_t a = 0; a < boxes.size(); ++a)
            for (size_t b = a + 1; b < boxes.size(); ++b)
              EXPECT_TRUE(boxes[a].intersected(boxes[b]).height() < 0.5 || boxes[a].intersected(boxes[b]).width() < 0.5);
        }
      }
    }
  }
}

// Counts the pixels of a colour, near enough for smoothed edges, in a part of a picture.
int Count(const QImage &image, const QColor &colour, const QRect &part, int distance) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      const QColor found = image.pixelColor(x, y);
      if (std::abs(found.red() - colour.red()) + std::abs(found.green() - colour.green()) + std::abs(found.blue() - colour.blue()) <
          distance)
        ++count;
    }
  }
  return count;
}

QImage Painted(const KundaliModel &model, const ChartPalette &palette, double ratio) {
  QImage image(QSize(400, 400) * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  ChartPainter(palette).Paint(painter, model.Layout(), QRectF(40, 40, 320, 320));
  return image;
}

constexpr int Exact = 1;
constexpr int Smoothed = 45;

TEST(ChartPainter, RolesGiveTheColoursAndNothingLeavesTheRectangle) {
  for (const ChartPalette &palette : {ChartPalette::Light(), ChartPalette::Dark()}) {
    for (const int ratio : {1, 2}) {
      KundaliModel model = Crowded(ChartLayout::South, 1, 2);
      QImage image = Painted(model, palette, ratio);
      const QRect all = image.rect();
      const QRect inside(40 * ratio, 40 * ratio, 320 * ratio, 320 * ratio);
      EXPECT_EQ(Count(image, Qt::white, all, Exact) - Count(image, Qt::white, inside, Exact),
                all.width() * all.height() - inside.width() * inside.height());
      EXPECT_GT(Count(image, palette.maroon, inside, Exact), 2000 * ratio);  // level lines lie on whole pixels
      for (const QColor &colour : {palette.ink, palette.saffron, palette.gold})
        EXPECT_GT(Count(image, colour, inside, Smoothed), 4) << colour.name().toStdString();
      // A colour of the chart's own goes before the skin's.
      model.SetTextColor(Qt::blue);
      model.SetAccentText({});
      image = Painted(model, palette, ratio);
      EXPECT_GT(Count(image, Qt::blue, inside, Smoothed), 4);
      EXPECT_EQ(Count(image, palette.saffron, inside, Smoothed), 0);
    }
  }
}

}  // namespace
