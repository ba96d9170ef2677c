// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/ImageButton.h"

#include <QCursor>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <map>

#include "chart/ChartPalette.h"
#include "chart/InputCodes.h"

namespace {

constexpr QSize Grid(24, 24);  // that the program's pictures are drawn on
constexpr int Padding = 8;
constexpr int CustomPointer = 99;

bool Same(const QIcon &a, const QIcon &b) { return a.cacheKey() == b.cacheKey(); }

Qt::CursorShape ShapeOf(int pointer) {
  static const std::map<int, Qt::CursorShape> Shapes{
      {2, Qt::CrossCursor},    {3, Qt::IBeamCursor},
      {5, Qt::SizeAllCursor},  {6, Qt::SizeBDiagCursor},
      {7, Qt::SizeVerCursor},  {8, Qt::SizeFDiagCursor},
      {9, Qt::SizeHorCursor},  {10, Qt::UpArrowCursor},
      {11, Qt::WaitCursor},    {12, Qt::ForbiddenCursor},
      {13, Qt::BusyCursor},    {14, Qt::WhatsThisCursor},
      {15, Qt::SizeAllCursor}, {CustomPointer, Qt::PointingHandCursor},
  };
  const auto found = Shapes.find(pointer);
  return found == Shapes.end() ? Qt::ArrowCursor : found->second;
}

}  // namespace

ImageButton::ImageButton(QWidget *parent) : QAbstractButton(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setIconSize(Grid);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (!endsDoubleClick) emit Click();
  });
  // A key or an assistive tool presses without a pointer: the same pictures, but no mouse events.
  connect(this, &QAbstractButton::pressed, this, [this] { Show(down); });
  connect(this, &QAbstractButton::released, this, [this] { Show(captured ? hover : normal); });
}

// --- properties -------------------------------------------------------------------------------------------

void ImageButton::SetNormalPic(const Picture &picture) {
  normal = picture;
  Show(normal);
  updateGeometry();
  emit PropertyChanged(QStringLiteral("NormalPic"));
}

void ImageButton::SetDownPic(const Picture &picture) {
  down = picture;
  emit PropertyChanged(QStringLiteral("DownPic"));
}

void ImageButton::SetHoverPic(const Picture &picture) {
  hover = picture;
  emit PropertyChanged(QStringLiteral("HoverPic"));
}

void ImageButton::SetStretch(bool on) {
  stretch = on;
  update();
  emit PropertyChanged(QStringLiteral("Stretch"));
}

void ImageButton::SetToolTip(const QString &text) {
  setToolTip(text);
  emit PropertyChanged(QStringLiteral("ToolTip"));
}

void ImageButton::SetScaleMode(int mode) {
  scaleMode = mode;
  emit PropertyChanged(QStringLiteral("ScaleMode"));
}

void ImageButton::SetScaleWidth(float width) {
  scaleWidth = width;
  emit PropertyChanged(QStringLiteral("ScaleWidth"));
}

void ImageButton::SetScaleHeight(float height) {
  scaleHeight = height;
  emit PropertyChanged(QStringLiteral("ScaleHeight"));
}

void ImageButton::SetMousePointer(int pointer) {
  mousePointer = pointer;
  ApplyPointer();
  emit PropertyChanged(QStringLiteral("MousePointer"));
}

void ImageButton::SetMouseIcon(const Picture &picture) {
  mouseIcon = picture;
  ApplyPointer();
  emit PropertyChanged(QStringLiteral("MouseIcon"));
}

void ImageButton::ApplyPointer() {
  if (mousePointer == 0)
    unsetCursor();
  else if (mousePointer == CustomPointer && !mouseIcon.isNull())
    setCursor(QCursor(mouseIcon.pixmap(32, 32)));
  else
    setCursor(ShapeOf(mousePointer));
}

void ImageButton::SetTextBeside(bool beside) {
  textBeside = beside;
  updateGeometry();
  update();
}

int ImageButton::CurPicture() const {
  if (Same(shown, normal)) return 0;
  if (Same(shown, down)) return 1;
  return Same(shown, hover) ? 2 : 0;
}

ImageButton::State ImageButton::WriteState() const {
  return {
      {QStringLiteral("NormalPic"), normal},
      {QStringLiteral("DownPic"), down},
      {QStringLiteral("HoverPic"), hover},
      {QStringLiteral("Stretch"), stretch},
      {QStringLiteral("ToolTip"), toolTip()},
      {QStringLiteral("ScaleMode"), scaleMode},
      {QStringLiteral("ScaleWidth"), scaleWidth},
      {QStringLiteral("ScaleHeight"), scaleHeight},
      {QStringLiteral("MousePointer"), mousePointer},
      {QStringLiteral("MouseIcon"), mouseIcon},
  };
}

void ImageButton::ReadState(const State &state) {
  QHash<QString, QVariant> saved;
  for (const auto &[name, value] : state) saved.insert(name, value);
  const auto take = [&saved](const char *name, const QVariant &standard = {}) { return saved.value(QLatin1String(name), standard); };
  SetNormalPic(take("NormalPic").value<QIcon>());
  SetDownPic(take("DownPic").value<QIcon>());
  SetHoverPic(take("HoverPic").value<QIcon>());
  SetStretch(take("Stretch", false).toBool());
  SetToolTip(take("ToolTip", QString()).toString());
  SetScaleMode(take("ScaleMode", 3).toInt());
  SetScaleWidth(take("ScaleWidth", 272.0F).toFloat());
  SetScaleHeight(take("ScaleHeight", 191.0F).toFloat());
  SetMousePointer(take("MousePointer", 0).toInt());
  SetMouseIcon(take("MouseIcon").value<QIcon>());
}

void ImageButton::About() {
  QMessageBox::information(this, tr("About this button"), tr("A button of three pictures, drawn for this program by Brivanta Works."));
}

// --- pictures ---------------------------------------------------------------------------------------------

void ImageButton::Show(const Picture &picture) {
  shown = picture;
  update();
}

QSize ImageButton::sizeHint() const {
  const bool asText = normal.isNull() || textBeside;
  const QSize text = asText && !this->text().isEmpty() ? fontMetrics().size(Qt::TextShowMnemonic, this->text()) : QSize();
  const int picture = normal.isNull() ? 0 : iconSize().width();
  const int between = picture > 0 && text.width() > 0 ? Padding : 0;
  const int width = picture + between + std::max(0, text.width()) + 2 * Padding;
  const int height = std::max(iconSize().height(), text.height()) + 2 * Padding;
  return {std::max(width, height), height};
}

QSize ImageButton::minimumSizeHint() const { return sizeHint(); }

void ImageButton::PaintPicture(QPainter &painter, const QRectF &room) const {
  QRectF target = room;
  if (!stretch) {
    const QSizeF most = QSizeF(iconSize()).boundedTo(room.size());
    target.setSize(QSizeF(shown.actualSize(iconSize())).scaled(most, Qt::KeepAspectRatio));
    target.moveCenter(room.center());
  }
  const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
  const double ratio = devicePixelRatioF();
  QPixmap pixmap = shown.pixmap((target.size()).toSize(), ratio, mode);
  painter.drawPixmap(target, pixmap, QRectF(QPointF(), QSizeF(pixmap.size())));
}

void ImageButton::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  QRectF room = rect();
  const bool withText = !text().isEmpty() && (textBeside || shown.isNull());
  if (withText && shown.isNull()) {
    // Without a picture to tell the state, the ground tells it.
    QColor ground = ChartPalette::For(palette()).saffron;
    ground.setAlphaF(isDown() || pressedInside ? 0.35F : captured ? 0.15F : 0.0F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(room.adjusted(1, 1, -1, -1), 6, 6);
  }
  if (!shown.isNull()) {
    if (withText) room = QRectF(QPointF(Padding, (height() - iconSize().height()) / 2.0), iconSize());
    PaintPicture(painter, room);
  }
  if (withText) {
    const QRectF rest = shown.isNull() ? QRectF(rect()).adjusted(4, 0, -4, 0) : QRectF(rect()).adjusted(room.right() + Padding, 0, -4, 0);
    const Qt::Alignment side = shown.isNull() ? Qt::AlignHCenter : Qt::AlignLeft;
    painter.setPen(palette().color(QPalette::ButtonText));
    if (!isEnabled()) painter.setOpacity(0.5);
    painter.drawText(rest, static_cast<int>(side | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextWordWrap), text());
  }
  if (focusShown) {
    painter.setPen(QPen(ChartPalette::For(palette()).saffron, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
  }
}

void ImageButton::resizeEvent(QResizeEvent *event) {
  QAbstractButton::resizeEvent(event);
  img = rect();
  emit Resize();
}

void ImageButton::showEvent(QShowEvent *event) {
  QAbstractButton::showEvent(event);
  if (!normal.isNull()) Show(normal);
  img = rect();
}

void ImageButton::hideEvent(QHideEvent *event) {
  captured = pressedInside = false;
  Show(normal);
  QAbstractButton::hideEvent(event);
}

void ImageButton::changeEvent(QEvent *event) {
  if (event->type() == QEvent::EnabledChange && !isEnabled()) {
    captured = pressedInside = false;
    Show(normal);
  }
  QAbstractButton::changeEvent(event);
}

void ImageButton::focusInEvent(QFocusEvent *event) {
  focusShown = event->reason() != Qt::MouseFocusReason;
  QAbstractButton::focusInEvent(event);
  update();
}

void ImageButton::focusOutEvent(QFocusEvent *event) {
  focusShown = false;
  QAbstractButton::focusOutEvent(event);
  update();
}

// --- events -----------------------------------------------------------------------------------------------

void ImageButton::keyPressEvent(QKeyEvent *event) {
  // Enter acts at once, as on every other button of the program; Space acts with its release, by the base class.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void ImageButton::Hover(const QPointF &position, Qt::MouseButtons buttons, Qt::KeyboardModifiers keys) {
  const QPointer<ImageButton> self = this;
  emit MouseMove(InputCodes::Button(buttons), InputCodes::Shift(keys), static_cast<float>(position.x()), static_cast<float>(position.y()));
  if (!self || buttons.testFlag(Qt::LeftButton)) return;
  const bool onSurface = !img.contains(position.toPoint());
  if (!captured) {
    captured = true;
    if (Same(shown, hover)) return;
    Show(hover);
    if (onSurface) mouseInside = true;
    emit MouseEnter();
  } else if (!rect().contains(position.toPoint())) {
    captured = false;
    Show(normal);
    if (onSurface) mouseInside = false;
    emit MouseExit();
  }
}

void ImageButton::mouseMoveEvent(QMouseEvent *event) {
  // A drag that began elsewhere may pass over without a capture of its own; only points of this button begin a hover.
  if (!captured && !rect().contains(event->position().toPoint()) && !event->buttons().testFlag(Qt::LeftButton)) return;
  Hover(event->position(), event->buttons(), event->modifiers());
}

// The move that shows the pointer outside: told as a move, as a control that holds the pointer is told of it.
void ImageButton::leaveEvent(QEvent *event) {
  QAbstractButton::leaveEvent(event);
  if (!captured) return;
  QPointF outside = mapFromGlobal(QPointF(QCursor::pos()));
  if (rect().contains(outside.toPoint())) outside = QPointF(-1, -1);  // something else came between button and pointer
  Hover(outside, QGuiApplication::mouseButtons(), QGuiApplication::keyboardModifiers());
}

void ImageButton::mousePressEvent(QMouseEvent *event) {
  pressedInside = event->button() == Qt::LeftButton;
  captured = true;
  Show(down);
  emit MouseDown(InputCodes::Button(event->button()), InputCodes::Shift(event->modifiers()), static_cast<float>(event->position().x()),
                 static_cast<float>(event->position().y()));
}

// A double click is its own event; it looks like a press and ends with an ordinary release.
void ImageButton::mouseDoubleClickEvent(QMouseEvent *event) {
  pressedInside = endsDoubleClick = event->button() == Qt::LeftButton;
  captured = true;
  Show(down);
  emit DblClick();
}

void ImageButton::mouseReleaseEvent(QMouseEvent *event) {
  const bool clickedHere = pressedInside && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton) pressedInside = false;
  const QPointer<ImageButton> self = this;
  Show(hover);
  emit MouseUp(InputCodes::Button(event->button()), InputCodes::Shift(event->modifiers()), static_cast<float>(event->position().x()),
               static_cast<float>(event->position().y()));
  if (self) emit Click();
  if (self && clickedHere) emit clicked(false);
  if (self) endsDoubleClick = false;
}
