// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Screen pages and charts on recording paper and in a recording PDF.
#include <gtest/gtest.h>

#include <QGridLayout>
#include <QLabel>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include "chart/Kundali.h"
#include "platform/Notices.h"
#include "reports/ChartOutput.h"
#include "reports/PageExport.h"
#include "reports/RecordingPrinter.h"
#include "reports/ScreenForm.h"
#include "reports/TextSheets.h"
#include "reports/clsPDFExporter.h"
#include "reports/clsPrintMaker.h"

namespace {

using Mark = RecordingPrinter::Mark;

// Every character is 10 units wide, a line 50 high.
class RecordingPdf : public PdfBox {
 public:
  void SetFileName(const QString &) override {}
  void SetInfo(const DocumentInfo &value) override { info = value; }
  void SetLandscape(bool) override {}
  void BeginDoc() override {
    if (refuse) throw StoreError(QStringLiteral("no"));
  }
  void EndDoc() override {}
  void NewPage() override { ++page; }
  void Abort() override {}
  const PrintFont &Font() const override { return font; }
  void SetFont(const PrintFont &value) override { font = value; }
  void SetColour(unsigned) override {}
  int CurrentX() const override { return x; }
  int CurrentY() const override { return y; }
  void SetCurrent(int newX, int newY) override { x = newX, y = newY; }
  int TextWidth(const QString &text) override { return static_cast<int>(text.size()) * 10; }
  int TextHeight() override { return 50; }
  void LineTo(int toX, int toY) override { log << QStringLiteral("line %1 %2 %3 %4").arg(x).arg(y).arg(toX).arg(toY); }
  void TextAt(const QString &text, int atX, int atY) override { Log(text, atX, atY); }
  void TextLine(const QString &text, Alignment) override {
    Log(text, x, y);
    y += 50;
  }
  void TextIn(const QString &text, int atX, int atY, int w, int h, Alignment a) override {
    log << QStringLiteral("in %1 %2 %3 %4 %5 %6").arg(text).arg(atX).arg(atY).arg(w).arg(h).arg(a);
    faces << font.name;
  }
  void Ellipse(int a, int b, int c, int d) override { log << QStringLiteral("ellipse %1 %2 %3 %4").arg(a).arg(b).arg(c).arg(d); }
  void Rectangle(int a, int b, int c, int d) override { log << QStringLiteral("box %1 %2 %3 %4").arg(a).arg(b).arg(c).arg(d); }
  void Picture(const QImage &, int a, int b, int c, int d) override {
    log << QStringLiteral("picture %1 %2 %3 %4").arg(a).arg(b).arg(c).arg(d);
  }

  QStringList log, faces;
  DocumentInfo info;
  PrintFont font;
  int page = 1;
  bool refuse = false;

 private:
  void Log(const QString &text, int atX, int atY) {
    log << QStringLiteral("%1: %2 %3 %4").arg(page).arg(text).arg(atX).arg(atY);
    faces << font.name;
  }
  int x = 0, y = 0;
};

FormItem Item(const char *type, double left, double top, double width, double height) {
  FormItem item;
  item.typeName = QLatin1String(type);
  item.Left = left, item.Top = top, item.Width = width, item.Height = height;
  return item;
}

FormItem Label(const char *caption, double left, double top, double width, int alignment = FormItem::AlignLeft) {
  FormItem item = Item("Label", left, top, width, 500);
  item.Caption = QString::fromUtf8(caption);
  item.Alignment = alignment;
  return item;
}

TEST(PrintMaker, ShapesComeFirstAndEverythingStandsAFifthOfAThousandLower) {
  FormPage page;
  page.items = {Label("over", 100, 100, 1000),
                Item("Shape", 100, 100, 400, 300),
                Item("Shape", 0, 0, 600, 400),
                Item("Button", 0, 0, 1, 1),
                Label("hidden", 0, 0, 900),
                Label("", 0, 0, 900),
                Label("aaaa bbbb cccc", 0, 1000, 950, FormItem::AlignRight),
                Label("mid", 0, 3000, 1000, FormItem::AlignCenter)};
  page.items[0].Container = FormContainer{QStringLiteral("Frame"), 1000, 2000};
  page.items[2].Shape = FormItem::CircleShape;
  page.items[4].Visible = false;
  RecordingPrinter paper;
  EXPECT_TRUE(clsPrintMaker(paper).PrintForm(page));
  ASSERT_EQ(paper.marks.size(), 9u);  // four sides, a circle, four lines of text
  EXPECT_TRUE(paper.Has(Mark::Line, 1, 100, 300, 500, 300));
  EXPECT_TRUE(paper.Has(Mark::Circle, 1, 300, 400, 200, 0));
  EXPECT_EQ(paper.marks[0].pen, 10);
  EXPECT_EQ(paper.marks[5].text, "over");
  EXPECT_EQ(paper.marks[5].x1, 1100);
  EXPECT_EQ(paper.marks[5].y1, 2300);
  EXPECT_EQ(paper.Find("aaaa bbbb")->x1, 50);
  EXPECT_EQ(paper.Find("cccc")->x1, 550);
  EXPECT_EQ(paper.Find("cccc")->y1, 1200 + 230);
  EXPECT_EQ(paper.Find("mid")->x1, 350);

  const NoticeRecorder notices;
  page.items = {Item("Image", 0, 0, 10, 10), Label("never", 0, 0, 900)};
  EXPECT_FALSE(clsPrintMaker(paper).PrintForm(page));
  EXPECT_FALSE(paper.Find("never"));
  ASSERT_EQ(notices.Seen().size(), 1u);
  EXPECT_EQ(notices.Seen()[0].title, "Erro Printing!");
}

TEST(PageExport, TellsAPrinterThatTakesNoPage) {
  const NoticeRecorder notices;
  const QTemporaryDir folder;
  QWidget page;
  auto *label = new QLabel("words", &page);
  label->resize(100, 20);
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  for (const bool works : {false, true}) {
    printer.setOutputFileName(folder.filePath(works ? "page.pdf" : "nowhere/page.pdf"));
    EXPECT_EQ(PageExport::Print(page, printer), works);
    EXPECT_EQ(notices.Seen().size(), 1u);
  }
  EXPECT_NE(printer.printerState(), QPrinter::Active);
}

TEST(PdfExporter, PagesBecomeTenthsOfAMillimetre) {
  RecordingPdf pdf;
  clsPDFExporter exporter(pdf, {}, {QStringLiteral("Anvik"), QDate(2026, 11, 21)});
  EXPECT_TRUE(exporter.StartExport());
  EXPECT_FALSE(exporter.ExportHoroscope());
  FormPage page;
  page.items = {Label("text", 567, 1134, 5670, FormItem::AlignCenter), Item("Shape", 567, 567, 5670, 567)};
  page.items[0].Font.name = QStringLiteral("MS Sans Serif");
  exporter.PrintForm(page);
  EXPECT_EQ(pdf.log, QStringList({"in text 100 200 1000 88 2", "box 100 100 1100 200"}));
  EXPECT_FALSE(pdf.faces.contains("MS Sans Serif"));

  // 78 characters and the blank behind them stay below 1570 units; a page is full at 2601.
  FormItem text = Item("TXTextControl", 0, 0, 100, 100);
  text.RichText.Text = QString(155, 'a') + " b\n";
  page.items = {text};
  pdf.log.clear();
  exporter.PrintForm(page);
  EXPECT_TRUE(pdf.log.contains("line 85 282 889 282"));
  EXPECT_TRUE(pdf.log.contains("1: Anvik 85 226"));
  EXPECT_TRUE(pdf.log.contains(QStringLiteral("1: %1 265 400").arg(QString(155, 'a'))));
  EXPECT_TRUE(pdf.log.contains("1: b 265 450"));

  page.items[0].RichText.Text = QStringLiteral("no line feed, no line");
  pdf.log.clear();
  exporter.PrintForm(page);
  EXPECT_FALSE(pdf.log.join(' ').contains("no line feed"));

  page.items[0].RichText.Text = QStringLiteral("x\n").repeated(50);
  pdf.log.clear();
  exporter.PrintForm(page);
  EXPECT_EQ(exporter.PageCounter(), 1);
  EXPECT_EQ(pdf.page, 2);
  EXPECT_TRUE(pdf.log.contains("2: Anvik 85 226"));
  EXPECT_TRUE(pdf.log.contains("2: x 265 450"));

  pdf.refuse = true;
  EXPECT_FALSE(exporter.StartExport());
  EXPECT_EQ(exporter.Fault(), "no");
}

TEST(ChartOutput, WalksTheVisiblePartsInAllThreeForms) {
  KundaliModel model;
  model.SetChartStyle(ChartLayout::South);
  model.SetHouseNumber(1);
  model.PlanetPlace(1, QStringLiteral("Sun"));
  model.MakeHouseInvisible();
  const QSizeF size(5000, 5000);
  RecordingPrinter paper;
  ChartOutput::PrintKundaliNonApi(paper, model.Layout(), size, 1000, 2000, QStringLiteral("Arial"), 11);
  auto texts = paper.Of(Mark::Text);
  ASSERT_EQ(texts.size(), 1u);  // no hidden number, no empty cell
  EXPECT_EQ(texts[0].text.trimmed(), "Sun");
  EXPECT_EQ(texts[0].x1, 1000 + 260 * 5);
  EXPECT_EQ(texts[0].y1, 2000 + 70 * 5);
  EXPECT_EQ(texts[0].font.size, 11);
  EXPECT_EQ(paper.Of(Mark::Line).size(), 8u);
  EXPECT_EQ(paper.Of(Mark::Line)[0].pen, 5);

  // Crowded, it stays one line from the same corner, and readable.
  for (const char *name : {"Mon", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket"}) model.PlanetPlace(1, QLatin1String(name));
  paper.Clear();
  ChartOutput::PrintKundaliNonApi(paper, model.Layout(), size, 1000, 2000, QStringLiteral("Arial"), 11);
  texts = paper.Of(Mark::Text);
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].x1, 2300);
  EXPECT_GE(texts[0].font.size, 6);

  // Device dots are reckoned on a sheet of 8.5 by 11 inches, whatever the paper, and are cut, not rounded.
  paper.Clear();
  paper.dots = QSize(2480, 3508);
  ChartOutput::PrintKundli(paper, model.Layout(), size, 1000, 2000);
  const auto boxes = paper.Of(Mark::InDots);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].x1, std::floor(2300 * 2480 / 12240.0));
  EXPECT_EQ(boxes[0].y1, std::floor(2350 * 3508 / 15840.0));
  EXPECT_EQ(boxes[0].flags, PrinterService::Centre | PrinterService::WordBreak);
  EXPECT_EQ(paper.Of(Mark::Line)[0].pen, 10);

  RecordingPdf pdf;
  ChartOutput::DrawPDFKundli(pdf, model.Layout(), QSizeF(5670, 5670), 100, 200);
  EXPECT_TRUE(pdf.log.contains("line 350 202 350 1200"));
  EXPECT_TRUE(pdf.log.contains("box 102 202 1100 1200"));
}

TEST(ScreenForm, TakesLabelsChartsAndTextsFromAWidgetPage) {
  QWidget page;
  auto *grid = new QGridLayout(&page);
  auto *label = new QLabel(QStringLiteral("<b>Tithi</b>"));
  auto *hidden = new QLabel(QStringLiteral("hidden"));
  auto *chart = new Kundali;
  auto *text = new QTextEdit;
  text->setPlainText(QStringLiteral("one\ntwo"));
  grid->addWidget(label, 0, 0);
  grid->addWidget(hidden, 1, 0);
  grid->addWidget(chart, 0, 1);
  grid->addWidget(text, 1, 1);
  page.resize(1600, 900);
  page.show();
  hidden->hide();
  const FormPage form = ScreenForm(page);
  QStringList types;
  for (const FormItem &item : form.items) {
    types << item.typeName;
    EXPECT_GE(item.Left, 0);
    EXPECT_LE(item.Left + item.Width, 11906) << item.typeName.toStdString();
    EXPECT_GE(item.Top, 1600) << "below the head";
  }
  EXPECT_FALSE(form.landscape) << "running text goes on upright sheets";
  ASSERT_EQ(types, QStringList({"Label", "Kundali", "TXTextControl"}));
  EXPECT_EQ(form.items[0].Caption, "Tithi");
  EXPECT_EQ(form.items[2].RichText.Text, "one\ntwo\n");

  text->setPlainText(QStringLiteral("word ").repeated(3000) + "\nlast");
  RecordingPrinter printer;
  QString printed;
  const std::vector<FormPage> sheets = TextSheets(ScreenForm(page), printer);
  EXPECT_GT(sheets.size(), 1u);
  for (const FormPage &sheet : sheets) {
    EXPECT_EQ(&sheet == &sheets.front(), std::any_of(sheet.items.begin(), sheet.items.end(),
                                                     [](const FormItem &item) { return item.typeName == QLatin1String("Kundali"); }));
    for (const FormItem &item : sheet.items) {
      EXPECT_LE(item.Top + item.Height, 16838 - 720);
      if (item.typeName == QLatin1String("Label")) printed += item.Caption + ' ';
    }
  }
  EXPECT_EQ(printed.count("word"), 3000);
  EXPECT_TRUE(printed.endsWith("last "));
}

}  // namespace
