// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QImage>
#include <functional>
#include <vector>

#include "platform/PrinterService.h"
#include "platform/ReportError.h"

// Remembers what is printed where. Every character is half as wide as its font is high, and a line 1.15 times as high.
class RecordingPrinter : public PrinterService {
 public:
  struct Mark {
    enum Kind { Text, Line, Box, Filled, Circle, Picture, InDots } kind;
    int page;
    double x1, y1, x2 = 0, y2 = 0;
    QString text;
    PrintFont font;
    int pen = 0, flags = 0;
    unsigned rgb = 0;
  };

  void SetFont(const PrintFont &value) override { font = value; }
  void SetForeColor(unsigned rgb) override { colour = rgb; }
  void SetDrawWidth(int width) override { pen = width; }
  double TextWidth(const QString &text) override { return static_cast<double>(text.size()) * font.size * 10; }
  double TextHeight() override { return font.size * 23; }
  double CurrentX() const override { return x; }
  double CurrentY() const override { return y; }
  void SetCurrent(double newX, double newY) override { x = newX, y = newY; }
  void Print(const QString &text) override {
    Keep({Mark::Text, page, x, y, x + TextWidth(text), y + TextHeight(), text, font, pen, 0, colour});
    x = 0;
    y += TextHeight();
  }
  void Line(double x1, double y1, double x2, double y2, unsigned rgb) override { Shape(Mark::Line, x1, y1, x2, y2, rgb); }
  void Box(double x1, double y1, double x2, double y2, unsigned rgb) override { Shape(Mark::Box, x1, y1, x2, y2, rgb); }
  void FilledBox(double x1, double y1, double x2, double y2, unsigned rgb) override { Shape(Mark::Filled, x1, y1, x2, y2, rgb); }
  void Circle(double cx, double cy, double radius, unsigned rgb) override { Shape(Mark::Circle, cx, cy, radius, 0, rgb); }
  void Picture(const QImage &, double left, double top, double w, double h) override {
    Shape(Mark::Picture, left, top, left + w, top + h, 0);
  }
  QSize PageDots() const override { return dots; }
  void DrawTextInDots(const QRect &box, const QString &text, int flags) override {
    Keep({Mark::InDots, page, double(box.left()), double(box.top()), double(box.right() + 1), double(box.bottom() + 1), text, font, pen,
          flags, colour});
  }
  int Page() const override { return page; }
  void NewPage() override { ++page; }
  void EndDoc() override { ++ended; }
  void Abort() override {}

  void Clear() {
    marks.clear();
    page = 1;
    ended = 0;
    failAfter = -1;
  }

  std::vector<Mark> Of(Mark::Kind kind, int onPage = 0) const {
    std::vector<Mark> found;
    for (const Mark &mark : marks)
      if (mark.kind == kind && (onPage == 0 || mark.page == onPage)) found.push_back(mark);
    return found;
  }
  const Mark *Find(const QString &text, int onPage = 0) const {
    for (const Mark &mark : marks)
      if (mark.text.trimmed() == text && (onPage == 0 || mark.page == onPage)) return &mark;
    return nullptr;
  }
  bool Has(Mark::Kind kind, int onPage, double x1, double y1, double x2, double y2) const {
    for (const Mark &m : marks)
      if (m.kind == kind && m.page == onPage && qAbs(m.x1 - x1) < 1 && qAbs(m.y1 - y1) < 1 && qAbs(m.x2 - x2) < 1 && qAbs(m.y2 - y2) < 1)
        return true;
    return false;
  }

  std::vector<Mark> marks;
  PrintFont font;
  QSize dots{5100, 6600};
  int page = 1, ended = 0, failAfter = -1;  // marks until the printer vanishes

 private:
  void Shape(Mark::Kind kind, double x1, double y1, double x2, double y2, unsigned rgb) {
    Keep({kind, page, x1, y1, x2, y2, QString(), font, pen, 0, rgb});
  }
  void Keep(Mark mark) {
    if (failAfter >= 0 && static_cast<int>(marks.size()) >= failAfter) throw ReportError(QStringLiteral("gone"));
    marks.push_back(std::move(mark));
  }

  double x = 0, y = 0;
  int pen = 0;
  unsigned colour = 0;
};
