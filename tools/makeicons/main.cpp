// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Draws the program's icon in the sizes that menus and panels ask for, as FOLDER/48x48/apps/orvani.png.
// Use: makeicons DRAWING.svg FOLDER SIZE...
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char **argv) {
  if (argc < 4) {
    std::fputs("makeicons: give the drawing, the folder for the icons, and the sizes in pixels\n", stderr);
    return 2;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  QSvgRenderer drawing(arguments[1]);
  if (!drawing.isValid()) {
    std::fprintf(stderr, "makeicons: %s is no drawing\n", qUtf8Printable(arguments[1]));
    return 1;
  }
  for (const QString &text : arguments.mid(3)) {
    const int size = text.toInt();
    const QDir folder(QStringLiteral("%1/%2x%2/apps").arg(arguments[2]).arg(size));
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    const QString file = folder.filePath(QFileInfo(arguments[1]).completeBaseName() + QStringLiteral(".png"));
    if (folder.mkpath(QStringLiteral(".")) && icon.save(file)) continue;
    std::fprintf(stderr, "makeicons: %s cannot be written\n", qUtf8Printable(file));
    return 1;
  }
  return 0;
}
