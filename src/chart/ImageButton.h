// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QIcon>

// A button of three pictures: normal, down and hover. It shows its text where the picture of its state is missing.
//
// A mouse click raises `Click` twice, once with the release and once for the click itself; to act once for each use of the
// button, by mouse, key or assistive tool, connect to `clicked`.
class ImageButton : public QAbstractButton {
  Q_OBJECT

 public:
  using Picture = QIcon;  // several sizes or a drawing in one, with a handle that copies share

  explicit ImageButton(QWidget *parent = nullptr);

  // Saved properties by name, in their saved order.
  using State = QList<QPair<QString, QVariant>>;
  State WriteState() const;
  void ReadState(const State &state);  // a property that is missing takes its default

  const Picture &NormalPic() const { return normal; }
  void SetNormalPic(const Picture &picture);  // shown at once
  const Picture &DownPic() const { return down; }
  void SetDownPic(const Picture &picture);
  const Picture &HoverPic() const { return hover; }
  void SetHoverPic(const Picture &picture);
  bool Stretch() const { return stretch; }
  void SetStretch(bool on);  // the picture fills the button, otherwise it has the button's iconSize
  QString ToolTip() const { return toolTip(); }
  void SetToolTip(const QString &text);
  int ScaleMode() const { return scaleMode; }
  void SetScaleMode(int mode);
  float ScaleWidth() const { return scaleWidth; }
  void SetScaleWidth(float width);
  float ScaleHeight() const { return scaleHeight; }
  void SetScaleHeight(float height);
  int MousePointer() const { return mousePointer; }
  void SetMousePointer(int pointer);  // 0 the usual one, 99 that of MouseIcon (a hand where none is set)
  const Picture &MouseIcon() const { return mouseIcon; }
  void SetMouseIcon(const Picture &picture);
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool enabled) { setEnabled(enabled); }

  // Text to the right of the picture at all times, not only where the picture is missing.
  void SetTextBeside(bool beside);

  // Which picture shows: 0 normal, 1 down, 2 hover; states that share a picture read as the earlier one.
  int CurPicture() const;

  // Whether a hover began on the button's bare surface and has not ended. The picture covers the surface as soon as the button
  // is on screen, so that hovering there leaves this as it is.
  bool MouseInside() const { return mouseInside; }

  // Tells in a box whose button this is.
  void About();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // Buttons: 1 left, 2 right, 4 middle; shift: 1 Shift, 2 Ctrl, 4 Alt; positions in the button's pixels.
  void Click();
  void DblClick();
  void MouseDown(int button, int shift, float x, float y);
  void MouseMove(int button, int shift, float x, float y);
  void MouseUp(int button, int shift, float x, float y);
  void MouseExit();
  void Resize();
  void MouseEnter();

  void PropertyChanged(const QString &name);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void changeEvent(QEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void leaveEvent(QEvent *event) override;
  bool hitButton(const QPoint &position) const override { return rect().contains(position); }

 private:
  void Show(const Picture &picture);
  void Hover(const QPointF &position, Qt::MouseButtons buttons, Qt::KeyboardModifiers keys);
  void ApplyPointer();
  void PaintPicture(class QPainter &painter, const QRectF &room) const;

  Picture normal;
  Picture down;
  Picture hover;
  Picture shown;
  Picture mouseIcon;
  QRect img;  // the part of the surface that the picture covers, empty before the button is first laid out
  bool stretch = false;
  bool textBeside = false;
  int scaleMode = 3;
  float scaleWidth = 272;
  float scaleHeight = 191;
  int mousePointer = 0;
  bool captured = false;  // the pointer's moves are this button's until it is seen outside
  bool mouseInside = false;
  bool pressedInside = false;
  bool endsDoubleClick = false;  // the release raises its own Click only: the second press was told as DblClick
  bool focusShown = false;
};
