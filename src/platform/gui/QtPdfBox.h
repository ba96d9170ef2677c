// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <memory>

#include "platform/PdfBox.h"
#include "platform/gui/PaperPainter.h"
#include "platform/gui/PdfFile.h"

// Writes PDF pages of A4. Texts can be searched and their fonts are in the file.
class QtPdfBox : public PdfBox {
 public:
  QtPdfBox();
  ~QtPdfBox() override;

  void SetFileName(const QString &fileName) override { path = fileName; }
  void SetInfo(const DocumentInfo &documentInfo) override { info = documentInfo; }
  void SetLandscape(bool isWide) override;
  void BeginDoc() override;
  void EndDoc() override;
  void NewPage() override;
  void Abort() override;
  const PrintFont &Font() const override { return font; }
  void SetFont(const PrintFont &chosen) override;
  void SetColour(unsigned rgb) override { colour = rgb; }
  int CurrentX() const override { return currentX; }
  int CurrentY() const override { return currentY; }
  void SetCurrent(int x, int y) override;
  int TextWidth(const QString &text) override;
  int TextHeight() override;
  void LineTo(int x, int y) override;
  void TextAt(const QString &text, int x, int y) override;
  void TextLine(const QString &text, Alignment alignment) override;
  void TextIn(const QString &text, int x, int y, int width, int height, Alignment alignment) override;
  void Ellipse(int x, int y, int width, int height) override;
  void Rectangle(int left, int top, int right, int bottom) override;
  void Picture(const QImage &picture, int x, int y, int width, int height) override;

 private:
  PaperPainter &Paper();
  void ApplyOrientation();

  QString path;
  DocumentInfo info;
  bool landscape = false;
  std::unique_ptr<PdfFile> file;
  std::unique_ptr<PaperPainter> paper;
  PrintFont font;
  unsigned colour = 0;
  int currentX = 0;
  int currentY = 0;
};
