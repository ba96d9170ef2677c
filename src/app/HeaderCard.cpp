// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/HeaderCard.h"

#include <QHBoxLayout>
#include <QMouseEvent>

#include "app/ElidedLabel.h"
#include "chart/ImageButton.h"
#include "content/Skin.h"

HeaderCard::HeaderCard(const char *mainName, const char *secondName, const char *buttonName, QWidget *parent) : QFrame(parent) {
  setProperty("role", "headercard");
  setCursor(Qt::PointingHandCursor);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(14, 4, 8, 4);
  auto *lines = new QVBoxLayout;
  lines->setSpacing(2);
  mainLine = new ElidedLabel(this);
  mainLine->setObjectName(mainName);
  secondLine = new ElidedLabel(this);
  secondLine->setObjectName(secondName);
  secondLine->setProperty("role", "caption");
  mainLine->SetMaxLines(2);
  secondLine->SetMaxLines(3);
  lines->addStretch();
  lines->addWidget(mainLine);
  lines->addWidget(secondLine);
  lines->addStretch();
  row->addLayout(lines, 1);
  button = new ImageButton(this);
  button->setObjectName(buttonName);
  Skin::Dress(*button, QLatin1String(buttonName));
  button->setFixedSize(30, 30);
  connect(button, &QAbstractButton::clicked, this, &HeaderCard::Opened);
  row->addWidget(button);
}

void HeaderCard::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) emit Opened();
}
