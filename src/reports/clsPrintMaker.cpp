// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/clsPrintMaker.h"

#include <QCoreApplication>

#include "platform/Notices.h"
#include "platform/ReportError.h"
#include "reports/ChartOutput.h"

namespace {

constexpr double PageShift = 200;
constexpr int PenWidth = 10;

double X(const FormItem &control) { return control.Left + control.OffsetX(); }
double Y(const FormItem &control) { return control.Top + control.OffsetY() + PageShift; }

}  // namespace

bool clsPrintMaker::PrintForm(const FormPage &form) {
  try {
    for (const FormItem &control : form.items)
      if (control.Visible && control.typeName == QLatin1String("Shape")) PrintShape(control);
    for (const FormItem &control : form.items) {
      if (!control.Visible) continue;
      if (control.typeName == QLatin1String("Label"))
        PrintLabel(control);
      else if (control.typeName == QLatin1String("Line"))
        PrintLine(control);
      else if (control.typeName == QLatin1String("Kundali"))
        PrintKundali(control);
      else if (control.typeName == QLatin1String("Image"))
        PrintPicture(control);
    }
    return true;
  } catch (const Error &) {
    TellFault();
    return false;
  }
}

void clsPrintMaker::TellFault() {
  Notices::Show(
      {Notice::Kind::Critical, QCoreApplication::translate("clsPrintMaker", "Erro Printing!"),
       QCoreApplication::translate("clsPrintMaker",
                                   "Printer Performed an Invalid Operation. Please Check if Printer is Connected or Has Enough Paper.")});
}

void clsPrintMaker::PrintMyText(const QString &text, const QString &fontName, double size, bool bold) {
  if (!fontName.isEmpty()) current.name = fontName;
  current.size = size;
  current.bold = bold;
  printer.SetFont(current);
  printer.Print(text);
}

void clsPrintMaker::PrintLine(const FormItem &control) {
  printer.SetDrawWidth(PenWidth);
  const double x = control.OffsetX(), y = control.OffsetY() + PageShift;
  printer.Line(control.X1 + x, control.Y1 + y, control.X2 + x, control.Y2 + y, control.BorderColor);
}

void clsPrintMaker::PrintShape(const FormItem &control) {
  if (control.Shape == FormItem::Rectangle) PrintRectangle(control);
  if (control.Shape == FormItem::CircleShape) PrintCircle(control);
}

void clsPrintMaker::PrintRectangle(const FormItem &control) {
  printer.SetDrawWidth(PenWidth);
  const double left = X(control), top = Y(control), right = left + control.Width, bottom = top + control.Height;
  printer.Line(left, top, right, top, control.BorderColor);
  printer.Line(right, top, right, bottom, control.BorderColor);
  printer.Line(right, bottom, left, bottom, control.BorderColor);
  printer.Line(left, bottom, left, top, control.BorderColor);
}

void clsPrintMaker::PrintCircle(const FormItem &control) {
  printer.SetDrawWidth(PenWidth);
  printer.Circle(X(control) + control.Width / 2, Y(control) + control.Height / 2, control.Height / 2, control.BorderColor);
}

void clsPrintMaker::PrintPicture(const FormItem &control) {
  if (control.Picture.isNull()) throw ReportError(QCoreApplication::translate("clsPrintMaker", "A picture of the page is missing."));
  printer.Picture(control.Picture, X(control), Y(control), control.Width, control.Height);
}

void clsPrintMaker::PrintKundali(const FormItem &control) {
  ChartOutput::PrintKundli(printer, control.Chart, {control.Width, control.Height}, X(control), Y(control));
}

void clsPrintMaker::PrintLabel(const FormItem &control) {
  if (control.Caption.isEmpty()) return;
  current = control.Font;
  printer.SetFont(current);
  printer.SetForeColor(control.ForeColor);
  const double left = X(control);
  double y = Y(control);
  const auto print = [&](const QString &line) {
    const double rest = control.Width - printer.TextWidth(line);
    const double shift = control.Alignment == FormItem::AlignRight ? rest : control.Alignment == FormItem::AlignCenter ? rest / 2 : 0;
    printer.SetCurrent(left + shift, y);
    printer.Print(line);
    y = printer.CurrentY();
  };
  QString caption = control.Caption;
  caption.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const QString &paragraph : caption.split(QLatin1Char('\n'))) {
    QString line;
    for (const QString &word : paragraph.split(QLatin1Char(' '))) {
      const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
      if (!line.isEmpty() && printer.TextWidth(longer) > control.Width) {
        print(line);
        line = word;
      } else {
        line = longer;
      }
    }
    print(line);
  }
  printer.SetForeColor(0);
}
