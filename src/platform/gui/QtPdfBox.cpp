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
  if (!paper) throw UsageError(QCoreApplication::translate("QtPdfBox", "The PDF is not begun yet."));
  return *paper;
}

void QtPdfBox::BeginDoc() {
  PdfFile::CheckWritable(path);
  file = std::make_unique<PdfFile>();
  paper = std::make_unique<PaperPainter>(file->Device());
  paper->SetFont(font);
  ApplyOrientation();
}

void QtPdfBox::SetLandscape(bool isWide) {
  landscape = isWide;
  if (paper) ApplyOrientation();
}

// A page keeps the way up in which it was begun.
void QtPdfBox::ApplyOrientation() {
  if (Paper().PageBegun()) return;
  file->Device().setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  Paper().SetDesign(landscape ? PaperPainter::LandscapeA4 : PaperPainter::UprightA4);
}

void QtPdfBox::EndDoc() {
  Paper().EnsurePage();
  Paper().End();
  paper.reset();
  const auto finished = std::move(file);
  finished->Store(path, info);
}

void QtPdfBox::Abort() {
  paper.reset();
  file.reset();
}

void QtPdfBox::NewPage() {
  Paper().NewPage();
  ApplyOrientation();
  SetCurrent(0, 0);
}

void QtPdfBox::SetFont(const PrintFont &chosen) {
  font = chosen;
  if (paper) paper->SetFont(font);
}

void QtPdfBox::SetCurrent(int x, int y) {
  currentX = x;
  currentY = y;
}

int QtPdfBox::TextWidth(const QString &text) { return qRound(Paper().Width(text) / Twips); }
int QtPdfBox::TextHeight() { return qRound(Paper().LineHeight() / Twips); }

void QtPdfBox::LineTo(int x, int y) {
  Paper().Line(QPointF(currentX, currentY) * Twips, QPointF(x, y) * Twips, Pen, colour);
  SetCurrent(x, y);
}

void QtPdfBox::TextAt(const QString &text, int x, int y) { Paper().Text(QPointF(x, y) * Twips, text, colour); }

void QtPdfBox::TextLine(const QString &text, Alignment alignment) {
  const int width = TextWidth(text);
  const int left = alignment == AlignCentre ? currentX - width / 2 : alignment == AlignRight ? currentX - width : currentX;
  if (!text.isEmpty()) TextAt(text, left, currentY);
  currentY += TextHeight();
}

void QtPdfBox::TextIn(const QString &text, int x, int y, int width, int height, Alignment alignment) {
  Paper().TextIn(QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips), text, Across(alignment), true, colour);
}

void QtPdfBox::Ellipse(int x, int y, int width, int height) {
  Paper().Ellipse(QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips), Pen, colour);
}

void QtPdfBox::Rectangle(int left, int top, int right, int bottom) {
  Paper().Outline(QRectF(QPointF(left, top) * Twips, QPointF(right, bottom) * Twips).normalized(), Pen, colour);
}

void QtPdfBox::Picture(const QImage &picture, int x, int y, int width, int height) {
  Paper().Picture(picture, QRectF(QPointF(x, y) * Twips, QSizeF(width, height) * Twips));
}
