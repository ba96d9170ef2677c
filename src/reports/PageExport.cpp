// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/PageExport.h"

#include <QDate>
#include <QPrinter>
#include <utility>

#include "platform/ReportError.h"
#include "platform/gui/QtPdfBox.h"
#include "platform/gui/QtPrinterService.h"
#include "reports/PdfDocumentInfo.h"
#include "reports/ScreenForm.h"
#include "reports/TextSheets.h"
#include "reports/clsPDFExporter.h"
#include "reports/clsPrintMaker.h"

namespace {

bool PrintSheets(const FormPage &form, PrinterService &service) {
  try {
    bool isFirst = true;
    for (const FormPage &sheet : TextSheets(form, service)) {
      if (!std::exchange(isFirst, false)) service.NewPage();
      if (!clsPrintMaker(service).PrintForm(sheet)) return false;
    }
    return true;
  } catch (const Error &) {
    clsPrintMaker::TellFault();
    return false;
  }
}

}  // namespace

void PageExport::SavePdf(QWidget &page, const QString &path, const QString &personName, const QString &makerAddress) {
  QtPdfBox pdf;
  clsPDFExporter exporter(pdf, PdfDocumentInfo(makerAddress), {personName, QDate::currentDate()});
  exporter.SetFilename(path);
  if (!exporter.StartExport()) throw StoreError(exporter.Fault());
  exporter.PrintForm(ScreenForm(page));
  exporter.FinishFile();
}

bool PageExport::Print(QWidget &page, QPrinter &printer) {
  const FormPage form = ScreenForm(page);
  printer.setPageOrientation(form.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  QtPrinterService service(printer);
  service.SetLandscape(form.landscape);
  const bool printed = PrintSheets(form, service);
  if (printed)
    service.EndDoc();
  else
    service.Abort();
  return printed;
}
