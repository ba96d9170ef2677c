// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include "reach/Contrast.h"
#include "reach/Walks.h"

namespace {

constexpr int MostSteps = 400, MostStepsInside = 80;  // a text browser walks its links before it lets go
constexpr double LeastOfFocus = 3;
constexpr int LeastPixels = 24;

class KeyWalk {
 public:
  explicit KeyWalk(QWidget &walked) : screen(walked) {}
  Findings found;

  void Walk() {
    Round();
    LookForUnreached();
    LookForMouseOnly();
    LookAtMnemonics();
  }

 private:
  QWidget *Focused() const { return screen.focusWidget(); }

  void Press() {
    QWidget *at = Focused();
    QTest::keyClick(at ? at : &screen, Qt::Key_Tab);
    QApplication::processEvents();
  }

  void Round() {
    // From the begin of the order on, so that the one step back to it is the last.
    const auto takesTab = [this](const QWidget *widget) {
      return widget->isVisibleTo(&screen) && widget->isEnabled() && !widget->focusProxy() && (widget->focusPolicy() & Qt::TabFocus) != 0;
    };
    QWidget *begin = screen.nextInFocusChain();
    while (begin != &screen && !takesTab(begin)) begin = begin->nextInFocusChain();
    if (begin != &screen) begin->setFocus(Qt::TabFocusReason);
    QWidget *const first = Focused();
    if (!first) {
      if (CountUsable() > 0) found.faults << QStringLiteral("nothing takes the focus");
      return;
    }
    QWidget *at = first;
    int inside = 0;
    for (int step = 0; step < MostSteps; ++step) {
      if (!reached.contains(at)) LookAtFocus(*at);
      reached.insert(at);
      Press();
      QWidget *next = Focused();
      if (next == at) {
        if (++inside < MostStepsInside && qobject_cast<QTextEdit *>(at)) continue;
        if (reached.size() > 1 || CountUsable() > 1) found.faults << QStringLiteral("%1 does not let Tab out").arg(NameOf(*at));
        return;
      }
      inside = 0;
      if (!next || next == first) return;
      if (reached.contains(next)) {
        found.faults << QStringLiteral("Tab goes round without the first, from %1 to %2").arg(NameOf(*at), NameOf(*next));
        return;
      }
      LookAtOrder(*at, *next);
      at = next;
    }
    found.faults << QStringLiteral("Tab comes to no end");
  }

  // The header, the column at the left and the page are walked one after the other, whatever lies beside what.
  const QWidget *RegionOf(const QWidget &widget) const {
    const auto *window = qobject_cast<const QMainWindow *>(&screen);
    if (!window) return nullptr;
    const QWidget *at = &widget;
    while (at && at->parentWidget() != window->centralWidget()) at = at->parentWidget();
    return at;
  }

  void LookAtOrder(const QWidget &from, const QWidget &to) {
    if (RegionOf(from) != RegionOf(to)) return;
    if (from.isAncestorOf(&to)) return;
    const QRect a(from.mapTo(&screen, QPoint()), from.size()), b(to.mapTo(&screen, QPoint()), to.size());
    const bool rightOf = b.left() >= a.right() - 2, below = b.top() >= a.bottom() - 2;
    const bool sameRow = b.center().y() >= a.top() && b.center().y() <= a.bottom();
    const bool inRow = sameRow && b.left() >= a.left();
    const bool inside = a.contains(b.center()) || b.contains(a.center());
    if (rightOf || below || inRow || inside) return;
    found.faults << QStringLiteral("after %1 the focus goes back to %2").arg(NameOf(from), NameOf(to));
  }

  void LookAtFocus(QWidget &widget) {
    ++found.seen;
    // A known widget of the frame around the pages is the same on each of them.
    static QSet<QString> known;
    const QString name = RegionOf(widget) && !widget.objectName().isEmpty() ? NameOf(widget) : QString();
    if (!name.isEmpty() && known.contains(name)) return;
    if (!name.isEmpty()) known.insert(name);
    const QRect room = QRect(widget.mapTo(&screen, QPoint()), widget.size()).adjusted(-6, -6, 6, 6).intersected(screen.rect());
    const QImage with = screen.grab(room).toImage();
    widget.clearFocus();
    const QImage without = screen.grab(room).toImage();
    widget.setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    int changed = 0;
    for (int y = 0; y < with.height(); ++y)
      for (int x = 0; x < with.width(); ++x)
        if (with.pixel(x, y) != without.pixel(x, y) && Contrast::Between(with.pixel(x, y), without.pixel(x, y)) >= LeastOfFocus) ++changed;
    if (changed < LeastPixels)
      found.faults << QStringLiteral("the focus on %1 does not show (%2 pixels of 3:1)").arg(NameOf(widget)).arg(changed);
  }

  bool IsUsable(const QWidget &widget) const {
    if (!widget.isVisibleTo(&screen) || !widget.isEnabled() || widget.isWindow() || widget.visibleRegion().isEmpty() || widget.focusProxy())
      return false;
    const QWidget *parent = widget.parentWidget();
    for (const QWidget *at = parent; at && at != &screen; at = at->parentWidget())
      if (qobject_cast<const QCalendarWidget *>(at) || qobject_cast<const QComboBox *>(at) || qobject_cast<const QLineEdit *>(at) ||
          qobject_cast<const QTabBar *>(at) || qobject_cast<const QAbstractItemView *>(at))
        return false;  // parts of a control that has keys for them
    if (qobject_cast<const QScrollBar *>(&widget)) return false;
    return (widget.focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QLineEdit *>(&widget) ||
           qobject_cast<const QAbstractItemView *>(&widget) || qobject_cast<const QTextEdit *>(&widget);
  }

  int CountUsable() const {
    int count = 0;
    for (const QWidget *widget : screen.findChildren<QWidget *>()) count += IsUsable(*widget);
    return count;
  }

  bool IsReached(const QWidget *widget) const {
    if (reached.contains(const_cast<QWidget *>(widget))) return true;
    const auto *calendar = qobject_cast<const QCalendarWidget *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    for (const QWidget *at : reached) {
      if (calendar && calendar->isAncestorOf(at)) return true;
      // The arrows go through the group.
      const auto *other = qobject_cast<const QAbstractButton *>(at);
      if (button && other && button->isCheckable() &&
          (button->group() ? button->group() == other->group() : button->autoExclusive() && other->parent() == button->parent()))
        return true;
    }
    return false;
  }

  void LookForUnreached() {
    for (const QWidget *widget : screen.findChildren<QWidget *>())
      if (IsUsable(*widget) && !IsReached(widget)) found.faults << QStringLiteral("%1 is not reached by Tab").arg(NameOf(*widget));
  }

  // What shows the hand of a link under the pointer does something when it is pressed.
  void LookForMouseOnly() {
    for (const QWidget *widget : screen.findChildren<QWidget *>()) {
      if (!widget->isVisibleTo(&screen) || !widget->isEnabled() || !widget->testAttribute(Qt::WA_SetCursor) ||
          widget->cursor().shape() != Qt::PointingHandCursor)
        continue;
      bool hasKey = false;
      for (const QWidget *at : reached) hasKey |= at == widget || at->isAncestorOf(widget) || widget->isAncestorOf(at) || IsReached(widget);
      if (!hasKey) found.faults << QStringLiteral("%1 is for the mouse alone").arg(NameOf(*widget));
    }
  }

  void LookAtMnemonics() {
    QHash<QString, QString> taken;
    const auto take = [&](const QString &text) {
      const QString key = QKeySequence::mnemonic(text).toString();
      if (key.isEmpty()) return;
      if (taken.contains(key)) found.faults << QStringLiteral("%1 stands for \"%2\" and for \"%3\"").arg(key, taken.value(key), text);
      taken.insert(key, text);
    };
    for (const QWidget *widget : screen.findChildren<QWidget *>()) {
      if (!widget->isVisibleTo(&screen) || !widget->isEnabled() || widget->visibleRegion().isEmpty()) continue;
      if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) take(button->text());
      if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy()) take(label->text());
      if (const auto *group = qobject_cast<const QGroupBox *>(widget)) take(group->title());
      if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
        for (int tab = 0; tab < tabs->count(); ++tab) take(tabs->tabText(tab));
    }
  }

  QWidget &screen;
  QSet<QWidget *> reached;
};

}  // namespace

Findings WalkKeys(QWidget &screen) {
  KeyWalk walk(screen);
  walk.Walk();
  return walk.found;
}
