// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ImageButton.h"

#include <QAccessible>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QIcon Coloured(const QColor &colour) {
  QPixmap pixmap(24, 24);
  pixmap.fill(colour);
  return QIcon(pixmap);
}

// A button on screen whose events are written down with the picture that shows while they are told.
class Bench {
 public:
  explicit Bench(bool withHover = true) {
    button.SetNormalPic(Coloured(Qt::red));
    button.SetDownPic(Coloured(Qt::green));
    if (withHover) button.SetHoverPic(Coloured(Qt::blue));
    button.resize(40, 40);
    const auto note = [this](const char *name) { return [this, name] { events << QString("%1:%2").arg(name).arg(button.CurPicture()); }; };
    QObject::connect(&button, &ImageButton::Click, note("Click"));
    QObject::connect(&button, &ImageButton::DblClick, note("DblClick"));
    QObject::connect(&button, &ImageButton::MouseDown, note("MouseDown"));
    QObject::connect(&button, &ImageButton::MouseMove, note("MouseMove"));
    QObject::connect(&button, &ImageButton::MouseUp, note("MouseUp"));
    QObject::connect(&button, &ImageButton::MouseExit, note("MouseExit"));
    QObject::connect(&button, &ImageButton::MouseEnter, note("MouseEnter"));
    QObject::connect(&button, &ImageButton::clicked, [this] { ++activations; });
  }

  void Mouse(QEvent::Type type, const QPointF &at, Qt::MouseButton cause = Qt::NoButton, Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent event(type, at, at, cause, held, Qt::NoModifier);
    QApplication::sendEvent(&button, &event);
  }
  void Move(const QPointF &at, Qt::MouseButtons held = Qt::NoButton) { Mouse(QEvent::MouseMove, at, Qt::NoButton, held); }
  void Press(const QPointF &at, Qt::MouseButton which = Qt::LeftButton) { Mouse(QEvent::MouseButtonPress, at, which, which); }
  void Release(const QPointF &at, Qt::MouseButton which = Qt::LeftButton) { Mouse(QEvent::MouseButtonRelease, at, which); }
  void Leave() {
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&button, &event);
  }

  std::string Take() {
    const std::string all = events.join(' ').toStdString();
    events.clear();
    return all;
  }

  ImageButton button;
  int activations = 0;

 private:
  QStringList events;
};

constexpr QPointF In(20, 20);
constexpr QPointF Out(60, 20);

TEST(ImageButton, EventsKeepTheirOrderAndPictures) {
  Bench bench;
  bench.button.show();
  bench.Move(In);
  EXPECT_EQ(bench.Take(), "MouseMove:0 MouseEnter:2");
  bench.Move(In);
  EXPECT_EQ(bench.Take(), "MouseMove:2");
  bench.Press(In);
  EXPECT_EQ(bench.Take(), "MouseDown:1");
  bench.Move(Out, Qt::LeftButton);
  bench.Move(In, Qt::LeftButton);
  EXPECT_EQ(bench.Take(), "MouseMove:1 MouseMove:1");  // dragging off and back shows no flicker
  bench.Release(In);
  EXPECT_EQ(bench.Take(), "MouseUp:2 Click:2 Click:2");
  EXPECT_EQ(bench.activations, 1);
  bench.Leave();
  EXPECT_EQ(bench.Take(), "MouseMove:2 MouseExit:0");
  bench.Leave();
  EXPECT_EQ(bench.Take(), "");
}

TEST(ImageButton, AReleaseIsAlwaysAClickButNotAlwaysAUse) {
  Bench bench;
  bench.button.show();
  bench.Press(In);
  bench.Release(Out);
  EXPECT_EQ(bench.Take(), "MouseDown:1 MouseUp:2 Click:2");
  EXPECT_EQ(bench.button.CurPicture(), 2);
  bench.Leave();  // the next move shows the pointer outside
  EXPECT_EQ(bench.Take(), "MouseMove:2 MouseExit:0");
  bench.Press(In, Qt::RightButton);
  bench.Release(In, Qt::RightButton);
  EXPECT_EQ(bench.Take(), "MouseDown:1 MouseUp:2 Click:2");
  EXPECT_EQ(bench.activations, 0);
  bench.Mouse(QEvent::MouseButtonDblClick, In, Qt::LeftButton, Qt::LeftButton);
  bench.Release(In);
  EXPECT_EQ(bench.Take(), "DblClick:1 MouseUp:2 Click:2");
  EXPECT_EQ(bench.activations, 1);
}

TEST(ImageButton, AMissingHoverPictureIsShownAsNothingAndEnteredOnce) {
  Bench bench(false);
  bench.button.show();
  bench.Move(In);
  bench.Move(In);
  EXPECT_EQ(bench.Take(), "MouseMove:0 MouseEnter:2 MouseMove:2");
  bench.Leave();
  EXPECT_EQ(bench.button.CurPicture(), 0);

  Bench shared;
  shared.button.SetHoverPic(shared.button.NormalPic());
  shared.button.show();
  shared.Move(In);
  EXPECT_EQ(shared.Take(), "MouseMove:0");  // it already shows its hover picture
  EXPECT_EQ(shared.button.CurPicture(), 0);
  EXPECT_EQ(ImageButton().CurPicture(), 0);
}

TEST(ImageButton, OnlyTheBareSurfaceTurnsTheInsideFlag) {
  Bench bare;  // never laid out: no picture covers the surface
  bare.Move(In);
  EXPECT_TRUE(bare.button.MouseInside());
  bare.Move(Out);
  EXPECT_FALSE(bare.button.MouseInside());
  EXPECT_EQ(bare.Take(), "MouseMove:0 MouseEnter:2 MouseMove:2 MouseExit:0");
  Bench covered;
  covered.button.show();
  covered.Move(In);
  EXPECT_FALSE(covered.button.MouseInside());
}

TEST(ImageButton, KeysAndAssistiveToolsUseItOnce) {
  Bench bench;
  bench.button.setText("Print");
  bench.button.show();
  QTest::keyClick(&bench.button, Qt::Key_Space);
  EXPECT_EQ(bench.Take(), "Click:0");
  QTest::keyClick(&bench.button, Qt::Key_Return);
  EXPECT_EQ(bench.Take(), "Click:0");
  QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&bench.button);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Print");
  ASSERT_NE(accessible->actionInterface(), nullptr);
  accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([&bench] { return bench.activations == 3; }));  // such a press is shown for a moment first
  bench.button.SetEnabled(false);
  bench.Press(In);
  QTest::keyClick(&bench.button, Qt::Key_Space);
  EXPECT_EQ(bench.activations, 3);
}

TEST(ImageButton, HidingOrDisablingEndsTheHover) {
  for (const bool hide : {true, false}) {
    Bench bench;
    bench.button.show();
    bench.Move(In);
    ASSERT_EQ(bench.button.CurPicture(), 2);
    hide ? bench.button.hide() : bench.button.SetEnabled(false);
    EXPECT_EQ(bench.button.CurPicture(), 0);
  }
}

TEST(ImageButton, AHostMayDeleteItWhileItTells) {
  auto *button = new ImageButton;
  button->resize(40, 40);
  QObject::connect(button, &ImageButton::MouseUp, [button] { delete button; });
  QMouseEvent press(QEvent::MouseButtonPress, In, In, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QMouseEvent release(QEvent::MouseButtonRelease, In, In, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(button, &press);
  QApplication::sendEvent(button, &release);
}

TEST(ImageButton, ItsTextShowsWhereThePictureIsMissing) {
  const auto inked = [](const ImageButton &button) {
    QImage image(button.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    const_cast<ImageButton &>(button).render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y).lightness() < 100 ? 1 : 0;
    return count;
  };
  ImageButton button;
  button.setText("Settings");
  button.resize(button.sizeHint());
  EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance("Settings"));
  EXPECT_GT(inked(button), 20);
  button.SetNormalPic(Coloured(Qt::white));
  EXPECT_EQ(inked(button), 0);
}

TEST(ImageButton, TheSavedStateKeepsItsOrderAndReadsBack) {
  ImageButton button;
  button.SetStretch(true);
  button.SetToolTip("Print the day");
  button.SetMousePointer(99);
  QStringList names;
  for (const auto &[name, value] : button.WriteState()) names << name;
  EXPECT_EQ(names, QStringList({"NormalPic", "DownPic", "HoverPic", "Stretch", "ToolTip", "ScaleMode", "ScaleWidth", "ScaleHeight",
                                "MousePointer", "MouseIcon"}));
  ImageButton other;
  other.ReadState(button.WriteState());
  EXPECT_TRUE(other.Stretch());
  EXPECT_EQ(other.toolTip(), "Print the day");
  EXPECT_EQ(other.cursor().shape(), Qt::PointingHandCursor);
  other.ReadState({});
  EXPECT_EQ(other.ScaleWidth(), 272);
  EXPECT_EQ(other.ScaleHeight(), 191);
  EXPECT_EQ(other.ScaleMode(), 3);
}

}  // namespace
