// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/RichTextPage.h"

#include <QLabel>

#include "content/SetFonts.h"
#include "content/pages/HeadedCard.h"
#include "content/pages/RichTextView.h"

namespace {

constexpr int TextInset = 4;

}  // namespace

RichTextPage::RichTextPage(QWidget *parent) : QWidget(parent) {
  card = new HeadedCard(this, QStringLiteral("lblTextDay"), QStringLiteral("lblTextFacts"), TextInset);
  rtf = new RichTextView(this);
}

void RichTextPage::SetHeads(const QString &day, const QString &facts) {
  card->Head()->setText(day);
  card->Caption()->setText(facts);
}

void RichTextPage::ApplyFonts(const SetFonts &fonts) {
  fonts.SetSubHeadFont(*card->Head());
  fonts.SetSmallFont(*card->Caption());
}

void RichTextPage::SetTextRect(const QRect &rect) {
  textRect = rect;
  card->PlaceContent(*rtf, textRect);
}

void RichTextPage::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  card->PlaceContent(*rtf, textRect);
}
