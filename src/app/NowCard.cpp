// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/NowCard.h"

#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>

#include "app/SkyDial.h"
#include "content/Theme.h"

NowCard::NowCard(QWidget *parent) : QFrame(parent) {
  setObjectName("nowCard");
  setProperty("role", "card");
  setAccessibleName(tr("Now"));
  parts = new QBoxLayout(QBoxLayout::LeftToRight, this);
  parts->setContentsMargins(12, 10, 14, 10);
  parts->setSpacing(12);
  dial = new SkyDial(this);
  parts->addWidget(dial, 4);
  auto *grid = new QGridLayout;
  grid->setHorizontalSpacing(Grid::Gap);
  grid->setVerticalSpacing(4);
  auto *head = new QLabel(tr("Now"), this);
  head->setProperty("role", "head");
  QFont bold = head->font();
  bold.setBold(true);
  head->setFont(bold);
  grid->addWidget(head, 0, 0, 1, 2);
  int line = 1;
  const auto pair = [&](const QString &caption, const char *name, const char *role) {
    auto *left = new QLabel(caption, this);
    left->setProperty("role", "caption");
    auto *right = new QLabel(this);
    right->setObjectName(name);
    right->setProperty("role", role);
    right->setFont(bold);
    right->setWordWrap(true);
    right->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(left, line, 0, Qt::AlignTop);
    grid->addWidget(right, line++, 1);
    return right;
  };
  moon = pair(tr("Moon"), "nowMoon", "value");
  nakshatra = pair(tr("Nakshatra"), "nowNakshatra", "value");
  tithi = pair(tr("Tithi"), "nowTithi", "value");
  next = pair(tr("Next"), "nowNext", "value");
  rahuKaal = pair(tr("Rahu Kaal"), "nowRahuKaal", "bad");
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(line, 1);
  parts->addLayout(grid, 5);
}

void NowCard::Fill(const NowCardPage &page) {
  dial->Show(page);
  moon->setText(page.moon);
  nakshatra->setText(page.nakshatra);
  tithi->setText(page.tithi);
  // The day of the week has its place in the tool tip: the line has room for the name and the time.
  static const QRegularExpression Day(QStringLiteral(" [A-Z][a-z]{2}(?= \\d+:\\d\\d$)"));
  next->setText(QString(page.nextChange).remove(Day));
  next->setToolTip(page.nextChange);
  next->setAccessibleDescription(page.nextChange);
  rahuKaal->setText(page.rahuKaal);
  // Rows that now need another line would otherwise keep the height of the former ones until the next resize.
  parts->invalidate();
  updateGeometry();
}

void NowCard::SetDial(Dial place) {
  dial->setVisible(place != Dial::Hidden);
  const bool above = place == Dial::Above;
  parts->setDirection(above ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  parts->setStretch(0, above ? 1 : 4);
  parts->setStretch(1, above ? 0 : 5);
  dial->setMinimumHeight(above ? 112 : 132);
}
