// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/DocumentInfo.h"
#include "platform/PrintFont.h"

class QImage;

// A writer of PDF documents. Positions and sizes are tenths of a millimetre from the top left of the page, y down; colours are
// 0xRRGGBB. The file appears, whole, with EndDoc; until then an older one of its name stays as it is.
class PdfBox {
 public:
  enum Alignment { AlignLeft = 0, AlignRight = 1, AlignCentre = 2 };

  PdfBox() = default;
  PdfBox(const PdfBox &) = delete;
  PdfBox &operator=(const PdfBox &) = delete;
  virtual ~PdfBox() = default;

  virtual void SetFileName(const QString &path) = 0;
  virtual void SetInfo(const DocumentInfo &info) = 0;
  virtual void SetLandscape(bool landscape) = 0;  // of the pages begun from here on

  // Throws StoreError when no file can be written at the place named.
  virtual void BeginDoc() = 0;
  virtual void EndDoc() = 0;
  virtual void NewPage() = 0;
  virtual void Abort() = 0;  // ends the document without a file

  virtual const PrintFont &Font() const = 0;
  virtual void SetFont(const PrintFont &font) = 0;
  virtual void SetColour(unsigned rgb) = 0;  // of text and lines

  virtual int CurrentX() const = 0;
  virtual int CurrentY() const = 0;
  virtual void SetCurrent(int x, int y) = 0;

  virtual int TextWidth(const QString &text) = 0;
  virtual int TextHeight() = 0;  // of one line

  virtual void LineTo(int x, int y) = 0;  // from the position, which moves there
  virtual void TextAt(const QString &text, int x, int y) = 0;
  // One line at the position; y grows by the line's height.
  virtual void TextLine(const QString &text, Alignment alignment) = 0;
  // Wrapped into the rectangle; lines beyond it are not cut.
  virtual void TextIn(const QString &text, int x, int y, int width, int height, Alignment alignment) = 0;
  virtual void Ellipse(int x, int y, int width, int height) = 0;
  virtual void Rectangle(int left, int top, int right, int bottom) = 0;
  virtual void Picture(const QImage &picture, int x, int y, int width, int height) = 0;
};
