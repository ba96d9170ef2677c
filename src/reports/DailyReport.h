// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QPageSize>
#include <QString>

#include "content/Languages.h"
#include "reports/clsDailyPrinter.h"

class AppPaths;

// The daily report of a session, for whoever wants it on paper or in a file.
class DailyReport {
 public:
  // The session must outlive this object.
  DailyReport(SelvaniDailyMod &session, const AppPaths &paths, const LanguageRow &language, const QString &makerAddress);

  // Prints and ends the document. When a page fails, what was printed so far stays with the printer.
  void Print(PrinterService &printer, const ReportTopics &topics, ReportProgress *progress = nullptr) const;

  // Writes the same report as a PDF: whole, or not at all. False when it was stopped on the way. Throws StoreError where the
  // file cannot be written; an older file then stays as it was.
  bool SavePdf(const QString &path, const ReportTopics &topics, ReportProgress *progress = nullptr) const;
  bool SavePdf(const QString &path, const ReportTopics &topics, ReportProgress *progress, const QPageSize &paper) const;

  // "Anvik Telvar 2026-11-21.pdf", without characters that no file may have.
  QString FileName() const;

 private:
  SelvaniDailyMod &session;
  clsDailyPrinter::Setup setup;
};
