// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/QtPrinterService.h"

#include <QImage>
#include <QPrinter>

namespace {

// The reports keep an inch clear on every side, so that no printer's own border is needed.
QPrinter &WithoutMargins(QPrinter &printer) {
  printer.setFullPage(true);
  printer.setPageMargins(QMarginsF());
  return printer;
}

}  // namespace

QtPrinterService::QtPrinterService(QPrinter &printer)
    : paper(WithoutMargins(printer),
            [&printer] { return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted; }),
      abort([&printer] { printer.abort(); }) {}

QtPrinterService::QtPrinterService(QPagedPaintDevice &device) : paper(device) {}

void QtPrinterService::SetLandscape(bool landscape) { paper.SetDesign(landscape ? PaperPainter::LandscapeA4 : PaperPainter::UprightA4); }

void QtPrinterService::SetCurrent(double x, double y) {
  currentX = x;
  currentY = y;
}

void QtPrinterService::Print(const QString &text) {
  if (!text.isEmpty()) paper.Text({currentX, currentY}, text, foreColor);
  SetCurrent(0, currentY + paper.LineHeight());
}

void QtPrinterService::Line(double x1, double y1, double x2, double y2, unsigned rgb) { paper.Line({x1, y1}, {x2, y2}, pen, rgb); }

void QtPrinterService::Box(double x1, double y1, double x2, double y2, unsigned rgb) {
  paper.Outline(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(), pen, rgb);
}

void QtPrinterService::FilledBox(double x1, double y1, double x2, double y2, unsigned rgb) {
  paper.Fill(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(), rgb);
}

void QtPrinterService::Circle(double x, double y, double radius, unsigned rgb) {
  paper.Ellipse(QRectF(x - radius, y - radius, 2 * radius, 2 * radius), pen, rgb);
}

void QtPrinterService::Picture(const QImage &picture, double x, double y, double width, double height) {
  paper.Picture(picture, QRectF(x, y, width, height));
}

// Dots of a 600 dots printer on the sheet itself: on A4, too, a text then stands with the lines that it belongs to.
QSize QtPrinterService::PageDots() const { return {5100, 6600}; }

void QtPrinterService::DrawTextInDots(const QRect &dots, const QString &text, int flags) {
  const double across = SheetWidth / PageDots().width(), down = SheetHeight / PageDots().height();
  const Qt::Alignment alignment = flags & Centre ? Qt::AlignHCenter : flags & Right ? Qt::AlignRight : Qt::AlignLeft;
  paper.TextIn(QRectF(dots.x() * across, dots.y() * down, dots.width() * across, dots.height() * down), text, alignment,
               (flags & WordBreak) != 0, foreColor);
}

void QtPrinterService::NewPage() {
  paper.NewPage();
  SetCurrent(0, 0);
}

// A file needs a page to be one; a printer is sent nothing where nothing was drawn.
void QtPrinterService::EndDoc() {
  if (!abort && paper.Page() == 1) paper.EnsurePage();
  paper.End();
}

void QtPrinterService::Abort() {
  if (abort) abort();
  paper.End();
}
