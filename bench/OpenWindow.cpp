// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "OpenWindow.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEvent>
#include <cstdio>
#include <stdexcept>

#include "content/PageNumber.h"
#include "content/contentManager.h"

namespace {

void CopyFolder(const QString &from, const QString &to) {
  QDir().mkpath(to);
  for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
    const QString target = to + QLatin1Char('/') + entry.fileName();
    if (entry.isDir())
      CopyFolder(entry.filePath(), target);
    else
      QFile::copy(entry.filePath(), target);
  }
}

}  // namespace

QString OpenWindow::DataFolder() {
  static const QTemporaryDir folder;
  static const bool copied = [] {
    CopyFolder(QStringLiteral(ORVANI_EPHE), folder.path() + QStringLiteral("/EPHE"));
    return true;
  }();
  (void)copied;
  return folder.path();
}

// Usable is a window that has been painted and has nothing left to do but to wait for keys.
int OpenWindow::OpenAndTell(const QString &dataFolder) {
  class Watch : public QObject {
   public:
    bool painted = false;
    bool eventFilter(QObject *, QEvent *event) override {
      painted = painted || event->type() == QEvent::Paint;
      return false;
    }
  } watch;
  Startup startup{AppPaths(dataFolder)};
  if (!startup.Open(std::make_unique<FileUserSettings>())) return 1;
  startup.Screen().centralWidget()->installEventFilter(&watch);
  startup.Screen().centralWidget()->update();
  const QDeadlineTimer deadline(10000);
  while (!watch.painted && !deadline.hasExpired()) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  std::fputs(watch.painted ? "open" : "not painted", stdout);
  std::fflush(stdout);
  return 0;
}

OpenWindow::OpenWindow() : startup(std::make_unique<Startup>(AppPaths(DataFolder()))) {
  auto settings = std::make_unique<FileUserSettings>(DataFolder() + QStringLiteral("/orvani.conf"));
  settings->SetBoolValue(SettingKeys::DoneSetup, true);
  if (!startup->Open(std::move(settings))) throw std::runtime_error("the window did not open");
  Screen().resize(1280, 800);
  Paint();
}

void OpenWindow::Paint() {
  // The layout of a page can ask for another round.
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
  // What asked to be deleted later waits for the event loop, which a benchmark does not return to.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::vector<int> OpenWindow::AllPages() {
  std::vector<int> pages;
  for (const contentManager::Row &row : contentManager::Table()) pages.push_back(row.page);
  pages.push_back(PageNumber::Help);
  return pages;
}
