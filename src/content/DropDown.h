// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>

// A small screen that drops down beside the button that opened it. A click outside it and Esc close it without a choice.
class DropDown : public QDialog {
  Q_OBJECT

 public:
  explicit DropDown(QWidget *parent = nullptr);

  // Below the widget, at its left edge; above it where there is no room below.
  void OpenBelow(const QWidget &anchor);
  // Top left corner in pixels of the desktop; moved as far as needed to be whole on its screen.
  void OpenAt(const QPoint &topLeft);

 protected:
  void paintEvent(QPaintEvent *event) override;
};
