// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/DailyReport.h"

#include <QRegularExpression>

#include "analysis/SelvaniDailyMod.h"
#include "platform/AppPaths.h"
#include "platform/ReportError.h"
#include "platform/gui/PdfFile.h"
#include "platform/gui/QtPrinterService.h"
#include "reports/PdfDocumentInfo.h"

DailyReport::DailyReport(SelvaniDailyMod &dailySession, const AppPaths &paths, const LanguageRow &language, const QString &makerAddress)
    : session(dailySession), setup{language, paths.Ephe(QStringLiteral("COMMON")), makerAddress} {}

void DailyReport::Print(PrinterService &printer, const ReportTopics &topics, ReportProgress *progress) const {
  clsDailyPrinter(printer, session, setup).PrintRoutine(topics, progress);
}

bool DailyReport::SavePdf(const QString &path, const ReportTopics &topics, ReportProgress *progress) const {
  return SavePdf(path, topics, progress, PdfFile::UsualPaper());
}

bool DailyReport::SavePdf(const QString &path, const ReportTopics &topics, ReportProgress *progress, const QPageSize &paper) const {
  PdfFile::CheckWritable(path);  // told before the work, not after it
  PdfFile file(paper);
  QtPrinterService printer(file.Device());
  try {
    Print(printer, topics, progress);
  } catch (const ReportCancelled &) {
    return false;
  }
  file.Store(path, PdfDocumentInfo(setup.makerAddress));
  return true;
}

QString DailyReport::FileName() const {
  static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]"));
  QString person = session.BirthChart().clsPerson().Name();
  return person.replace(forbidden, QStringLiteral("_")).left(80).trimmed() +
         session.AnalysisMoment().toString(QStringLiteral(" yyyy-MM-dd")) + QStringLiteral(".pdf");
}
