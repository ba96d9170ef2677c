// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "reports/ReportProgress.h"
#include "reports/ReportTopics.h"

class DailyReport;
class QPrinter;
class QTreeWidget;
class QTreeWidgetItem;

// Asks which topics the daily report is to hold, and prints it, shows it first, or saves it as a PDF. The daily topics are ticked
// when it opens and the study pages are not; nothing is remembered from an earlier use.
class frmDayPrint : public QDialog {
  Q_OBJECT

 public:
  // What it meets outside; a test puts its own in their place.
  struct Services {
    std::function<bool()> hasPrinter;                             // is there any?
    std::function<bool(const ReportTopics &)> print;              // on paper; false where it was stopped; throws ReportError
    std::function<QString(const QString &suggested)> askFile;     // empty for none
    std::function<bool(const QString &question)> offerPdf;        // after a printer failed
    std::function<void(const QString &sentence, bool bad)> tell;  // in a message
  };

  explicit frmDayPrint(DailyReport &dailyReport, QWidget *parent = nullptr);
  frmDayPrint(DailyReport &dailyReport, Services outside, QWidget *parent = nullptr);
  ~frmDayPrint() override;

  ReportTopics Topics() const;

  enum class Target { Printer, Pdf };
  // Makes what shows how far a report is, and lets it be stopped; nothing shows where it is not set.
  void SetProgress(std::function<std::unique_ptr<ReportProgress>(Target)> make) { makeProgress = std::move(make); }

 public slots:
  void Print();
  void SavePdf();
  void Preview();
  void PrinterOptions();  // copies and orientation

 private:
  void Build();
  void OnItemChanged(QTreeWidgetItem *item);
  Services OwnServices();
  QPrinter &Printer();

  std::unique_ptr<ReportProgress> NewProgress(Target target) const;

  std::function<std::unique_ptr<ReportProgress>(Target)> makeProgress;
  DailyReport &report;
  Services services;
  QTreeWidget *tvwPrint = nullptr;
  std::unique_ptr<QPrinter> printer;
};
