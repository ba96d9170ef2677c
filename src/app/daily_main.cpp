// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// orvani-daily: the day of a person without a screen, for terminals, cron and scripts.
#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <memory>
#include <string_view>

#include "Version.h"
#include "app/DailyRun.h"
#include "engine/Ephemeris.h"

namespace {

// Fonts need the part of Qt that draws, though no window is shown: not even a screen is needed.
std::unique_ptr<QCoreApplication> MakeApplication(int &argc, char **argv) {
  const bool draws = std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
    return argument == "--pdf" || argument == "-pdf" || argument.starts_with("--pdf=") || argument.starts_with("-pdf=");
  });
  if (!draws) return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});  // a bare session is no news to mail
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

int main(int argc, char **argv) {
  const auto app = MakeApplication(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("orvani"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ORVANI_VERSION));
  Ephemeris::UseFilesBeside(QCoreApplication::applicationDirPath());
  return RunDaily(app->arguments());
}
