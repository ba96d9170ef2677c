// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/ChartOutput.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "chart/TextFit.h"
#include "platform/PdfBox.h"
#include "platform/PrinterService.h"

namespace {

constexpr double TwipsPerUnit = 5.67;  // of a tenth of a millimetre
constexpr double SmallestText = 6.5;   // points
constexpr double SmallestWide = 9;     // a longer text goes into the narrow face
constexpr double LargestNarrow = 10;
constexpr double SideGap = 80;  // twips between a text and the line of its cell
constexpr double LeftGap = 25;
constexpr double LineRoom = 250;  // of a line of text, twips

unsigned Rgb(const QColor &colour) { return colour.rgb() & 0xFFFFFF; }

PrintFont PrintFontOf(const QFont &font) {
  PrintFont made;
  made.name = font.family();
  made.size = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 0.75;
  made.bold = font.bold();
  made.italic = font.italic();
  made.underline = font.underline();
  made.strikeout = font.strikeOut();
  return made;
}

// What the three walks share: the visible parts of the chart in its own twips.
struct Walk {
  std::function<void(const QLineF &)> line;
  std::function<void(const QRectF &)> rectangle;
  std::function<void(const ChartLayout::Text &, bool isNumber, int cell)> label;

  void Over(const ChartLayout &parts) const {
    // The border begins a little inside the chart, and the lines end at it.
    const QRectF border = parts.squMain;
    const auto inside = [&border](const QPointF &p) {
      return QPointF(std::clamp(p.x(), border.left(), border.right()), std::clamp(p.y(), border.top(), border.bottom()));
    };
    for (const ChartLayout::Line &part : parts.lines)
      if (part.visible) line(QLineF(inside(part.ends.p1()), inside(part.ends.p2())));
    rectangle(border);
    for (int cell = 0; cell < ChartLayout::Cells; ++cell) {
      const auto i = static_cast<size_t>(cell);
      for (const ChartLayout::Text *text : {&parts.lblHouseNo[i], &parts.lblPlanet[i]})
        if (text->visible && !text->caption.isEmpty()) label(*text, text == &parts.lblHouseNo[i], cell);
    }
  }
};

// One line from `corner` on: its font is the largest, up to the given one, with which it ends inside its cell, narrow where that
// alone does not do; a house number keeps its size. A text whose corner lies on a line begins with a blank.
struct OneLine {
  PrintFont font;
  QString text;

  // limit: where something else stands to the right.
  OneLine(PrinterService &printer, const PrintFont &full, const QString &caption, bool keepSize, const QPointF &corner,
          const QPolygonF &cell, double limit)
      : font(full), text(caption) {
    for (const bool narrow : {false, true}) {
      if (narrow) font.name += QStringLiteral(" Narrow");
      const double least = narrow ? SmallestText : std::min(full.size, SmallestWide);
      for (font.size = narrow ? std::min(full.size, LargestNarrow) : full.size; font.size >= least; font.size -= 0.25) {
        printer.SetFont(font);
        const double top = corner.y() + printer.TextHeight() * 0.2, bottom = corner.y() + printer.TextHeight() * 0.8;
        const LevelSpan above = SpanAt(cell, top), below = SpanAt(cell, bottom);
        text = corner.x() < std::max(above.left, below.left) + LeftGap ? QLatin1Char(' ') + caption : caption;
        if (keepSize || corner.x() + printer.TextWidth(text) <= std::min({above.right, below.right, limit}) - SideGap) return;
      }
    }
    font.size = SmallestText;
    printer.SetFont(font);
  }
};

// How many lines a text needs in a width, and how wide its widest word is.
struct Wrapped {
  int lines = 1;
  double widest = 0;
};

Wrapped Wrap(const QString &text, double width, const std::function<double(const QString &)> &measure) {
  Wrapped wrapped;
  QString line;
  for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    wrapped.widest = std::max(wrapped.widest, measure(word));
    const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
    if (!line.isEmpty() && measure(longer) > width) {
      ++wrapped.lines;
      line = word;
    } else {
      line = longer;
    }
  }
  return wrapped;
}

}  // namespace

void ChartOutput::PrintKundli(PrinterService &printer, const ChartLayout &chart, const QSizeF &size, double x, double y, int linePen) {
  const ChartLayout parts = chart.Scaled(size.width(), size.height());
  const QSize page = printer.PageDots();
  const double xScale = PrinterService::SheetWidth / page.width(), yScale = PrinterService::SheetHeight / page.height();
  Walk walk;
  walk.line = [&](const QLineF &line) {
    printer.SetDrawWidth(linePen);
    printer.Line(line.x1() + x, line.y1() + y, line.x2() + x, line.y2() + y, Rgb(parts.lineColor));
  };
  walk.rectangle = [&](const QRectF &box) {
    printer.SetDrawWidth(5);
    printer.Box(box.left() + x, box.top() + y, box.right() + x, box.bottom() + y, Rgb(parts.borderColor));
  };
  walk.label = [&](const ChartLayout::Text &text, bool isNumber, int) {
    PrintFont font = PrintFontOf(isNumber ? parts.houseFont : parts.planetFont);
    const QString caption = text.caption.trimmed();
    const auto fits = [&] {
      printer.SetFont(font);
      const Wrapped wrapped = Wrap(caption, text.box.width(), [&](const QString &part) { return printer.TextWidth(part); });
      return wrapped.lines * printer.TextHeight() <= text.box.height() && wrapped.widest <= text.box.width();
    };
    const PrintFont whole = font;
    for (const bool narrow : {false, true}) {
      if (narrow) font = whole, font.name += QStringLiteral(" Narrow");
      while (!fits() && !isNumber && font.size > SmallestText) font.size -= 0.25;
      if (isNumber || fits()) break;
    }
    printer.SetForeColor(Rgb(isNumber ? parts.numberColor : parts.textColor));
    const QRect dots(QPoint(static_cast<int>((text.box.left() + x) / xScale), static_cast<int>((text.box.top() + y) / yScale)),
                     QPoint(static_cast<int>((text.box.right() + x) / xScale) - 1, static_cast<int>((text.box.bottom() + y) / yScale) - 1));
    int flags = text.centred ? PrinterService::Centre : PrinterService::Left;
    if (printer.TextWidth(caption) / xScale > dots.width()) flags |= PrinterService::WordBreak;
    printer.DrawTextInDots(dots, caption, flags);
  };
  walk.Over(parts);
  printer.SetForeColor(0);
}

void ChartOutput::PrintKundaliNonApi(PrinterService &printer, const ChartLayout &chart, const QSizeF &size, double x, double y,
                                     const QString &face, double points) {
  const ChartLayout parts = chart.Scaled(size.width(), size.height());
  const QTransform scale = QTransform::fromScale(size.width() / ChartLayout::Side, size.height() / ChartLayout::Side);
  Walk walk;
  walk.line = [&](const QLineF &line) {
    printer.SetDrawWidth(5);
    printer.Line(line.x1() + x, line.y1() + y, line.x2() + x, line.y2() + y, Rgb(parts.lineColor));
  };
  walk.rectangle = [&](const QRectF &box) {
    printer.SetDrawWidth(5);
    printer.Box(box.left() + x, box.top() + y, box.right() + x, box.bottom() + y, Rgb(parts.borderColor));
  };
  walk.label = [&](const ChartLayout::Text &text, bool isNumber, int cell) {
    PrintFont font = PrintFontOf(isNumber ? parts.houseFont : parts.planetFont);
    font.name = face;
    font.size = points;
    const QString caption = text.caption.trimmed();
    const ChartLayout::Text &number = parts.lblHouseNo[static_cast<size_t>(cell)];
    const bool beside = !isNumber && number.visible && !number.caption.isEmpty() && number.box.left() > text.box.left() &&
                        number.box.top() < text.box.top() + LineRoom && number.box.bottom() > text.box.top();
    const OneLine line(printer, font, caption, isNumber, text.box.topLeft(), scale.map(chart.CellShape(cell)),
                       beside ? number.box.left() : std::numeric_limits<double>::max());
    printer.SetForeColor(Rgb(isNumber ? parts.numberColor : parts.textColor));
    printer.SetCurrent(text.box.left() + x, text.box.top() + y);
    printer.Print(line.text);
  };
  walk.Over(parts);
  printer.SetForeColor(0);
}

void ChartOutput::DrawPDFKundli(PdfBox &pdf, const ChartLayout &chart, const QSizeF &size, double x, double y) {
  const ChartLayout parts = chart.Scaled(size.width(), size.height());
  const auto atX = [x](double twips) { return qRound(twips / TwipsPerUnit + x); };
  const auto atY = [y](double twips) { return qRound(twips / TwipsPerUnit + y); };
  Walk walk;
  walk.line = [&](const QLineF &line) {
    pdf.SetColour(Rgb(parts.lineColor));
    pdf.SetCurrent(atX(line.x1()), atY(line.y1()));
    pdf.LineTo(atX(line.x2()), atY(line.y2()));
  };
  walk.rectangle = [&](const QRectF &box) {
    pdf.SetColour(Rgb(parts.borderColor));
    pdf.Rectangle(atX(box.left()), atY(box.top()), atX(box.right()), atY(box.bottom()));
  };
  walk.label = [&](const ChartLayout::Text &text, bool isNumber, int) {
    PrintFont font = PrintFontOf(isNumber ? parts.houseFont : parts.planetFont);
    if (font.name == QLatin1String("MS Sans Serif")) font.name = QStringLiteral("Arial");
    const QString caption = text.caption.trimmed();
    const double width = text.box.width() / TwipsPerUnit, height = text.box.height() / TwipsPerUnit;
    const auto measure = [&](const QString &part) { return pdf.TextWidth(part); };
    for (pdf.SetFont(font); !isNumber && font.size > SmallestText; pdf.SetFont(font)) {
      const Wrapped wrapped = Wrap(caption, width, measure);
      if (wrapped.lines * pdf.TextHeight() <= height && wrapped.widest <= width) break;
      font.size -= 0.25;
    }
    pdf.SetColour(Rgb(isNumber ? parts.numberColor : parts.textColor));
    pdf.TextIn(caption, atX(text.box.left()), atY(text.box.top()), qRound(width), qRound(height),
               text.centred ? PdfBox::AlignCentre : PdfBox::AlignLeft);
  };
  walk.Over(parts);
  pdf.SetColour(0);
}
