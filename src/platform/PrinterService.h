// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QRect>
#include <QSize>
#include <QString>

#include "platform/PrintFont.h"

class QImage;

// A printer as the reports use it. Positions and sizes are twips, 1440 to the inch, from the top left of the page, y down;
// colours are 0xRRGGBB. A page begins with the first thing drawn on it, so that a new page at the very end prints none.
// Every member that draws throws ReportError when the printer fails.
class PrinterService {
 public:
  enum DrawFlags { Left = 0, Centre = 1, Right = 2, WordBreak = 16 };

  // A sheet of 8.5 by 11 inch: device dots are reckoned on it, whatever paper is in use.
  static constexpr double SheetWidth = 12240;
  static constexpr double SheetHeight = 15840;

  PrinterService() = default;
  PrinterService(const PrinterService &) = delete;
  PrinterService &operator=(const PrinterService &) = delete;
  virtual ~PrinterService() = default;

  virtual void SetFont(const PrintFont &font) = 0;
  virtual void SetForeColor(unsigned rgb) = 0;
  virtual void SetDrawWidth(int dots) = 0;  // pen width in 600ths of an inch; never thinner than shows on paper

  virtual double TextWidth(const QString &text) = 0;
  virtual double TextHeight() = 0;  // of one line

  virtual double CurrentX() const = 0;
  virtual double CurrentY() const = 0;
  virtual void SetCurrent(double x, double y) = 0;

  // Writes one line whose top left is the position, and leaves the position at the start of the next line: y grows by the
  // height of the line, x is 0.
  virtual void Print(const QString &text) = 0;

  virtual void Line(double x1, double y1, double x2, double y2, unsigned rgb) = 0;
  virtual void Box(double x1, double y1, double x2, double y2, unsigned rgb) = 0;
  virtual void FilledBox(double x1, double y1, double x2, double y2, unsigned rgb) = 0;
  virtual void Circle(double x, double y, double radius, unsigned rgb) = 0;
  virtual void Picture(const QImage &picture, double x, double y, double width, double height) = 0;

  // The dots across and down the sheet that device coordinates are reckoned on.
  virtual QSize PageDots() const = 0;
  // Text in a rectangle of device dots; flags are DrawFlags. Lines beyond the rectangle are not cut.
  virtual void DrawTextInDots(const QRect &dots, const QString &text, int flags) = 0;

  virtual int Page() const = 0;  // 1 on the first page
  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;
  virtual void Abort() = 0;  // drops what the printer has not printed yet
};
