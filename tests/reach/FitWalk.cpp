// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QScrollBar>
#include <QWidget>

#include "app/ElidedLabel.h"
#include "reach/PaintedText.h"
#include "reach/Walks.h"

namespace {

// Letters may lean a little out of their box, and a line's box is taller than its letters.
constexpr double AcrossSlack = 1.6, DownSlack = 2.6;

struct Placed {
  QString text, owner;
  QRectF room;
};

bool Scrolls(const QWidget &widget) {
  const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
  return area && area->viewport() == &widget;
}

class FitWalk {
 public:
  explicit FitWalk(QWidget &walked) : screen(walked) {}
  Findings found;

  void Walk() {
    QList<QWidget *> widgets = screen.findChildren<QWidget *>();
    widgets.prepend(&screen);
    for (QWidget *widget : widgets) {
      if (!widget->isVisibleTo(&screen) || (widget != &screen && widget->isWindow())) continue;
      ++found.seen;
      LookAtPlace(*widget);
      LookAtPainting(*widget);
    }
    LookAtNeighbours();
  }

 private:
  void LookAtPlace(const QWidget &widget) {
    const auto *bar = qobject_cast<const QScrollBar *>(&widget);
    if (bar && bar->orientation() == Qt::Horizontal && bar->maximum() > bar->minimum())
      found.faults << QStringLiteral("%1 has to be moved sideways").arg(NameOf(*bar->parentWidget()));
    const QWidget *parent = widget.parentWidget();
    if (&widget == &screen || !parent || Scrolls(*parent) || Scrolls(widget)) return;
    if (parent->rect().adjusted(-1, -1, 1, 1).contains(widget.geometry()) || widget.size().isEmpty()) return;
    const QRect at = widget.geometry();
    found.faults << QStringLiteral("%1 reaches out of its parent: %2,%3 %4x%5 in %6x%7")
                        .arg(NameOf(widget))
                        .arg(at.x())
                        .arg(at.y())
                        .arg(at.width())
                        .arg(at.height())
                        .arg(parent->width())
                        .arg(parent->height());
  }

  void LookAtPainting(QWidget &widget) {
    const QRect seen = widget.visibleRegion().boundingRect();
    if (seen.isEmpty()) return;
    const bool scrolls = Scrolls(widget);
    const QRectF room = QRectF(widget.rect()).adjusted(-AcrossSlack, -DownSlack, AcrossSlack, DownSlack);
    const Painted painted = Painted::By(widget);
    for (const PaintedText &text : painted.texts) {
      const bool across = text.room.left() < room.left() || text.room.right() > room.right();
      const bool down = text.room.top() < room.top() || text.room.bottom() > room.bottom();
      if (!qobject_cast<QLineEdit *>(&widget) && (scrolls ? across && text.room.intersects(room) : across || down))
        found.faults << QStringLiteral("%1: \"%2\" is cut").arg(NameOf(widget), text.text);
      if (text.text.endsWith(QChar(0x2026)) && !(qobject_cast<ElidedLabel *>(&widget) && !widget.toolTip().isEmpty()))
        found.faults << QStringLiteral("%1: \"%2\" is elided").arg(NameOf(widget), text.text);
      const QRectF visible = text.room.intersected(seen);
      if (!visible.isEmpty()) placed.push_back({text.text, NameOf(widget), visible.translated(widget.mapTo(&screen, QPoint()))});
    }
    const double scale = widget.devicePixelRatioF();
    for (const PaintedPicture &picture : painted.pictures)
      if (picture.pixels.width() + 1 < picture.room.width() * scale || picture.pixels.height() + 1 < picture.room.height() * scale)
        found.faults << QStringLiteral("%1: a picture of %2x%3 pixels is stretched over %4x%5")
                            .arg(NameOf(widget))
                            .arg(picture.pixels.width())
                            .arg(picture.pixels.height())
                            .arg(picture.room.width() * scale)
                            .arg(picture.room.height() * scale);
  }

  // The bodies of the letters, without the air above and below them, must keep clear of each other.
  void LookAtNeighbours() {
    const auto body = [](const QRectF &room) { return room.adjusted(1, room.height() * 0.22, -1, -room.height() * 0.22); };
    for (size_t a = 0; a < placed.size(); ++a)
      for (size_t b = a + 1; b < placed.size(); ++b) {
        // A marked text is drawn a second time in another colour.
        if (placed[a].owner == placed[b].owner && placed[a].text == placed[b].text && placed[a].room == placed[b].room) continue;
        const QRectF both = body(placed[a].room).intersected(body(placed[b].room));
        if (both.width() < 1.5 || both.height() < 1.5) continue;
        found.faults << QStringLiteral("%1: \"%2\" and %3: \"%4\" lie over each other")
                            .arg(placed[a].owner, placed[a].text, placed[b].owner, placed[b].text);
      }
  }

  QWidget &screen;
  std::vector<Placed> placed;
};

}  // namespace

Findings WalkFit(QWidget &screen) {
  FitWalk walk(screen);
  walk.Walk();
  return walk.found;
}
