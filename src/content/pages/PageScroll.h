// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QScrollArea>

// Lets a page that is taller or wider than its room be scrolled, by wheel and by keys. Its frame shows the focus.
class PageScroll : public QScrollArea {
  Q_OBJECT

 public:
  static constexpr int Ring = 2;  // pixels around the content that the mark of the focus takes; other pages keep them free

  explicit PageScroll(QWidget *content, QWidget *parent = nullptr);

  // Fills the page with the content.
  static PageScroll *Fill(QWidget *page, QWidget *content);

 protected:
  void showEvent(QShowEvent *event) override;
};
