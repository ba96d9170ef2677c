// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/HeadedCard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "content/Theme.h"
#include "content/pages/PageScroll.h"

namespace {

constexpr int Padding = 12;
constexpr int RoomOfCaptions = 34;

}  // namespace

HeadedCard::HeadedCard(QWidget *page, const QString &headName, const QString &captionName, int contentInset)
    : QFrame(page), head(new QLabel(this)), caption(new QLabel(this)), lines(new QVBoxLayout(this)), inset(contentInset) {
  setProperty("role", QStringLiteral("card"));
  auto *around = new QVBoxLayout(page);
  around->setContentsMargins(PageScroll::Ring, PageScroll::Ring, PageScroll::Ring, PageScroll::Ring);
  around->addWidget(this);
  head->setObjectName(headName);
  caption->setObjectName(captionName);
  caption->setProperty("role", QStringLiteral("caption"));
  lines->setContentsMargins(Grid::CardPadding, Padding, Grid::CardPadding, Padding);
  auto *top = new QHBoxLayout;
  top->addWidget(head);
  top->addStretch();
  top->addWidget(caption);
  lines->addLayout(top);
  lines->addStretch();
}

void HeadedCard::PlaceContent(QWidget &content, const QRect &rect) {
  for (QLabel *line : {head, caption}) line->setVisible(rect.top() >= RoomOfCaptions);
  content.setGeometry(rect.intersected(parentWidget()->rect().adjusted(inset, inset, -inset, -inset)));
}
