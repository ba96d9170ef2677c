// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QLabel>

// Words that the mouse can select and copy. A QLabel that is selectable from the start keeps a whole text document, which is laid out
// anew at each change; on pages of several hundred cells that alone takes longer than a frame. Here the document comes with the first
// press.
class SelectableLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 protected:
  void mousePressEvent(QMouseEvent *event) override;
};
