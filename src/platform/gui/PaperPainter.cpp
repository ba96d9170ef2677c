// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/PaperPainter.h"

#include <QImage>
#include <QPagedPaintDevice>
#include <algorithm>

#include "platform/ReportError.h"

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double TwipsPerInch = 1440;
constexpr double ThinnestPen = 10;  // half a point: a hairline of a fine printer would not show

// What the reports draw on: as narrow as A4 and as high as an 11 inch sheet, less what their sizes in whole points lose.
constexpr QSizeF UprightPage(11880, 15800);

QFont MakeFont(const PrintFont &font) {
  QFont made;
  QStringList families{font.name};
  if (font.name == QLatin1String("Arial Narrow")) families << QStringLiteral("Liberation Sans Narrow");
  families << QStringLiteral("Arial") << QStringLiteral("Liberation Sans");
  families.removeDuplicates();
  made.setFamilies(families);
  // A pixel of the painter is a twip, so that widths are the same on every device.
  made.setPixelSize(std::max(1, qRound(font.size * TwipsPerPoint)));
  made.setBold(font.bold);
  made.setItalic(font.italic);
  made.setUnderline(font.underline);
  made.setStrikeOut(font.strikeout);
  made.setHintingPreference(QFont::PreferNoHinting);
  return made;
}

}  // namespace

PaperPainter::PaperPainter(QPagedPaintDevice &paintDevice, std::function<bool()> hasFailed)
    : device(paintDevice), deviceFailed(std::move(hasFailed)), design(UprightPage), shown(MakeFont(font)), metrics(shown) {}

PaperPainter::~PaperPainter() { End(); }

void PaperPainter::ThrowFailed() {
  throw ReportError(
      tr("The printer does not take the page. Please check that it is connected and switched on and has paper, or save the "
         "report as a PDF."));
}

void PaperPainter::SetFont(const PrintFont &chosen) {
  if (chosen == font) return;
  font = chosen;
  shown = MakeFont(font);
  metrics = QFontMetricsF(shown);
}

double PaperPainter::Width(const QString &text) const { return metrics.horizontalAdvance(text); }
double PaperPainter::LineHeight() const { return metrics.height(); }

void PaperPainter::EnsurePage() {
  if (painter.isActive() && !pageDue) return;
  if (!painter.isActive()) {
    if (!painter.begin(&device)) ThrowFailed();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  } else if (!device.newPage()) {
    ThrowFailed();
  }
  pageDue = false;
  if (deviceFailed && deviceFailed()) ThrowFailed();
  const QSizeF paper = device.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
  const double fit = std::min({1.0, (paper.width() + 1) / design.width(), (paper.height() + 1) / design.height()});
  painter.resetTransform();
  painter.scale(device.logicalDpiX() / TwipsPerInch, device.logicalDpiY() / TwipsPerInch);
  if (fit < 1) {
    painter.translate((paper.width() - design.width() * fit) / 2, (paper.height() - design.height() * fit) / 2);
    painter.scale(fit, fit);
  }
}

void PaperPainter::NewPage() {
  EnsurePage();  // a page that was asked for twice is an empty page
  pageDue = true;
  ++page;
}

void PaperPainter::End() {
  if (painter.isActive() && !painter.end()) qWarning("The printer did not end its document.");
}

void PaperPainter::SetPen(double penTwips, unsigned rgb) {
  EnsurePage();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(QRgb(rgb)), std::max(penTwips, ThinnestPen), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void PaperPainter::Text(const QPointF &topLeft, const QString &text, unsigned rgb) {
  SetPen(1, rgb);
  painter.setFont(shown);
  painter.drawText(QPointF(topLeft.x(), topLeft.y() + metrics.ascent()), text);
}

void PaperPainter::TextIn(const QRectF &box, const QString &text, Qt::Alignment across, bool wrap, unsigned rgb) {
  SetPen(1, rgb);
  painter.setFont(shown);
  const int flags = static_cast<int>(across) | Qt::AlignTop | Qt::TextDontClip | (wrap ? Qt::TextWordWrap : Qt::TextSingleLine);
  painter.drawText(box, flags, text);
}

void PaperPainter::Line(const QPointF &from, const QPointF &to, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter.drawLine(from, to);
}

void PaperPainter::Outline(const QRectF &box, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter.drawRect(box);
}

void PaperPainter::Fill(const QRectF &box, unsigned rgb) {
  EnsurePage();
  painter.fillRect(box, QColor(QRgb(rgb)));
}

void PaperPainter::Ellipse(const QRectF &box, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter.drawEllipse(box);
}

void PaperPainter::Picture(const QImage &picture, const QRectF &box) {
  if (picture.isNull()) throw ReportError(tr("A picture of the report cannot be read. Please re-install."));
  EnsurePage();
  painter.drawImage(box, picture);
}
