// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QVBoxLayout;

// A card that fills its page, with a line of two captions on top, for a content that keeps a stated rectangle of the page.
class HeadedCard : public QFrame {
  Q_OBJECT

 public:
  // head, caption: object names of the captions on the left and on the right; inset: what the content keeps from the page's edge, pixels.
  HeadedCard(QWidget *page, const QString &head, const QString &caption, int inset);

  QLabel *Head() const { return head; }
  QLabel *Caption() const { return caption; }
  QVBoxLayout *Lines() const { return lines; }  // what stands below the content goes to its end

  // Puts the content, which lies over this card, in its rectangle of the page as far as the page reaches. The captions give way
  // where the window is too low for them.
  void PlaceContent(QWidget &content, const QRect &rect);

 private:
  QLabel *head, *caption;
  QVBoxLayout *lines;
  int inset;
};
