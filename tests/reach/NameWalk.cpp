// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QCalendarWidget>
#include <QLabel>
#include <QMetaEnum>
#include <QTextBrowser>
#include <QWidget>

#include "reach/Walks.h"

namespace {

QString RoleName(QAccessible::Role role) { return QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role)); }

// What is spoken by its name alone.
bool NeedsName(QAccessible::Role role) {
  switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::Cell:
    case QAccessible::Chart:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::Dialog:
    case QAccessible::EditableText:
    case QAccessible::Graphic:
    case QAccessible::Link:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::ProgressBar:
    case QAccessible::RadioButton:
    case QAccessible::SpinBox:
    case QAccessible::StaticText:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::TreeItem:
    case QAccessible::Window: return true;
    default: return false;
  }
}

class NameWalk {
 public:
  Findings found;

  void Walk(QAccessibleInterface &thing) {
    const QAccessible::State state = thing.state();
    if (state.invisible || !thing.isValid()) return;
    Look(thing, state);
    const bool manyItems = thing.role() == QAccessible::List || thing.role() == QAccessible::Tree;
    const int count = manyItems ? std::min(thing.childCount(), 12) : thing.childCount();
    for (int i = 0; i < count; ++i)
      if (QAccessibleInterface *child = thing.child(i)) Walk(*child);
  }

 private:
  void Fault(const QAccessibleInterface &thing, const QString &what) {
    const auto *widget = qobject_cast<QWidget *>(thing.object());
    const QAccessibleInterface *parent = thing.parent();
    const QString who = widget                       ? NameOf(*widget)
                        : parent && parent->object() ? QStringLiteral("part of ") + NameOf(*qobject_cast<QWidget *>(parent->object()))
                                                     : QString();
    found.faults << QStringLiteral("%1 (%2): %3").arg(who, RoleName(thing.role()), what);
  }

  void Look(QAccessibleInterface &thing, const QAccessible::State &state) {
    ++found.seen;
    const auto *widget = qobject_cast<QWidget *>(thing.object());
    const QAccessible::Role role = thing.role();
    const QString name = thing.text(QAccessible::Name).trimmed();
    const bool frame = role == QAccessible::ScrollBar || role == QAccessible::TitleBar || role == QAccessible::Grip;
    // A text that the mouse can mark is a text all the same.
    const bool isText =
        qobject_cast<const QTextBrowser *>(widget) || (qobject_cast<const QLabel *>(widget) && !(widget->focusPolicy() & Qt::TabFocus));
    const bool usable = state.focusable && !frame && !isText && !(widget && widget->focusProxy());
    if (name.isEmpty() && (usable || NeedsName(role)) && !IsEmptyLabel(widget) && !IsPartOfNamed(thing))
      Fault(thing, QStringLiteral("has no name"));
    if (usable &&
        (role == QAccessible::Client || role == QAccessible::NoRole || role == QAccessible::StaticText || role == QAccessible::Grouping))
      Fault(thing, QStringLiteral("can be used, and says not what it is"));
    if (name.contains(QLatin1Char('<')) && name.contains(QLatin1Char('>'))) Fault(thing, QStringLiteral("is named by markup: ") + name);
    if (widget && PaintsAlone(*widget) && role == QAccessible::Client) Fault(thing, QStringLiteral("is drawn, and says nothing"));
    if (const auto *label = qobject_cast<const QLabel *>(widget))
      if (label->text().isEmpty() && !label->pixmap(Qt::ReturnByValue).isNull() && label->accessibleName().isEmpty())
        Fault(thing, QStringLiteral("is a picture without words"));
    if (role == QAccessible::Graphic || role == QAccessible::Chart)
      if (thing.text(QAccessible::Description).isEmpty() && thing.childCount() == 0 && !qobject_cast<const QLabel *>(widget))
        Fault(thing, QStringLiteral("does not tell what it shows"));
    if (role == QAccessible::Table && !qobject_cast<const QCalendarWidget *>(widget)) LookAtTable(thing);
  }

  // A field of a figure that the page leaves empty today.
  static bool IsEmptyLabel(const QWidget *widget) {
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull();
  }

  // The list and the line of a combo box, the frame in a scroll area: their owner has the name.
  static bool IsPartOfNamed(const QAccessibleInterface &thing) {
    const QAccessibleInterface *parent = thing.parent();
    return parent && parent->role() == QAccessible::ComboBox && !parent->text(QAccessible::Name).isEmpty();
  }

  // A widget of this program without children that draws itself.
  static bool PaintsAlone(const QWidget &widget) {
    const QByteArray type = widget.metaObject()->className();
    return !type.startsWith('Q') && widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).isEmpty();
  }

  void LookAtTable(QAccessibleInterface &thing) {
    QAccessibleTableInterface *table = thing.tableInterface();
    if (!table) return Fault(thing, QStringLiteral("is a table without cells"));
    bool anyText = false;
    for (int row = 0; row < std::min(table->rowCount(), 8); ++row)
      for (int column = 0; column < table->columnCount(); ++column) {
        QAccessibleInterface *cell = table->cellAt(row, column);
        QAccessibleTableCellInterface *place = cell ? cell->tableCellInterface() : nullptr;
        if (!place || place->rowIndex() != row || place->columnIndex() != column) {
          Fault(thing, QStringLiteral("has no cell in row %1, column %2").arg(row).arg(column));
          return;
        }
        anyText |= !cell->text(QAccessible::Name).isEmpty();
      }
    if (table->rowCount() > 0 && !anyText) Fault(thing, QStringLiteral("has cells without any text"));
  }
};

}  // namespace

Findings WalkNames(QWidget &screen) {
  NameWalk walk;
  if (QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&screen)) walk.Walk(*root);
  return walk.found;
}
