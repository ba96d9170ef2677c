// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <functional>

#include "platform/PrinterService.h"
#include "platform/gui/PaperPainter.h"

class QPrinter;

// Prints on a printer, into a preview, or into a PDF.
class QtPrinterService : public PrinterService {
 public:
  // The device must outlive this object, and its margins are set to nothing: the reports bring their own.
  explicit QtPrinterService(QPrinter &printer);
  explicit QtPrinterService(QPagedPaintDevice &device);

  // For pages that are made wider than high.
  void SetLandscape(bool landscape);

  void SetFont(const PrintFont &font) override { paper.SetFont(font); }
  void SetForeColor(unsigned rgb) override { foreColor = rgb; }
  void SetDrawWidth(int dots) override { pen = dots * 2.4; }
  double TextWidth(const QString &text) override { return paper.Width(text); }
  double TextHeight() override { return paper.LineHeight(); }
  double CurrentX() const override { return currentX; }
  double CurrentY() const override { return currentY; }
  void SetCurrent(double x, double y) override;
  void Print(const QString &text) override;
  void Line(double x1, double y1, double x2, double y2, unsigned rgb) override;
  void Box(double x1, double y1, double x2, double y2, unsigned rgb) override;
  void FilledBox(double x1, double y1, double x2, double y2, unsigned rgb) override;
  void Circle(double x, double y, double radius, unsigned rgb) override;
  void Picture(const QImage &picture, double x, double y, double width, double height) override;
  QSize PageDots() const override;
  void DrawTextInDots(const QRect &dots, const QString &text, int flags) override;
  int Page() const override { return paper.Page(); }
  void NewPage() override;
  void EndDoc() override;
  void Abort() override;

 private:
  PaperPainter paper;
  std::function<void()> abort;
  double currentX = 0;
  double currentY = 0;
  double pen = 2.4;
  unsigned foreColor = 0;
};
