// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// orvani: the desktop program.
#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>
#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <string_view>

#include "Version.h"
#include "app/Maker.h"
#include "app/Screens.h"
#include "app/Startup.h"
#include "app/StoreRescue.h"
#include "engine/Ephemeris.h"
#include "platform/Errors.h"

namespace {

// A fault that reaches the event loop shows its sentence, and the program goes on.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject *receiver, QEvent *event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const Error &error) {
      Notices::Show({Notice::Kind::Critical, Maker::Title, error.Sentence()});
    } catch (const std::exception &error) {
      Notices::Show({Notice::Kind::Critical, Maker::Title, QString::fromLocal8Bit(error.what())});
    }
    return false;
  }
};

bool IsGiven(int argc, char **argv, std::initializer_list<std::string_view> options) {
  return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
    return std::find(options.begin(), options.end(), argument.substr(0, argument.find('='))) != options.end();
  });
}

// Without a display Qt would end the program by a fault. Help, version and pictures need none. Gives false when there is no way on.
bool FindDisplay(int argc, char **argv) {
  const bool needsWindow = !IsGiven(argc, argv, {"-h", "--help", "--help-all", "-v", "--version"});
  const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  if (IsGiven(argc, argv, {"-platform", "--platform"}) || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || (needsWindow && hasDisplay))
    return true;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return !needsWindow || IsGiven(argc, argv, {"--screens"});
}

}  // namespace

int main(int argc, char **argv) {
  if (!FindDisplay(argc, argv)) {
    std::fputs("orvani: there is no display here; orvani-daily prints the day in a terminal.\n", stderr);
    return 1;
  }
  Application app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("orvani"));
  QApplication::setApplicationDisplayName(Maker::Title);
  QApplication::setApplicationVersion(QStringLiteral(ORVANI_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("orvani"));

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("The day of a person by the rules of Vedic astrology."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption appDir(QStringLiteral("app-dir"), QStringLiteral("The folder that holds the data folder EPHE."),
                                  QStringLiteral("DIR"));
  const QCommandLineOption screens(QStringLiteral("screens"), QStringLiteral("Write a picture of every page into a folder and end."),
                                   QStringLiteral("DIR"));
  parser.addOptions({appDir, screens});
  parser.process(app);

  try {
    Ephemeris::UseFilesBeside(QApplication::applicationDirPath());
    const AppPaths paths = AppPaths::Locate(parser.value(appDir));
    Startup startup(paths);
    if (parser.isSet(screens)) return WriteScreens(parser.value(screens), paths, startup.Boxes());

    std::unique_ptr<FileUserSettings> settings = StoreRescue(startup.Boxes()).OpenSettings();
    if (!settings || !startup.Open(std::move(settings))) return 1;
    return QApplication::exec();
  } catch (const Error &error) {
    std::fprintf(stderr, "orvani: %s\n", error.what());
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) QMessageBox::critical(nullptr, Maker::Title, error.Sentence());
    return 1;
  }
}
