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

PaperPainter::PaperPainter(QPagedPaintDevice &device, std::function<bool()> deviceFailed)
    : device_(device), deviceFailed_(std::move(deviceFailed)), design_(UprightPage), shown_(MakeFont(font_)), metrics_(shown_) {}

PaperPainter::~PaperPainter() { End(); }

void PaperPainter::ThrowFailed() {
  throw ReportError(
      tr("The printer does not take the page. Please check that it is connected and switched on and has paper, or save the "
         "report as a PDF."));
}

void PaperPainter::SetFont(const PrintFont &font) {
  if (font == font_) return;
  font_ = font;
  shown_ = MakeFont(font);
  metrics_ = QFontMetricsF(shown_);
}

double PaperPainter::Width(const QString &text) const { return metrics_.horizontalAdvance(text); }
double PaperPainter::LineHeight() const { return metrics_.height(); }

void PaperPainter::EnsurePage() {
  if (painter_.isActive() && !pageDue_) return;
  if (!painter_.isActive()) {
    if (!painter_.begin(&device_)) ThrowFailed();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  } else if (!device_.newPage()) {
    ThrowFailed();
  }
  pageDue_ = false;
  if (deviceFailed_ && deviceFailed_()) ThrowFailed();
  const QSizeF paper = device_.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
  const double fit = std::min({1.0, (paper.width() + 1) / design_.width(), (paper.height() + 1) / design_.height()});
  painter_.resetTransform();
  painter_.scale(device_.logicalDpiX() / TwipsPerInch, device_.logicalDpiY() / TwipsPerInch);
  if (fit < 1) {
    painter_.translate((paper.width() - design_.width() * fit) / 2, (paper.height() - design_.height() * fit) / 2);
    painter_.scale(fit, fit);
  }
}

void PaperPainter::NewPage() {
  EnsurePage();  // a page that was asked for twice is an empty page
  pageDue_ = true;
  ++page_;
}

void PaperPainter::End() {
  if (painter_.isActive() && !painter_.end()) qWarning("The printer did not end its document.");
}

void PaperPainter::SetPen(double penTwips, unsigned rgb) {
  EnsurePage();
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(QPen(QColor(QRgb(rgb)), std::max(penTwips, ThinnestPen), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void PaperPainter::Text(const QPointF &topLeft, const QString &text, unsigned rgb) {
  SetPen(1, rgb);
  painter_.setFont(shown_);
  painter_.drawText(QPointF(topLeft.x(), topLeft.y() + metrics_.ascent()), text);
}

void PaperPainter::TextIn(const QRectF &box, const QString &text, Qt::Alignment across, bool wrap, unsigned rgb) {
  SetPen(1, rgb);
  painter_.setFont(shown_);
  const int flags = static_cast<int>(across) | Qt::AlignTop | Qt::TextDontClip | (wrap ? Qt::TextWordWrap : Qt::TextSingleLine);
  painter_.drawText(box, flags, text);
}

void PaperPainter::Line(const QPointF &from, const QPointF &to, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter_.drawLine(from, to);
}

void PaperPainter::Outline(const QRectF &box, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter_.drawRect(box);
}

void PaperPainter::Fill(const QRectF &box, unsigned rgb) {
  EnsurePage();
  painter_.fillRect(box, QColor(QRgb(rgb)));
}

void PaperPainter::Ellipse(const QRectF &box, double penTwips, unsigned rgb) {
  SetPen(penTwips, rgb);
  painter_.drawEllipse(box);
}

void PaperPainter::Picture(const QImage &picture, const QRectF &box) {
  if (picture.isNull()) throw ReportError(tr("A picture of the report cannot be read. Please re-install."));
  EnsurePage();
  painter_.drawImage(box, picture);
}
