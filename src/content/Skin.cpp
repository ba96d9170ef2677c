// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/Skin.h"

#include <QCoreApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <memory>

#include "chart/ImageButton.h"
#include "content/Theme.h"
#include "platform/FileTools.h"

namespace {

QString &Folder() {
  static QString folder;
  return folder;
}

// The drawings are made for light paper; on a dark desktop their ink and their grounds change roles with the theme.
QByteArray InTheme(QByteArray drawing) {
  const Theme &theme = Theme::Current();
  if (!theme.dark) return drawing;
  const std::pair<const char *, QColor> colours[] = {
      {"#2B2320", theme.chart.ink},    {"#F4E7D3", theme.selection},   {"#B9540F", theme.chart.saffron},
      {"#7A1F2B", theme.chart.maroon}, {"#E4D9C8", theme.chart.line},  {"#FBF7F0", theme.chart.paper},
      {"#FFFDF9", theme.chart.card},   {"#75685E", theme.chart.muted}, {"#B98A2F", theme.chart.gold}};
  for (const auto &[light, dark] : colours) {
    drawing.replace(light, dark.name().toLatin1());
    drawing.replace(QByteArray(light).toLower(), dark.name().toLatin1());
  }
  return drawing;
}

QByteArray InOneInk(QByteArray drawing, const QColor &ink) {
  for (const char *colour : {"#2B2320", "#B9540F"}) drawing.replace(colour, ink.name().toLatin1());
  return drawing;
}

// Draws the SVG at every size and scale that is asked for.
class DrawingEngine : public QIconEngine {
 public:
  // unusable: the drawing of a button that is disabled; a faint one of `drawing` where there is none.
  explicit DrawingEngine(std::shared_ptr<QSvgRenderer> drawing, std::shared_ptr<QSvgRenderer> unusable = nullptr)
      : renderer(std::move(drawing)), disabled(std::move(unusable)) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
    if (mode == QIcon::Disabled && !disabled) painter->setOpacity(0.4);
    QSvgRenderer &chosen = mode == QIcon::Disabled && disabled ? *disabled : *renderer;
    QSizeF size = chosen.defaultSize();
    size.scale(rect.size(), Qt::KeepAspectRatio);
    QRectF room(QPointF(), size);
    room.moveCenter(QRectF(rect).center());
    chosen.render(painter, room);
  }
  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    const bool usual = mode == QIcon::Normal;
    const auto drawn = usual ? pixmaps.constFind({size.width(), size.height()}) : pixmaps.cend();
    if (drawn != pixmaps.cend()) return *drawn;
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    painter.end();
    if (pixmaps.size() >= MostSizes) pixmaps.clear();
    if (usual) pixmaps.insert({size.width(), size.height()}, picture);
    return picture;
  }
  QIconEngine *clone() const override { return new DrawingEngine(renderer, disabled); }
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {renderer->defaultSize()}; }
  QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override { return size; }

 private:
  static constexpr qsizetype MostSizes = 8;  // a window asks for one or two

  std::shared_ptr<QSvgRenderer> renderer, disabled;
  QHash<std::pair<int, int>, QPixmap> pixmaps;  // by width and height, as last drawn
};

// inOneInk: in the colour of the words on a primary button.
QIcon DrawingAt(const QString &path, bool inOneInk) {
  // Pages ask for their pictures each time they are filled: a drawing is read once for each theme.
  static QHash<QString, QIcon> pictures = [] {
    qAddPostRoutine([] { pictures.clear(); });  // pixmaps end before the application does
    return QHash<QString, QIcon>();
  }();
  const ChartPalette &colours = Theme::Current().chart;
  const QString key =
      QStringLiteral("%1/%2/%3/%4").arg(path, QLatin1String(inOneInk ? "1" : "0"), colours.ink.name(), colours.saffron.name());
  const auto known = pictures.constFind(key);
  if (known != pictures.cend()) return *known;
  const QByteArray drawing = ReadFileIfAny(path);
  if (drawing.isEmpty()) return {};
  const Theme &theme = Theme::Current();
  auto renderer = std::make_shared<QSvgRenderer>(inOneInk ? InOneInk(drawing, theme.OnPrimary()) : InTheme(drawing));
  if (!renderer->isValid()) return {};
  // A primary button that is disabled has a pale ground, and its words the muted ink.
  auto disabled = inOneInk ? std::make_shared<QSvgRenderer>(InOneInk(drawing, theme.chart.muted)) : nullptr;
  return *pictures.insert(key, QIcon(new DrawingEngine(std::move(renderer), std::move(disabled))));
}

}  // namespace

namespace Skin {

void SetFolder(const QString &folder) { Folder() = folder; }

QIcon Picture(const QString &name, State state) {
  const char *suffix = state == State::Hover ? "-hover" : state == State::Down ? "-down" : "";
  return DrawingAt(QStringLiteral("%1/%2%3.svg").arg(Folder(), name, QLatin1String(suffix)), state == State::OnPrimary);
}

QIcon PictureAt(const QString &path) { return DrawingAt(path, false); }

void Dress(ImageButton &button, const QString &name) {
  button.SetNormalPic(Picture(name));
  button.SetHoverPic(Picture(name, State::Hover));
  button.SetDownPic(Picture(name, State::Down));
}

QPixmap Pixmap(const QString &name, const QSize &size, qreal devicePixelRatio) { return Picture(name).pixmap(size, devicePixelRatio); }

}  // namespace Skin
