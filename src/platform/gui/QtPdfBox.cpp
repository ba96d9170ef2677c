// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/QtPdfBox.h"

#include <QImage>

#include "platform/Errors.h"

namespace {

constexpr double Twips = 1440 / 254.0;  // of a tenth of a millimetre
constexpr double Pen = 12;

Qt::Alignment Across(PdfBox::Alignment alignment) {
  return alignment == PdfBox::AlignCentre ? Qt::AlignHCenter : alignment == PdfBox::AlignRight ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

QtPdfBox::QtPdfBox() = default;
QtPdfBox::~QtPdfBox() { Abort(); }

PaperPainter &QtPdfBox::Paper() {
  if (!paper_) throw UsageError(QCoreApplication::translate("QtPdfBox", "The PDF is not begun yet."));
  return *paper_;
}

void QtPdfBox::BeginDoc() {
  PdfFile::CheckWritable(path_);
  file_ = std::make_unique<PdfFile>();
  paper_ = std::make_unique<PaperPainter>(file_->Device());
  paper_->SetFont(font_);
  ApplyOrientation();
}

void QtPdfBox::SetLandscape(bool landscape) {
  landscape_ = landscape;
  if (paper_) ApplyOrientation();
}

// A page keeps the way up in which it was begun.
void QtPdfBox::ApplyOrientation() {
  if (Paper().PageBegun()) return;
  file_->Device().setPageOrientation(landscape_ ? QPageLayout::Landscape : QPageLayout::Portrait);
  Paper().SetDesign(landscape_ ? PaperPainter::LandscapeA4 : PaperPainter::UprightA4);
}

void QtPdfBox::EndDoc() {
  Paper().EnsurePage();
  Paper().End();
  paper_.reset();
  const auto file = std::move(file_);
  file->Store(path_, info_);
}

void QtPdfBox::Abort() {
  paper_.reset();
  file_.reset();
}

void QtPdfBox::NewPage() {
  Paper().NewPage();
  ApplyOrientation();
  SetCurrent(0, 0);
}

void QtPdfBox::SetFont(const PrintFont &font) {
  font_ = font;
  if (paper_) paper_->SetFont(font);
}

void QtPdfBox::SetCurrent(int x, int y) {
  x_ = x;
  y_ = y;
}

int QtPdfBox::TextWidth(const QString &text) { return qRound(Paper().Width(text) / Twips); }
int QtPdfBox::TextHeight() { return qRound(Paper().LineHeight() / Twips); }

void QtPdfBox::LineTo(int x, int y) {
  Paper().Line(QPointF(x_, y_) * Twips, QPointF(x, y) * Twips, Pen, colour_);
  SetCurrent(x, y);
}

void QtPdfBox::TextAt(const QString &text, int x, int y) { Paper().Text(QPointF(x, y) * Twips, text, colour_); }

void QtPdfBox::TextLine(const QString &text, Alignment alignment) {
  const int width = TextWidth(text);
  const int left = alignment == AlignCentre ? x_ - width / 2 : alignment == AlignRight ? x_ - width : x_;
  if (!text.isEmpty()) TextAt(text, left, y_);
  y_ += TextHeight();
}

void QtPdfBox::TextIn(const QString &text, int x, int y, int width, int height, Alignment alignment) {
  Paper().TextIn(QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips), text, Across(alignment), true, colour_);
}

void QtPdfBox::Ellipse(int x, int y, int width, int height) {
  Paper().Ellipse(QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips), Pen, colour_);
}

void QtPdfBox::Rectangle(int left, int top, int right, int bottom) {
  Paper().Outline(QRectF(QPointF(left, top) * Twips, QPointF(right, bottom) * Twips).normalized(), Pen, colour_);
}

void QtPdfBox::Picture(const QImage &picture, int x, int y, int width, int height) {
  Paper().Picture(picture, QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips));
}
