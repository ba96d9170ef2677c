// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reach/PaintedText.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

// Notes what is drawn instead of drawing it.
class NotingEngine : public QPaintEngine {
 public:
  explicit NotingEngine(Painted &target) : QPaintEngine(AllFeatures), painted(target) {}
  bool begin(QPaintDevice *) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState &) override {}
  void drawPath(const QPainterPath &) override {}
  void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
  void drawRects(const QRectF *, int) override {}
  void drawRects(const QRect *, int) override {}
  void drawLines(const QLineF *, int) override {}
  void drawEllipse(const QRectF &) override {}
  void drawImage(const QRectF &room, const QImage &image, const QRectF &, Qt::ImageConversionFlags) override {
    painted.pictures.push_back({Mapped(room), image.size()});
  }
  void drawPixmap(const QRectF &room, const QPixmap &pixmap, const QRectF &part) override {
    painted.pictures.push_back({Mapped(room), part.size().toSize().boundedTo(pixmap.size())});
  }
  void drawTextItem(const QPointF &at, const QTextItem &item) override {
    if (item.text().trimmed().isEmpty()) return;
    const QRectF room(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    QColor colour = state->pen().color();
    colour.setAlphaF(colour.alphaF() * static_cast<float>(state->opacity()));
    painted.texts.push_back({item.text(), Mapped(room), colour, item.font()});
  }

 private:
  // The painter draws in the pixels of the device.
  QRectF Mapped(const QRectF &room) const {
    const double scale = paintDevice()->devicePixelRatio();
    const QRectF there = state->transform().mapRect(room);
    return {there.topLeft() / scale, there.size() / scale};
  }
  Painted &painted;
};

class NotingDevice : public QPaintDevice {
 public:
  NotingDevice(const QWidget &shown, Painted &target) : widget(shown), engine(target) {}
  QPaintEngine *paintEngine() const override { return &engine; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth: return widget.width();
      case PdmHeight: return widget.height();
      case PdmDepth: return 32;
      case PdmDevicePixelRatio: return qRound(widget.devicePixelRatioF());
      case PdmDevicePixelRatioScaled: return qRound(widget.devicePixelRatioF() * devicePixelRatioFScale());
      case PdmDpiX:
      case PdmPhysicalDpiX: return widget.logicalDpiX();
      case PdmDpiY:
      case PdmPhysicalDpiY: return widget.logicalDpiY();
      default: return 0;
    }
  }

 private:
  const QWidget &widget;
  mutable NotingEngine engine;
};

}  // namespace

Painted Painted::By(QWidget &widget) {
  Painted painted;
  NotingDevice device(widget, painted);
  widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
  return painted;
}
