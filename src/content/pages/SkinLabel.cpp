// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/SkinLabel.h"

#include <QPainter>

#include "content/Skin.h"

void SkinLabel::SetPicture(const QString &name) {
  picture = Skin::Picture(name);
  updateGeometry();
  update();
}

QSize SkinLabel::sizeHint() const {
  const int side = picture.isNull() ? 0 : fontMetrics().height() * 5 / 4;
  return {side, side};
}

void SkinLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  QRect room(QPoint(), sizeHint());
  room.moveCenter(rect().center());
  picture.paint(&painter, room);
}
