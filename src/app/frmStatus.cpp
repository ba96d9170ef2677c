// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmStatus.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"

namespace {

constexpr int FrameCount = 12;
constexpr int FrameTime = 100;  // milliseconds
constexpr int PaintTime = 30;   // milliseconds; work may report many thousand times
constexpr QSize FrameSize(96, 96);

}  // namespace

frmStatus::frmStatus(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName(QStringLiteral("frmStatus"));
  setWindowModality(Qt::ApplicationModal);
  const SetFonts fonts = ShellFonts();

  ani1 = new QLabel;
  ani1->setObjectName(QStringLiteral("ani1"));
  ani1->setAccessibleName(tr("The Moon on its way through the nakshatras"));
  lblHead = new QLabel;
  lblHead->setProperty("role", "head");
  fonts.SetSubHeadFont(*lblHead);
  lblStatus = new QLabel;
  lblStatus->setObjectName(QStringLiteral("lblStatus"));
  lblStatus->setWordWrap(true);
  lblStatus->setMinimumWidth(340);
  lblStatus->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  fonts.SetNormalFont(*lblStatus);
  // The longest text takes two lines: the screen keeps its size from one work to the next.
  lblStatus->setMinimumHeight(2 * lblStatus->fontMetrics().lineSpacing());
  prgStatus = new QProgressBar;
  prgStatus->setObjectName(QStringLiteral("prgStatus"));
  prgStatus->setAccessibleName(tr("Progress"));
  QSizePolicy room = prgStatus->sizePolicy();
  room.setRetainSizeWhenHidden(true);
  prgStatus->setSizePolicy(room);
  fonts.SetSmallFont(*prgStatus);
  cmdCancel = new QPushButton(tr("Cancel"));
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  cmdCancel->hide();
  fonts.SetNormalFont(*cmdCancel);

  auto *words = new QVBoxLayout;
  words->setSpacing(Grid::Gap);
  words->addStretch();
  words->addWidget(lblHead);
  words->addWidget(lblStatus);
  words->addWidget(prgStatus);
  words->addWidget(cmdCancel, 0, Qt::AlignRight);
  words->addStretch();
  auto *all = new QHBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->addWidget(ani1, 0, Qt::AlignVCenter);
  all->addLayout(words, 1);

  timer.setInterval(FrameTime);
  connect(&timer, &QTimer::timeout, this, &frmStatus::Tick);
  connect(cmdCancel, &QPushButton::clicked, this, &frmStatus::reject);
}

void frmStatus::ExportStatus() { Begin(tr("Exporting HTML"), tr("Exporting HTML please wait. This can take a little while...")); }

void frmStatus::PrintStatus() { Begin(tr("Printing..."), tr("Printing Document, please wait. This will take a little while...")); }

void frmStatus::PDFStatus() { Begin(tr("Exporting PDF..."), tr("Exporting PDF File. Please wait, this will take a little while...")); }

void frmStatus::MuhurthaStatus() {
  Begin(tr("Looking for Muhurtha..."), tr("Searching for the first best Muhurtha in the time range. Please wait..."));
}

void frmStatus::Begin(const QString &caption, const QString &text) {
  cancelled = false;
  setWindowTitle(caption);
  lblHead->setText(caption);
  lblStatus->setText(text);
  prgStatus->hide();
  cmdCancel->setEnabled(true);
  adjustSize();
  show();
  LetPaint();
}

void frmStatus::SetProgress(int done, int total) {
  prgStatus->setVisible(total > 0);
  if (total > 0) {
    prgStatus->setRange(0, total);
    prgStatus->setValue(std::clamp(done, 0, total));
  }
  if (sinceFrame.hasExpired(FrameTime)) Tick();
  if (sincePaint.hasExpired(PaintTime) || done >= total) LetPaint();
}

void frmStatus::SetCancelVisible(bool visible) {
  canCancel = visible;
  cmdCancel->setVisible(visible);
  adjustSize();
}

void frmStatus::reject() {
  if (!canCancel || cancelled) return;
  cancelled = true;
  cmdCancel->setEnabled(false);  // the work stops at its next look
}

void frmStatus::showEvent(QShowEvent *event) {
  LoadFrames();
  QDialog::showEvent(event);
  sinceFrame.start();
  timer.start();
}

void frmStatus::hideEvent(QHideEvent *event) {
  timer.stop();
  QDialog::hideEvent(event);
}

void frmStatus::Tick() {
  sinceFrame.restart();
  if (frames.empty()) return;
  frame = (frame + 1) % frames.size();
  ani1->setPixmap(frames[frame]);
}

void frmStatus::LetPaint() {
  QCoreApplication::processEvents();
  sincePaint.restart();
}

void frmStatus::LoadFrames() {
  frames.clear();
  for (int i = 1; i <= FrameCount; ++i) {
    QPixmap picture = Skin::Pixmap(QStringLiteral("wait-%1").arg(i, 2, 10, QLatin1Char('0')), FrameSize, devicePixelRatioF());
    if (!picture.isNull()) frames.push_back(std::move(picture));
  }
  ani1->setVisible(!frames.empty());
  frame = 0;
  if (!frames.empty()) ani1->setPixmap(frames.front());
}
