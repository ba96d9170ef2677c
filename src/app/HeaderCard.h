// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFrame>

class ElidedLabel;
class ImageButton;

// A card of the header: a main line, a second line, and a drop button. A click anywhere on it counts as the button.
class HeaderCard : public QFrame {
  Q_OBJECT

 public:
  HeaderCard(const char *mainName, const char *secondName, const char *buttonName, QWidget *parent);

  ElidedLabel *Main() const { return mainLine; }
  ElidedLabel *Second() const { return secondLine; }
  ImageButton *Button() const { return button; }

 signals:
  void Opened();

 protected:
  void mouseReleaseEvent(QMouseEvent *event) override;

 private:
  ElidedLabel *mainLine, *secondLine;
  ImageButton *button;
};
