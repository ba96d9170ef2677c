// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmFontsError.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "content/ShellFonts.h"
#include "content/Theme.h"
#include "platform/FileTools.h"

namespace {

struct FaceFile {
  const char *face;
  const char *file;  // in EPHE/FONTI, without its extension
};
constexpr FaceFile Faces[] = {
    {"Kruti Astro", "KRTIASTR"},
    {"Kruti Hindi Astro", "HINASTRO"},
    {"Kruti Dev Head", "DRDVHEAD"},
    {"Astro 570", "ASTRO570"},
};

}  // namespace

frmFontsError::frmFontsError(AppPaths applicationPaths, QWidget *parent) : QDialog(parent), paths(std::move(applicationPaths)) {
  setObjectName(QStringLiteral("frmFontsError"));
  setWindowTitle(tr("Fonts"));
  const SetFonts fonts = ShellFonts();
  lblText = new QLabel;
  lblText->setObjectName(QStringLiteral("lblText"));
  lblText->setMinimumWidth(420);
  lblText->setWordWrap(true);
  fonts.SetNormalFont(*lblText);
  auto *proceed = new QPushButton(tr("&Proceed"));
  proceed->setObjectName(QStringLiteral("Command1"));
  proceed->setProperty("role", "primary");
  proceed->setDefault(true);
  fonts.SetNormalFont(*proceed);

  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->addWidget(lblText);
  all->addWidget(proceed, 0, Qt::AlignRight);
  connect(proceed, &QPushButton::clicked, this, &QDialog::accept);
}

void frmFontsError::CheckFonts() {
  QStringList failed;
  for (const FaceFile &row : Faces) {
    const QString face = QLatin1String(row.face);
    if (!QFontDatabase::hasFamily(face) && !Install(face, QLatin1String(row.file))) failed << face;
  }
  if (failed.isEmpty()) return;
  failed << QString() << tr("Some Fonts are not installed.") << tr("To continue running the software, click 'Proceed.'");
  lblText->setText(failed.join(QLatin1Char('\n')));
  exec();
}

bool frmFontsError::Install(const QString &face, const QString &file) const {
  // By its bytes: the font engine goes by the extension of a file and does not know this one.
  const QByteArray font = ReadFileIfAny(paths.Ephe(QStringLiteral("FONTI\\") + file + QStringLiteral(".IFT")));
  const int id = font.isEmpty() ? -1 : QFontDatabase::addApplicationFontFromData(font);
  return id >= 0 && QFontDatabase::applicationFontFamilies(id).contains(face, Qt::CaseInsensitive);
}
