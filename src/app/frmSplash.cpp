// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmSplash.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include "app/frmFontsError.h"
#include "app/frmMessage.h"
#include "chart/ChartPalette.h"
#include "content/ShellFonts.h"
#include "platform/DataFiles.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace {

constexpr QSize PictureSize(640, 360);
constexpr int NarrowestScreen = 800;  // pixels
constexpr int LowScreenMessage = 13, LowScreenTitle = 14;

// The picture leaves its left to the words: the name above its rule at 118, the rest below.
constexpr int WordsLeft = 40, WordsTop = 52, RuleAt = 118, WordsWidth = 240;

int PrimaryScreenWidth() {
  const QScreen *screen = QGuiApplication::primaryScreen();
  return qRound(screen->size().width() * screen->devicePixelRatio());
}

}  // namespace

frmSplash::frmSplash(AppPaths applicationPaths, UserSettings &userSettings, int majorVersion, int minorVersion, Steps nextSteps)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      paths(std::move(applicationPaths)),
      settings(userSettings),
      ini(paths),
      steps(std::move(nextSteps)) {
  setObjectName(QStringLiteral("frmSplash"));
  setWindowTitle(QApplication::applicationDisplayName());
  setFixedSize(PictureSize);
  if (!steps.screenWidth) steps.screenWidth = PrimaryScreenWidth;
  picture = new QSvgRenderer(paths.Ephe(QStringLiteral("SKIN\\splash.svg")), this);

  // The picture is one of light paper on every desktop, and so are the words on it.
  const ChartPalette colours = ChartPalette::Light();
  const auto make = [this](const char *name, const QColor &colour, const QFont &font) {
    auto *label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setStyleSheet(QStringLiteral("color: %1; background: transparent;").arg(colour.name()));
    label->setFont(font);
    label->setWordWrap(true);
    return label;
  };
  const SetFonts fonts = ShellFonts();
  QFont nameFont = fonts.HeadFont();
  nameFont.setPointSizeF(nameFont.pointSizeF() * 1.6);
  QLabel *lblName = make("lblName", colours.maroon, nameFont);
  lblName->setText(QStringLiteral("Orvani"));
  lblDesc = make("lblDesc", colours.ink, fonts.NormalFont());
  lblDesc->setText(tr("Daily Vedic astrology"));
  lblVersion = make("lblVersion", colours.muted, fonts.SmallFont());
  lblVersion->setText(QStringLiteral("%1.%2").arg(majorVersion).arg(minorVersion));
  lblVersion->setAccessibleName(tr("Version"));
  lblStatus = make("lblStatus", colours.muted, fonts.SmallFont());

  auto *words = new QVBoxLayout(this);
  words->setContentsMargins(WordsLeft, WordsTop, PictureSize.width() - WordsLeft - WordsWidth, PictureSize.height() - 280);
  words->setSpacing(4);
  lblName->setFixedHeight(RuleAt - WordsTop - 4);
  lblName->setAlignment(Qt::AlignBottom);
  words->addWidget(lblName);
  words->addSpacing(12);
  words->addWidget(lblDesc);
  words->addWidget(lblVersion);
  words->addStretch();
  words->addWidget(lblStatus);
}

void frmSplash::Load() {
  lblStatus->setText(tr("Checking Display..."));
  if (const QScreen *screen = QGuiApplication::primaryScreen()) move(screen->availableGeometry().center() - rect().center());
  show();
  ShowStatus(lblStatus->text());
  CheckDisplay();
  ShowStatus(tr("Checking Fonts..."));
  CheckFonts();
  ShowStatus(tr("Checking Languages..."));
  if (CheckLanguages() == Outcome::Failed) return;
  ShowStatus(tr("Loading Application..."));
  RunSetup();
  DoLoad();
}

void frmSplash::DoLoad() {
  if (CheckPersonStore() == Outcome::Failed || CheckDataFiles() == Outcome::Failed) return;
  // Once more: the wizard may have been open for long, and the main screen lists only what is there now.
  CheckDisplay();
  CheckFonts();
  if (CheckLanguages() == Outcome::Failed || Guard(steps.openMain) == Outcome::Failed) return;
  close();
}

void frmSplash::CheckDisplay() {
  if (steps.screenWidth() >= NarrowestScreen || !frmMessage::IsWanted(ini, LowScreenMessage)) return;
  frmMessage(ini).ShowMessage(LowScreenMessage, LowScreenTitle, this, true);
}

void frmSplash::CheckFonts() { frmFontsError(paths, this).CheckFonts(); }

frmSplash::Outcome frmSplash::CheckLanguages() {
  return Guard([this] {
    DataFiles::CheckFileExists(paths, paths.LangsPath());
    try {
      DataFiles::CheckLanguages(paths);
    } catch (const StoreError &error) {
      // Only a file that is not there ends the program. The main screen tells of a list that cannot be read, and goes
      // on with the program's own language.
      if (error.Reason() == StoreError::Kind::Missing) throw;
    }
  });
}

frmSplash::Outcome frmSplash::CheckPersonStore() {
  return Guard([this] { DataFiles::CheckPersonStore(paths); });
}

frmSplash::Outcome frmSplash::CheckDataFiles() {
  return Guard([this] { DataFiles::CheckDataFiles(paths); });
}

void frmSplash::RunSetup() {
  if (settings.BoolValue(SettingKeys::DoneSetup)) return;
  try {
    steps.runSetup();
    settings.SetBoolValue(SettingKeys::DoneSetup, true);
  } catch (const StoreError &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
}

frmSplash::Outcome frmSplash::Guard(const std::function<void()> &check) {
  Notice notice{Notice::Kind::Critical, QString(), QString()};
  try {
    check();
    return Outcome::Passed;
  } catch (const MissingFileError &error) {
    notice.title = error.Title();
    notice.text = error.Sentence();
  } catch (const Error &error) {
    notice.text = error.Sentence();
  }
  Notices::Show(notice);
  steps.fatal();
  return Outcome::Failed;
}

void frmSplash::ShowStatus(const QString &text) {
  lblStatus->setText(text);
  repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmSplash::paintEvent(QPaintEvent *) {
  const ChartPalette colours = ChartPalette::Light();
  QPainter painter(this);
  painter.fillRect(rect(), colours.paper);
  if (picture->isValid()) {
    picture->render(&painter, rect());
  } else {
    painter.setPen(colours.gold);
    painter.drawLine(WordsLeft, RuleAt, WordsLeft + WordsWidth, RuleAt);
  }
  painter.setPen(colours.line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
