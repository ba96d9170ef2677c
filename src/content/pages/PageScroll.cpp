// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/PageScroll.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QVBoxLayout>

namespace {

// A pane that the keys scroll. It bears the name of its page.
class PaneAccess : public QAccessibleWidget {
 public:
  explicit PaneAccess(QWidget *pane) : QAccessibleWidget(pane, QAccessible::Pane) {}
  QString text(QAccessible::Text kind) const override {
    QString words = QAccessibleWidget::text(kind);
    for (const QWidget *at = widget(); kind == QAccessible::Name && words.isEmpty() && at; at = at->parentWidget())
      words = at->accessibleName();
    return words;
  }
};

QAccessibleInterface *MakePane(const QString &, QObject *object) {
  auto *pane = qobject_cast<PageScroll *>(object);
  return pane ? new PaneAccess(pane) : nullptr;
}

}  // namespace

PageScroll::PageScroll(QWidget *content, QWidget *parent) : QScrollArea(parent) {
  static const bool told = (QAccessible::installFactory(MakePane), true);
  (void)told;
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
