// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/CreditsView.h"

#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "analysis/SelvaniDailyMod.h"
#include "content/SetFonts.h"
#include "content/ShellFonts.h"
#include "content/Theme.h"
#include "content/pages/CaptionTable.h"
#include "content/pages/Card.h"
#include "content/pages/PageScroll.h"
#include "engine/Ephemeris.h"
#include "platform/Recordset.h"

namespace {

enum Column { Component, Purpose, Licence };

struct Credit {
  const char *component;  // %1: the version
  const char *purpose;
  const char *licence;
};

constexpr std::array<Credit, 8> Credits{{
    {QT_TRANSLATE_NOOP("CreditsView", "Swiss Ephemeris library %1"),
     QT_TRANSLATE_NOOP("CreditsView", "Positions of the planets, house cusps, ayanamshas"), "AGPL-3.0-or-later"},
    {"Qt %1", QT_TRANSLATE_NOOP("CreditsView", "Screens, pictures, printing and access to the stores"), "LGPL-3.0"},
    {"SQLite %1", QT_TRANSLATE_NOOP("CreditsView", "Files of persons, places and texts"),
     QT_TRANSLATE_NOOP("CreditsView", "Public domain")},
    {QT_TRANSLATE_NOOP("CreditsView", "Liberation fonts"), QT_TRANSLATE_NOOP("CreditsView", "Letters, where Arial is not installed"),
     "OFL-1.1"},
    {QT_TRANSLATE_NOOP("CreditsView", "Texts and words"), QT_TRANSLATE_NOOP("CreditsView", "Every paragraph, written for this program"),
     "AGPL-3.0-or-later"},
    {QT_TRANSLATE_NOOP("CreditsView", "Pictures and symbol fonts"), QT_TRANSLATE_NOOP("CreditsView", "Drawn for this program"),
     "AGPL-3.0-or-later"},
    {QT_TRANSLATE_NOOP("CreditsView", "Cities and countries: GeoNames (geonames.org)"),
     QT_TRANSLATE_NOOP("CreditsView", "Names and coordinates of places, shortened and brought into this program's form"), "CC BY 4.0"},
    {QT_TRANSLATE_NOOP("CreditsView", "Time zones: tz-lookup"), QT_TRANSLATE_NOOP("CreditsView", "The time zone of each place"), "CC0"},
}};
enum Row { EphemerisRow, QtRow, SqliteRow };

QString SqliteVersion(const SelvaniDailyMod &session) {
  const std::shared_ptr<Database> &store = session.OpenStores().personDb;
  if (!store) return {};
  const Recordset row = store->OpenRecordset(QStringLiteral("SELECT sqlite_version() AS Version"));
  return row.IsEmpty() ? QString() : row.Field(QStringLiteral("Version")).toString();
}

}  // namespace

CreditsView::CreditsView(const QString &version, const QString &webAddress, QWidget *parent)
    : PageView(parent), name(new QLabel), maker(new QLabel), licence(new QLabel), answered(new QLabel) {
  setObjectName(QStringLiteral("picCredits"));
  setAccessibleName(tr("Credits"));
  name->setObjectName(QStringLiteral("lblProgram"));
  name->setText(QStringLiteral("Orvani %1").arg(version));
  name->setProperty("role", QStringLiteral("title"));
  maker->setObjectName(QStringLiteral("lblMaker"));
  maker->setText(tr("Daily Vedic astrology, made by Brivanta Works (%1).").arg(webAddress));
  licence->setObjectName(QStringLiteral("lblLicence"));
  licence->setText(
      tr("This program is free software under the GNU Affero General Public License, version 3 or later (AGPL-3.0-or-later). You may use, "
         "study, share and change it; whoever passes it on, or offers it over a network, passes on its source too. It comes without any "
         "warranty."));
  answered->setObjectName(QStringLiteral("lblEphemeris"));
  answered->setProperty("role", QStringLiteral("caption"));
  auto *about = new Card;
  about->Body()->setContentsMargins(Grid::CardPadding, Grid::Gap + 4, Grid::CardPadding, Grid::Gap + 4);
  for (QLabel *line : {name, maker, licence, answered}) {
    line->setWordWrap(true);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    about->Body()->addWidget(line);
  }
  table = new CaptionTable({{.element = QStringLiteral("lblCreditName"), .head = QStringLiteral("lblCreditNameHead"), .strong = true},
                            {.element = QStringLiteral("lblCreditFor"), .head = QStringLiteral("lblCreditForHead")},
                            {.element = QStringLiteral("lblCreditLicence"), .head = QStringLiteral("lblCreditLicenceHead")}},
                           static_cast<int>(Credits.size()));
  table->Head(Component).setText(tr("Component"));
  table->Head(Purpose).setText(tr("What for"));
  table->Head(Licence).setText(tr("Licence"));
  auto *parts = new Card;
  parts->Body()->addWidget(table, 1);
  parts->Body()->addStretch(0);
  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Grid::Gap * 2);
  layout->addWidget(about);
  layout->addWidget(parts, 1);
  layout->addStretch(0);
  PageScroll::Fill(this, content);
  ApplyFonts(ShellFonts());
}

void CreditsView::Fill(SelvaniDailyMod &session) {
  std::array<QString, Credits.size()> versions;
  versions[EphemerisRow] = Ephemeris::Version();
  versions[QtRow] = QString::fromLatin1(qVersion());
  versions[SqliteRow] = SqliteVersion(session);
  for (int row = 0; row < static_cast<int>(Credits.size()); ++row) {
    const Credit &credit = Credits[static_cast<size_t>(row)];
    QString component = tr(credit.component);
    if (component.contains(QStringLiteral("%1"))) component = component.arg(versions[static_cast<size_t>(row)]).trimmed();
    table->Cell(row, Component).setText(component);
    table->Cell(row, Purpose).setText(tr(credit.purpose));
    table->Cell(row, Licence).setText(tr(credit.licence));
  }
  const QString source = Ephemeris::Source();
  answered->setText(tr("The positions on the pages come from: %1.").arg(source));
  answered->setVisible(!source.isEmpty());
}

void CreditsView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetSubHeadFont(*name);
  for (QLabel *line : {maker, licence, answered}) fonts.SetSmallFont(*line);
  table->ApplyFonts(fonts);
}
