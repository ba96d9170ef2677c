// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QWidget>

#include "reach/Contrast.h"
#include "reach/PaintedText.h"
#include "reach/Walks.h"

namespace {

constexpr int LeastSeen = 6;  // pixels of a line that its scroll area cuts, below which its ground is not told
constexpr double LeastOfText = 4.5, LeastOfPicture = 3;

}  // namespace

Findings WalkInk(QWidget &screen) {
  Findings found;
  const QImage shown = screen.grab().toImage();
  const double scale = shown.devicePixelRatio();
  QList<QWidget *> widgets = screen.findChildren<QWidget *>();
  widgets.prepend(&screen);
  for (QWidget *widget : widgets) {
    if (!widget->isVisibleTo(&screen) || !widget->isEnabled() || (widget != &screen && widget->isWindow())) continue;
    const QRect seen = widget->visibleRegion().boundingRect();
    if (seen.isEmpty()) continue;
    const QPointF origin = widget->mapTo(&screen, QPoint());
    const auto onImage = [&](const QRectF &room) {
      const QRectF there = room.intersected(seen).translated(origin);
      return QRectF(there.topLeft() * scale, there.size() * scale).toAlignedRect();
    };
    const Painted painted = Painted::By(*widget);
    for (const PaintedText &text : painted.texts) {
      const QRect room = onImage(text.room);
      if (room.width() < LeastSeen || room.height() < LeastSeen) continue;
      ++found.seen;
      const QColor ground = Contrast::Ground(shown, room);
      const QColor ink = Contrast::Over(text.colour, ground);
      const double contrast = Contrast::Between(ink, ground);
      if (contrast < LeastOfText)
        found.faults << QStringLiteral("%1: \"%2\" %3 on %4 is %5:1")
                            .arg(NameOf(*widget), text.text, ink.name(), ground.name(), QString::number(contrast, 'f', 2));
    }
    for (const PaintedPicture &picture : painted.pictures) {
      const QRect room = onImage(picture.room);
      if (room.width() < 4 || room.height() < 4) continue;
      ++found.seen;
      const double contrast = Contrast::Strongest(shown, room, Contrast::Ground(shown, room));
      if (contrast < LeastOfPicture)
        found.faults << QStringLiteral("%1: a picture stands out by %2:1").arg(NameOf(*widget), QString::number(contrast, 'f', 2));
    }
  }
  return found;
}
