// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>

class HeadedCard;
class RichTextView;
class SetFonts;

// The card around the rich text area of the prediction pages, which keeps its stated rectangle of the main screen.
class RichTextPage : public QWidget {
  Q_OBJECT

 public:
  explicit RichTextPage(QWidget *parent = nullptr);

  RichTextView &Text() { return *rtf; }
  // What the text rests on, above it: the day on the left, its facts on the right.
  void SetHeads(const QString &day, const QString &facts);
  void ApplyFonts(const SetFonts &fonts);
  void SetTextRect(const QRect &rect);

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  QRect textRect;
  HeadedCard *card;
  RichTextView *rtf;
};
