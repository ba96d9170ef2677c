// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/SelectableLabel.h"

void SelectableLabel::mousePressEvent(QMouseEvent *event) {
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  QLabel::mousePressEvent(event);
}
