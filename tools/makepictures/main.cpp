// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Turns the drawings of data/pictures into the pictures of the printed report, fine enough for a printer of 300 dots to the inch
// and finer. Use: makepictures SOURCE-FOLDER TARGET-FOLDER
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

struct Picture {
  const char *name;
  QSize size;  // pixels
};

// The teacher is 0.7 inch wide on the front page, the trident 2.7 inches. The trident fills its picture: the numbers of the
// report stand on it by their places in that square.
constexpr Picture Pictures[]{{"punditji", {474, 1000}}, {"trishul", {1350, 1350}}};

bool Make(const Picture &picture, const QDir &from, const QDir &to) {
  QSvgRenderer drawing(from.filePath(QLatin1String(picture.name) + QStringLiteral(".svg")));
  if (!drawing.isValid()) return false;
  QImage image(picture.size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, QRectF(QPointF(), QSizeF(picture.size)));
  painter.end();
  return image.save(to.filePath(QLatin1String(picture.name) + QStringLiteral(".jpg")), "JPG", 95);
}

}  // namespace

int main(int argc, char **argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 3) {
    std::fputs("makepictures: give the folder of the drawings and the folder for the pictures\n", stderr);
    return 2;
  }
  const QDir from(arguments[1]), to(arguments[2]);
  if (!to.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "makepictures: the folder %s cannot be made\n", qUtf8Printable(to.path()));
    return 1;
  }
  for (const Picture &picture : Pictures) {
    if (Make(picture, from, to)) continue;
    std::fprintf(stderr, "makepictures: %s.svg cannot be turned into %s.jpg\n", picture.name, picture.name);
    return 1;
  }
  return 0;
}
