// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/SpokenParts.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <vector>

namespace {

class PartAccess : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PartAccess(QWidget &owner, SpokenParts &owned, int number) : widget(owner), parts(owned), part(number) {}

  bool isValid() const override { return part < parts.PartCount(); }
  QObject *object() const override { return nullptr; }
  QWindow *window() const override { return widget.window()->windowHandle(); }
  QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(&widget); }
  QAccessibleInterface *child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }
  QAccessibleInterface *childAt(int, int) const override { return nullptr; }
  QString text(QAccessible::Text kind) const override { return isValid() && kind == QAccessible::Name ? parts.PartWords(part) : QString(); }
  void setText(QAccessible::Text, const QString &) override {}
  QRect rect() const override {
    const QRect room = isValid() ? parts.PartRoom(part) : QRect();
    return {widget.mapToGlobal(room.topLeft()), room.size()};
  }
  QAccessible::Role role() const override { return IsListed() ? QAccessible::ListItem : QAccessible::StaticText; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !widget.isVisible();
    state.readOnly = true;
    if (!IsListed()) return state;
    state.focusable = state.selectable = true;
    state.selected = parts.MarkedPart() == part;
    state.focused = state.selected && widget.hasFocus();
    return state;
  }
  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface && IsListed() ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString &action) override {
    if (action == pressAction() && isValid()) parts.PressPart(part);
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  bool IsListed() const { return parts.SpokenRole() == QAccessible::List; }

  QWidget &widget;
  SpokenParts &parts;
  int part;
};

class WholeAccess : public QAccessibleWidget {
 public:
  WholeAccess(QWidget *owner, SpokenParts &owned) : QAccessibleWidget(owner, owned.SpokenRole()), parts(owned) {}
  ~WholeAccess() override {
    for (const QAccessible::Id id : ids) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return parts.PartCount(); }
  QAccessibleInterface *child(int index) const override {
    if (index < 0 || index >= parts.PartCount()) return nullptr;
    while (static_cast<int>(ids.size()) <= index)
      ids.push_back(QAccessible::registerAccessibleInterface(new PartAccess(*widget(), parts, static_cast<int>(ids.size()))));
    return QAccessible::accessibleInterface(ids[static_cast<size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface *sought) const override {
    for (size_t i = 0; i < ids.size(); ++i)
      if (QAccessible::accessibleInterface(ids[i]) == sought) return static_cast<int>(i);
    return -1;
  }
  QAccessibleInterface *childAt(int x, int y) const override { return child(parts.PartAt(widget()->mapFromGlobal(QPoint(x, y)))); }
  QAccessibleInterface *focusChild() const override {
    return widget()->hasFocus() && parts.MarkedPart() >= 0 ? child(parts.MarkedPart()) : QAccessibleWidget::focusChild();
  }

 private:
  SpokenParts &parts;
  mutable std::vector<QAccessible::Id> ids;
};

QAccessibleInterface *Make(const QString &, QObject *object) {
  auto *parts = dynamic_cast<SpokenParts *>(object);
  auto *widget = qobject_cast<QWidget *>(object);
  return parts && widget ? new WholeAccess(widget, *parts) : nullptr;
}

}  // namespace

SpokenParts::SpokenParts() {
  static const bool installed = (QAccessible::installFactory(Make), true);
  (void)installed;
}

int SpokenParts::PartAt(const QPoint &point) const {
  for (int part = 0; part < PartCount(); ++part)
    if (PartRoom(part).contains(point)) return part;
  return -1;
}

void SpokenParts::TellMarked(QWidget &widget, int part) {
  if (!QAccessible::isActive() || !widget.hasFocus() || part < 0) return;
  QAccessibleEvent event(&widget, QAccessible::Focus);
  event.setChild(part);
  QAccessible::updateAccessibility(&event);
}

void SpokenParts::TellParts(QWidget &widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&widget, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&event);
}
