// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PageScroll.h"

#include <QCoreApplication>
#include <QEvent>
#include <QVBoxLayout>

PageScroll::PageScroll(QWidget *content, QWidget *parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setWidget(content);
  content->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  setFocusPolicy(Qt::TabFocus);
}

PageScroll *PageScroll::Fill(QWidget *page, QWidget *content) {
  auto *layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  auto *scroll = new PageScroll(content, page);
  scroll->setAccessibleName(page->accessibleName());
  layout->addWidget(scroll);
  return scroll;
}

// What was filled, given other fonts or rearranged while it was hidden has told its layouts nothing of its new size.
void PageScroll::showEvent(QShowEvent *event) {
  QScrollArea::showEvent(event);
  for (QLayout *layout : widget()->findChildren<QLayout *>()) layout->invalidate();
  QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}
