// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/Kundali.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class Recorder {
 public:
  explicit Recorder(Kundali &chart) {
    const auto mouse = [this](const char *name) {
      return [this, name](int button, int shift, float x, float y) {
        events << QString("%1 %2 %3 %4 %5").arg(name).arg(button).arg(shift).arg(std::lround(x)).arg(std::lround(y));
      };
    };
    QObject::connect(&chart, &Kundali::Click, [this] { events << "Click"; });
    QObject::connect(&chart, &Kundali::DblClick, [this] { events << "DblClick"; });
    QObject::connect(&chart, &Kundali::MouseDown, mouse("MouseDown"));
    QObject::connect(&chart, &Kundali::MouseUp, mouse("MouseUp"));
    QObject::connect(&chart, &Kundali::MouseMove, mouse("MouseMove"));
    QObject::connect(&chart, &Kundali::KeyDown, [this](int key, int shift) { events << QString("KeyDown %1 %2").arg(key).arg(shift); });
    QObject::connect(&chart, &Kundali::KeyPress, [this](int key) { events << QString("KeyPress %1").arg(key); });
    QObject::connect(&chart, &Kundali::KeyUp, [this](int key, int shift) { events << QString("KeyUp %1 %2").arg(key).arg(shift); });
  }

  std::string Take() {
    const std::string all = events.join(", ").toStdString();
    events.clear();
    return all;
  }

 private:
  QStringList events;
};

TEST(Kundali, MouseEventsComeInTheChartsOwnUnits) {
  Kundali chart;
  chart.resize(508, 508);  // half a pixel a unit, and the room of the focus ring around it
  Recorder recorder(chart);
  const auto at = [](int x, int y) { return QPoint(4 + x / 2, 4 + y / 2); };
  QTest::mouseClick(&chart, Qt::LeftButton, Qt::ShiftModifier, at(500, 200));  // on a planets box
  EXPECT_EQ(recorder.Take(), "MouseDown 1 1 500 200, MouseUp 1 1 500 200, Click");
  QTest::mouseClick(&chart, Qt::RightButton, Qt::NoModifier, at(300, 300));
  EXPECT_EQ(recorder.Take(), "MouseDown 2 0 300 300, MouseUp 2 0 300 300");
  const auto send = [&chart](QEvent::Type type, const QPointF &position, Qt::MouseButton cause) {
    QMouseEvent event(type, position, position, cause, type == QEvent::MouseButtonRelease ? Qt::NoButton : cause, Qt::NoModifier);
    QApplication::sendEvent(&chart, &event);
  };
  send(QEvent::MouseMove, at(500, 200), Qt::NoButton);
  EXPECT_EQ(recorder.Take(), "");  // a move is told of the bare surface only
  send(QEvent::MouseMove, at(300, 300), Qt::NoButton);
  EXPECT_EQ(recorder.Take(), "MouseMove 0 0 300 300");
  send(QEvent::MouseButtonDblClick, at(500, 200), Qt::LeftButton);
  send(QEvent::MouseButtonRelease, at(500, 200), Qt::LeftButton);
  EXPECT_EQ(recorder.Take(), "MouseUp 1 0 500 200");
  send(QEvent::MouseButtonDblClick, at(300, 300), Qt::LeftButton);
  send(QEvent::MouseButtonRelease, at(300, 300), Qt::LeftButton);
  EXPECT_EQ(recorder.Take(), "DblClick, MouseUp 1 0 300 300");
}

TEST(Kundali, KeysActLikeAClick) {
  Kundali chart;
  Recorder recorder(chart);
  QTest::keyClick(&chart, Qt::Key_Space);
  EXPECT_EQ(recorder.Take(), "KeyDown 32 0, KeyPress 32, Click, KeyUp 32 0");
  QTest::keyClick(&chart, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(recorder.Take().find("Click"), std::string::npos);
}

TEST(Kundali, PropertiesAreToldByNameAndTheSurfaceObeys) {
  Kundali chart;
  QSignalSpy told(&chart, &Kundali::PropertyChanged);
  chart.SetEnabled(false);
  chart.SetChartStyle(1);
  ASSERT_EQ(told.size(), 2);
  EXPECT_EQ(told[0][0].toString(), "Enabled");
  EXPECT_EQ(told[1][0].toString(), "ChartStyle");
  EXPECT_FALSE(chart.isEnabled());
}

TEST(Kundali, ItPaintsAtEverySizeWithoutAFault) {
  Kundali chart;
  chart.PlanetPlace(1, "Asc");
  for (const QSize &size : {QSize(1, 1), QSize(8, 8), QSize(9, 300), QSize(200, 200), QSize(900, 300)}) {
    chart.resize(size);
    QImage image(size, QImage::Format_RGB32);
    chart.render(&image);
  }
}

}  // namespace
