// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PagePdf.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "platform/ReportError.h"
#include "platform/gui/AskSaveFile.h"
#include "platform/gui/PdfFile.h"

namespace {

constexpr double MarginMillimetres = 12;

}  // namespace

void PagePdf::PaintSheet(QPagedPaintDevice &device, const Paint &paint) {
  const auto check = [](bool taken) {
    if (!taken)
      throw ReportError(QCoreApplication::translate(
          "PagePdf",
          "The page cannot be printed. Please check that the printer is connected and switched on and has paper, or save the "
          "page as a PDF."));
  };
  QPainter painter;
  check(painter.begin(&device));
  const double margin = MarginMillimetres / 25.4 * device.logicalDpiX();
  const QRectF sheet(0, 0, device.width(), device.height());
  paint(painter, sheet.adjusted(margin, margin, -margin, -margin));
  check(painter.end());
}

void PagePdf::Write(const QString &path, const QString &title, QPageLayout::Orientation orientation, const Paint &paint) {
  PdfFile::CheckWritable(path);
  PdfFile file(PdfFile::UsualPaper());
  file.Device().setPageOrientation(orientation);
  PaintSheet(file.Device(), paint);
  file.Store(path, {title, QStringLiteral("Brivanta Works"), title, QStringLiteral("Panchang;Jyotish;Vedic Astrology")});
}

void PagePdf::Print(QWidget *parent, const QString &title, QPageLayout::Orientation orientation, const Paint &paint) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setPageOrientation(orientation);
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  printer.setFullPage(true);
  PaintSheet(printer, paint);
}

QString PagePdf::AskFile(QWidget *parent, const QString &caption, const QString &suggested, const QString &filter) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return AskSaveFile(parent, caption, folder + QLatin1Char('/') + suggested, filter);
}
