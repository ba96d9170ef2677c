// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/RichTextPage.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/PageScroll.h"
#include "content/pages/RichTextView.h"

RichTextPage::RichTextPage(QWidget *parent) : QWidget(parent) {
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(PageScroll::Ring, PageScroll::Ring, PageScroll::Ring, PageScroll::Ring);
  auto *card = new QFrame(this);
  card->setProperty("role", "card");
  column->addWidget(card);
  auto *lines = new QVBoxLayout(card);
  lines->setContentsMargins(Grid::CardPadding, 12, Grid::CardPadding, 12);
  auto *top = new QHBoxLayout;
  lblTextDay = new QLabel(card);
  lblTextDay->setObjectName("lblTextDay");
  lblTextFacts = new QLabel(card);
  lblTextFacts->setObjectName("lblTextFacts");
  lblTextFacts->setProperty("role", "caption");
  top->addWidget(lblTextDay);
  top->addStretch();
  top->addWidget(lblTextFacts);
  lines->addLayout(top);
  lines->addStretch();
  rtf = new RichTextView(this);
}

void RichTextPage::SetHeads(const QString &day, const QString &facts) {
  lblTextDay->setText(day);
  lblTextFacts->setText(facts);
}

void RichTextPage::ApplyFonts(const SetFonts &fonts) {
  fonts.SetSubHeadFont(*lblTextDay);
  fonts.SetSmallFont(*lblTextFacts);
}

void RichTextPage::SetTextRect(const QRect &rect) {
  textRect = rect;
  Place();
}

void RichTextPage::Place() {
  // The lines above the text give way where the window is too low for them.
  for (QLabel *line : {lblTextDay, lblTextFacts}) line->setVisible(textRect.top() >= 34);
  rtf->setGeometry(textRect.intersected(rect().adjusted(4, 4, -4, -4)));
}

void RichTextPage::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  Place();
}
