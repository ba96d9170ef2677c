// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

#include "platform/DocumentInfo.h"
#include "platform/PdfBox.h"
#include "reports/FormItem.h"

// Writes screen pages to a PDF: StartExport, PrintForm for each page with NewTopic between two, FinishFile. Positions of the
// screen, twips, become tenths of a millimetre.
class clsPDFExporter {
 public:
  // For the head of text pages: whose they are, and the date of the export.
  struct Head {
    QString personName;
    QDate date;
  };

  clsPDFExporter(PdfBox &pdf, DocumentInfo documentInfo, Head pageHead);

  const QString &filename() const { return path; }
  void SetFilename(const QString &file);

  // False where the document cannot be begun; Fault then tells why.
  bool StartExport();
  void FinishFile();  // throws StoreError where the file cannot be written
  void NewTopic();
  void PrintForm(const FormPage &form);
  void PrintLabel(const FormItem &control);
  bool ExportHoroscope() { return false; }

  const QString &Fault() const { return fault; }
  int PageCounter() const { return pageCounter; }  // automatic new pages

 private:
  void PrintLine(const FormItem &control);
  void PrintShape(const FormItem &control);
  void PrintKundali(const FormItem &control);
  void PrintPicture(const FormItem &control);
  void ExportText(const FormItem &control);
  void PageHead();
  void AutoNewPage();
  void WriteWrapped(const QString &text, unsigned colour);
  void SetFont(PrintFont font);

  PdfBox &pdfBoxy;
  DocumentInfo info;
  Head head;
  QString path;
  QString fault;
  int pageCounter = 0;
};
