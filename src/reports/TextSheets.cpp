// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/TextSheets.h"

#include <QStringList>
#include <algorithm>

namespace {

// Twips on a sheet of A4, without the shift that printing adds.
constexpr double TextTop = 1440, TextBottom = 15400;
constexpr double LineSpacing = 1.25, ParagraphGap = 0.5;  // in heights of a line

bool IsText(const FormItem &item) { return item.typeName == QLatin1String("TXTextControl"); }

class Sheets {
 public:
  Sheets(const FormPage &page, PrinterService &service) : printer(service), made(1) {
    made.front().landscape = page.landscape;
    for (const FormItem &item : page.items) {
      if (IsText(item)) continue;
      made.front().items.push_back(item);
      y = std::max(y, item.Top + item.Height);
    }
  }

  void Add(const FormText &text) {
    qsizetype start = 0;
    for (const QString &paragraph : text.Text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      start = text.Text.indexOf(paragraph, start);
      if (text.FormatAt) format = text.FormatAt(static_cast<int>(start));
      AddParagraph(paragraph);
      start += paragraph.size();
    }
  }

  std::vector<FormPage> Take() { return std::move(made); }

 private:
  void AddParagraph(const QString &paragraph) {
    printer.SetFont(format.font);
    const double height = printer.TextHeight();
    y += height * ParagraphGap;
    QString line;
    for (const QString &word : paragraph.split(QLatin1Char(' '))) {
      const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
      const bool isFull = !line.isEmpty() && printer.TextWidth(longer) > RunningText::Width;
      if (isFull) AddLine(line, height);
      line = isFull ? word : longer;
    }
    AddLine(line, height);
  }

  void AddLine(const QString &line, double height) {
    if (y + height > TextBottom) {
      made.emplace_back();
      y = TextTop;
    }
    FormItem label;
    label.typeName = QStringLiteral("Label");
    label.Left = RunningText::Left;
    label.Top = y;
    label.Width = RunningText::Width;
    label.Height = height;
    label.Caption = line;
    label.Font = format.font;
    label.ForeColor = format.ForeColor;
    made.back().items.push_back(label);
    y += height * LineSpacing;
  }

  PrinterService &printer;
  std::vector<FormPage> made;
  FormText::Format format;
  double y = TextTop;
};

}  // namespace

std::vector<FormPage> TextSheets(const FormPage &page, PrinterService &printer) {
  Sheets sheets(page, printer);
  for (const FormItem &item : page.items)
    if (IsText(item)) sheets.Add(item.RichText);
  return sheets.Take();
}
