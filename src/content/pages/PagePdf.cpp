// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PagePdf.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "platform/gui/PdfFile.h"

namespace {

constexpr double MarginMillimetres = 12;

void PaintSheet(QPagedPaintDevice &device, const PagePdf::Paint &paint) {
  QPainter painter(&device);
  const double margin = MarginMillimetres / 25.4 * device.logicalDpiX();
  const QRectF sheet(0, 0, device.width(), device.height());
  paint(painter, sheet.adjusted(margin, margin, -margin, -margin));
}

}  // namespace

void PagePdf::Write(const QString &path, const QString &title, QPageLayout::Orientation orientation, const Paint &paint) {
  PdfFile::CheckWritable(path);
  PdfFile file(PdfFile::UsualPaper());
  file.Device().setPageOrientation(orientation);
  PaintSheet(file.Device(), paint);
  file.Store(path, {title, QStringLiteral("Brivanta Works"), title, QStringLiteral("Panchang;Jyotish;Vedic Astrology")});
}

bool PagePdf::Print(QWidget *parent, const QString &title, QPageLayout::Orientation orientation, const Paint &paint) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setPageOrientation(orientation);
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return false;
  printer.setFullPage(true);
  PaintSheet(printer, paint);
  return true;
}

QString PagePdf::AskFile(QWidget *parent, const QString &caption, const QString &suggested, const QString &filter) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString path = QFileDialog::getSaveFileName(parent, caption, folder + QLatin1Char('/') + suggested, filter);
  if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty()) return path;
  return path + QLatin1Char('.') + QFileInfo(suggested).suffix();
}
