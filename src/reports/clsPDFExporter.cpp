// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/clsPDFExporter.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QStringList>

#include "platform/ReportError.h"
#include "reports/ChartOutput.h"

namespace {

constexpr double TwipsPerUnit = 5.67;
int Units(double twips) { return qRound(twips / TwipsPerUnit); }

// Running text: its first line, its left edge, its width and the height from which a page is full.
constexpr int TextTop = 400, TextLeft = 265, TextWidth = 1570, PageFull = 2601;

double X(const FormItem &control) { return control.Left + control.OffsetX(); }
double Y(const FormItem &control) { return control.Top + control.OffsetY(); }

}  // namespace

clsPDFExporter::clsPDFExporter(PdfBox &pdf, DocumentInfo documentInfo, Head pageHead)
    : pdfBoxy(pdf), info(std::move(documentInfo)), head(std::move(pageHead)) {}

void clsPDFExporter::SetFilename(const QString &file) {
  path = file;
  pdfBoxy.SetFileName(file);
}

bool clsPDFExporter::StartExport() {
  try {
    pdfBoxy.SetInfo(info);
    pdfBoxy.BeginDoc();
    pageCounter = 0;
    return true;
  } catch (const Error &error) {
    fault = error.Sentence();
    return false;
  }
}

void clsPDFExporter::FinishFile() { pdfBoxy.EndDoc(); }
void clsPDFExporter::NewTopic() { pdfBoxy.NewPage(); }

void clsPDFExporter::SetFont(PrintFont font) {
  if (font.name == QLatin1String("MS Sans Serif")) font.name = QStringLiteral("Arial");
  pdfBoxy.SetFont(font);
}

void clsPDFExporter::PrintForm(const FormPage &form) {
  pdfBoxy.SetLandscape(form.landscape);
  for (const FormItem &control : form.items) {
    if (!control.Visible) continue;
    if (control.typeName == QLatin1String("Label"))
      PrintLabel(control);
    else if (control.typeName == QLatin1String("Line"))
      PrintLine(control);
    else if (control.typeName == QLatin1String("Shape"))
      PrintShape(control);
    else if (control.typeName == QLatin1String("Kundali"))
      PrintKundali(control);
    else if (control.typeName == QLatin1String("Image"))
      PrintPicture(control);
    else if (control.typeName == QLatin1String("TXTextControl"))
      ExportText(control);
  }
}

void clsPDFExporter::PrintLabel(const FormItem &control) {
  if (control.Caption.isEmpty()) return;
  SetFont(control.Font);
  pdfBoxy.SetColour(control.ForeColor);
  const auto alignment = control.Alignment == FormItem::AlignRight    ? PdfBox::AlignRight
                         : control.Alignment == FormItem::AlignCenter ? PdfBox::AlignCentre
                                                                      : PdfBox::AlignLeft;
  pdfBoxy.TextIn(control.Caption, Units(X(control)), Units(Y(control)), Units(control.Width), Units(control.Height), alignment);
  pdfBoxy.SetColour(0);
}

void clsPDFExporter::PrintLine(const FormItem &control) {
  pdfBoxy.SetColour(control.BorderColor);
  pdfBoxy.SetCurrent(Units(control.X1 + control.OffsetX()), Units(control.Y1 + control.OffsetY()));
  pdfBoxy.LineTo(Units(control.X2 + control.OffsetX()), Units(control.Y2 + control.OffsetY()));
}

void clsPDFExporter::PrintShape(const FormItem &control) {
  const double left = X(control), top = Y(control);
  pdfBoxy.SetColour(control.BorderColor);
  if (control.Shape == FormItem::Rectangle)
    pdfBoxy.Rectangle(Units(left), Units(top), Units(left + control.Width), Units(top + control.Height));
  if (control.Shape == FormItem::CircleShape) {
    // A circle's diameter is the height, whatever the width.
    const double middle = left + control.Width / 2;
    pdfBoxy.Ellipse(Units(middle - control.Height / 2), Units(top), Units(control.Height), Units(control.Height));
  }
}

void clsPDFExporter::PrintKundali(const FormItem &control) {
  ChartOutput::DrawPDFKundli(pdfBoxy, control.Chart, {control.Width, control.Height}, Units(X(control)), Units(Y(control)));
}

void clsPDFExporter::PrintPicture(const FormItem &control) {
  if (control.Picture.isNull()) throw ReportError(QCoreApplication::translate("clsPrintMaker", "A picture of the page is missing."));
  pdfBoxy.Picture(control.Picture, Units(X(control)), Units(Y(control)), Units(control.Width), Units(control.Height));
}

void clsPDFExporter::PageHead() {
  pdfBoxy.SetColour(0);
  for (const auto &[from, to] : {std::pair{480, 5040}, std::pair{6360, 10920}}) {
    pdfBoxy.SetCurrent(Units(from), Units(1600));
    pdfBoxy.LineTo(Units(to), Units(1600));
  }
  const PrintFont saved = pdfBoxy.Font();
  PrintFont font;
  font.size = 11;
  pdfBoxy.SetFont(font);
  pdfBoxy.TextAt(head.personName, Units(480), Units(1280));
  // The program's mark between the two rules.
  pdfBoxy.Ellipse(Units(5100), Units(1000), Units(1200), Units(1200));
  const QString markFont = QStringLiteral("Kruti Astro");
  const bool hasMark = QFontDatabase::hasFamily(markFont);  // its own glyph, or else the program's initial
  if (hasMark) font.name = markFont;
  font.size = 36;
  pdfBoxy.SetFont(font);
  pdfBoxy.TextAt(hasMark ? QStringLiteral("\u00B2") : QStringLiteral("O"), Units(5308), Units(1100));
  font = PrintFont();
  font.bold = true;
  pdfBoxy.SetFont(font);
  pdfBoxy.TextAt(head.date.toString(QStringLiteral("dd-MM-yyyy")), Units(10500), Units(1280));
  pdfBoxy.SetFont(saved);
}

void clsPDFExporter::AutoNewPage() {
  pdfBoxy.NewPage();
  ++pageCounter;
  PageHead();
  pdfBoxy.SetCurrent(TextLeft, TextTop);
}

// A line ends with its line feed: a text without any has no line.
void clsPDFExporter::ExportText(const FormItem &control) {
  PageHead();
  pdfBoxy.SetCurrent(TextLeft, TextTop);
  const QString &text = control.RichText.Text;
  qsizetype start = 0;
  for (qsizetype end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), start)) {
    FormText::Format format;
    if (control.RichText.FormatAt) {
      format = control.RichText.FormatAt(static_cast<int>(start));
      SetFont(format.font);
    }
    QString line = text.mid(start, end - start);
    if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
    WriteWrapped(line, format.ForeColor);
    start = end + 1;
  }
  pdfBoxy.SetColour(0);
}

void clsPDFExporter::WriteWrapped(const QString &text, unsigned colour) {
  QString line;
  const auto flush = [&] {
    pdfBoxy.SetColour(colour);  // each time: the head of a new page is black
    pdfBoxy.SetCurrent(TextLeft, pdfBoxy.CurrentY());
    pdfBoxy.TextLine(line.trimmed(), PdfBox::AlignLeft);
    line.clear();
  };
  for (const QString &word : text.split(QLatin1Char(' '))) {
    if (word == QLatin1String("\r\n")) {
      flush();
    } else {
      if (!line.isEmpty() && pdfBoxy.TextWidth(line) + pdfBoxy.TextWidth(word) >= TextWidth) flush();
      line += word + QLatin1Char(' ');
    }
    if (pdfBoxy.CurrentY() >= PageFull) AutoNewPage();
  }
  flush();
}
