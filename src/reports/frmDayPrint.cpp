// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/frmDayPrint.h"

#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/ReportError.h"
#include "platform/gui/AskSaveFile.h"
#include "platform/gui/QtPrinterService.h"
#include "reports/DailyReport.h"

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int Gap = 8;

// The wait pointer for as long as it lives.
class WaitPointer {
 public:
  WaitPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }
  WaitPointer(const WaitPointer &) = delete;
  WaitPointer &operator=(const WaitPointer &) = delete;
};

}  // namespace

frmDayPrint::frmDayPrint(DailyReport &dailyReport, QWidget *parent) : QDialog(parent), report(dailyReport), services(OwnServices()) {
  Build();
}

frmDayPrint::frmDayPrint(DailyReport &dailyReport, Services outside, QWidget *parent)
    : QDialog(parent), report(dailyReport), services(std::move(outside)) {
  Build();
}

frmDayPrint::~frmDayPrint() = default;

std::unique_ptr<ReportProgress> frmDayPrint::NewProgress(Target target) const { return makeProgress ? makeProgress(target) : nullptr; }

frmDayPrint::Services frmDayPrint::OwnServices() {
  Services own;
  own.hasPrinter = [] { return !QPrinterInfo::availablePrinterNames().isEmpty(); };
  own.print = [this](const ReportTopics &topics) {
    if (!Printer().isValid()) throw ReportError(tr("The printer \"%1\" is not there any more.").arg(Printer().printerName()));
    QtPrinterService service(Printer());
    const std::unique_ptr<ReportProgress> progress = NewProgress(Target::Printer);
    try {
      report.Print(service, topics, progress.get());
    } catch (const ReportCancelled &) {
      service.Abort();
      return false;
    }
    return true;
  };
  own.askFile = [this](const QString &suggested) { return AskSaveFile(this, tr("Save as PDF"), suggested, tr("PDF documents (*.pdf)")); };
  own.offerPdf = [this](const QString &question) {
    return QMessageBox::question(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) == QMessageBox::Yes;
  };
  own.tell = [this](const QString &sentence, bool bad) {
    bad ? QMessageBox::warning(this, windowTitle(), sentence) : QMessageBox::information(this, windowTitle(), sentence);
  };
  return own;
}

void frmDayPrint::Build() {
  setObjectName(QStringLiteral("frmDayPrint"));
  setWindowTitle(tr("Print Daily Horoscope"));
  setModal(true);

  tvwPrint = new QTreeWidget;
  tvwPrint->setObjectName(QStringLiteral("tvwPrint"));
  tvwPrint->setAccessibleName(tr("Topics of the report"));
  tvwPrint->setHeaderHidden(true);
  tvwPrint->setRootIsDecorated(false);
  tvwPrint->setItemsExpandable(false);
  const auto add = [](QTreeWidgetItem *item, const char *key, const QString &text, bool ticked) {
    item->setText(0, text);
    item->setData(0, KeyRole, QLatin1String(key));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
  };
  int rows = 0, longest = 0;
  for (const ReportTopics::Group &group : ReportTopics::Groups()) {
    auto *root = new QTreeWidgetItem(tvwPrint);
    add(root, group.key, tr(group.text), group.wantedAtFirst);
    for (const ReportTopics::Topic &topic : group.topics) {
      add(new QTreeWidgetItem(root), topic.key, tr(topic.text), group.wantedAtFirst);
      longest = std::max(longest, fontMetrics().horizontalAdvance(tr(topic.text)) + 14 * Gap);
    }
    rows += 1 + static_cast<int>(group.topics.size());
  }
  tvwPrint->expandAll();
  tvwPrint->setCurrentItem(tvwPrint->topLevelItem(0));
  tvwPrint->setUniformRowHeights(true);
  // Every row shows where the screen has room for them.
  const int row = fontMetrics().height() + Gap / 2;
  tvwPrint->setStyleSheet(QStringLiteral("QTreeWidget::item { min-height: %1px; }").arg(row));
  tvwPrint->setMinimumHeight(row * 6);
  connect(tvwPrint, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) { OnItemChanged(item); });

  const auto button = [this](const char *name, const QString &text, void (frmDayPrint::*action)()) {
    auto *made = new QPushButton(text);
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, action);
    return made;
  };
  auto *buttons = new QHBoxLayout;
  buttons->setSpacing(Gap);
  buttons->addWidget(button("cmdPrintSet", tr("Printer &Options"), &frmDayPrint::PrinterOptions));
  buttons->addWidget(button("cmdPreview", tr("P&review..."), &frmDayPrint::Preview));
  buttons->addStretch();
  auto *print = button("cmdPrint", tr("&Print"), &frmDayPrint::Print);
  print->setProperty("role", "primary");
  print->setDefault(true);
  buttons->addWidget(button("cmdSavePdf", tr("&Save as PDF..."), &frmDayPrint::SavePdf));
  buttons->addWidget(print);
  buttons->addWidget(button("cmdCancel", tr("&Close"), &frmDayPrint::reject));

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(2 * Gap, 2 * Gap, 2 * Gap, 2 * Gap);
  layout->setSpacing(2 * Gap);
  layout->addWidget(tvwPrint);
  layout->addLayout(buttons);
  const QSize wanted(std::max(longest, sizeHint().width()), std::max(row, tvwPrint->sizeHintForRow(0)) * rows + 18 * Gap);
  resize(wanted.boundedTo(screen()->availableSize() * 0.9));
}

void frmDayPrint::OnItemChanged(QTreeWidgetItem *item) {
  // A group carries all its topics with it; a topic leaves its group as it was.
  for (int i = 0; i < item->childCount(); ++i) item->child(i)->setCheckState(0, item->checkState(0));
}

ReportTopics frmDayPrint::Topics() const {
  ReportTopics topics;
  for (int group = 0; group < tvwPrint->topLevelItemCount(); ++group) {
    const QTreeWidgetItem *root = tvwPrint->topLevelItem(group);
    for (int i = 0; i < root->childCount(); ++i)
      topics.Set(root->child(i)->data(0, KeyRole).toString(), root->child(i)->checkState(0) == Qt::Checked);
  }
  return topics;
}

QPrinter &frmDayPrint::Printer() {
  if (!printer) {
    printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(tr("Daily Horoscope"));
  }
  return *printer;
}

void frmDayPrint::Print() {
  QString fault;
  if (!services.hasPrinter()) {
    fault = tr("No printer is installed on this computer.");
  } else {
    try {
      const WaitPointer wait;
      if (!services.print(Topics())) return;
    } catch (const ReportError &error) {
      fault = error.Sentence();
      printer.reset();  // the next one begins with a printer that may be back
    } catch (const Error &error) {
      services.tell(error.Sentence(), true);
      return;
    }
  }
  if (fault.isEmpty())
    accept();
  else if (services.offerPdf(tr("%1 Do you want to save the report as a PDF?").arg(fault)))
    SavePdf();
}

void frmDayPrint::SavePdf() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString file = services.askFile(QDir(folder).filePath(report.FileName()));
  if (file.isEmpty()) return;
  try {
    bool saved = false;
    {
      const WaitPointer wait;
      const std::unique_ptr<ReportProgress> progress = NewProgress(Target::Pdf);
      saved = report.SavePdf(file, Topics(), progress.get());
    }
    if (!saved) return;
    services.tell(tr("The report is saved as \"%1\".").arg(QDir::toNativeSeparators(file)), false);
    accept();
  } catch (const Error &error) {
    services.tell(error.Sentence(), true);
  }
}

void frmDayPrint::Preview() {
  // Without a printer the preview lays the pages out as a PDF would.
  QPrintPreviewDialog preview(&Printer(), this);
  preview.setWindowTitle(tr("Print Daily Horoscope"));
  QString fault;
  connect(&preview, &QPrintPreviewDialog::paintRequested, this, [&](QPrinter *target) {
    try {
      QtPrinterService service(*target);
      report.Print(service, Topics());
    } catch (const Error &error) {
      fault = error.Sentence();
      QMetaObject::invokeMethod(&preview, &QDialog::reject, Qt::QueuedConnection);
    }
  });
  preview.resize(screen()->availableSize() * 0.8);
  preview.exec();
  if (!fault.isEmpty()) services.tell(fault, true);
}

void frmDayPrint::PrinterOptions() {
  if (!services.hasPrinter()) {
    if (services.offerPdf(tr("No printer is installed on this computer. Do you want to save the report as a PDF?"))) SavePdf();
    return;
  }
  // The dialog works on a printer of its own, so that a cancelled one changes nothing.
  QPrinter chosen(QPrinter::HighResolution);
  chosen.setPrinterName(Printer().printerName());
  chosen.setPageLayout(Printer().pageLayout());
  chosen.setCopyCount(1);
  QPrintDialog dialog(&chosen, this);
  dialog.setWindowTitle(tr("Print Daily Horoscope"));
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  if (dialog.exec() != QDialog::Accepted) return;
  Printer().setPrinterName(chosen.printerName());
  Printer().setPageSize(chosen.pageLayout().pageSize());
  Printer().setCopyCount(chosen.copyCount());
  Printer().setPageOrientation(chosen.pageLayout().orientation());
}
