// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/SpokenTable.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <optional>

namespace {

QAccessibleInterface *Told(QLabel *label) { return label ? QAccessible::queryAccessibleInterface(label) : nullptr; }

QString WordsOf(const QLabel *label) {
  if (!label) return {};
  return label->accessibleName().isEmpty() ? label->text() : label->accessibleName();
}

// A table is chosen from by no one: all that selects is left out.
class TableAccess : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  TableAccess(QWidget *owner, const SpokenTable &told) : QAccessibleWidget(owner, QAccessible::Table), table(told) {}

  // A table without a name of its own belongs to the nearest thing that has one, mostly its page.
  QString text(QAccessible::Text kind) const override {
    QString own = QAccessibleWidget::text(kind);
    for (const QWidget *at = widget(); kind == QAccessible::Name && own.isEmpty() && at; at = at->parentWidget())
      own = at->accessibleName();
    return own;
  }
  // What is no cell and no head is left out.
  int childCount() const override { return static_cast<int>(Labels().size()); }
  QAccessibleInterface *child(int index) const override { return Told(Labels().value(index)); }
  int indexOfChild(const QAccessibleInterface *sought) const override {
    return static_cast<int>(Labels().indexOf(qobject_cast<QLabel *>(sought->object())));
  }
  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this) : QAccessibleWidget::interface_cast(type);
  }

  QAccessibleInterface *cellAt(int row, int column) const override {
    const bool inside = row >= 0 && row < table.SpokenRows() && column >= 0 && column < table.SpokenColumns();
    return inside ? Told(table.SpokenCell(row, column)) : nullptr;
  }
  int rowCount() const override { return table.SpokenRows(); }
  int columnCount() const override { return table.SpokenColumns(); }
  QString columnDescription(int column) const override { return WordsOf(table.SpokenColumnHead(column)); }
  QString rowDescription(int row) const override { return WordsOf(table.SpokenRowHead(row)); }
  QAccessibleInterface *caption() const override { return nullptr; }
  QAccessibleInterface *summary() const override { return nullptr; }
  int selectedCellCount() const override { return 0; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<QAccessibleInterface *> selectedCells() const override { return {}; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent *) override {}

 private:
  QList<QLabel *> Labels() const {
    QList<QLabel *> labels;
    for (int column = 0; column < table.SpokenColumns(); ++column)
      if (QLabel *head = table.SpokenColumnHead(column)) labels << head;
    for (int row = 0; row < table.SpokenRows(); ++row) {
      QLabel *head = table.SpokenRowHead(row);
      if (head && (table.SpokenColumns() == 0 || head != table.SpokenCell(row, 0))) labels << head;
      for (int column = 0; column < table.SpokenColumns(); ++column) labels << table.SpokenCell(row, column);
    }
    return labels;
  }

  const SpokenTable &table;
};

struct Place {
  int row = -1, column = -1;  // -1: a head
};

std::optional<Place> PlaceOf(const SpokenTable &table, const QLabel *label) {
  for (int row = 0; row < table.SpokenRows(); ++row)
    for (int column = 0; column < table.SpokenColumns(); ++column)
      if (table.SpokenCell(row, column) == label) return Place{row, column};
  for (int row = 0; row < table.SpokenRows(); ++row)
    if (table.SpokenRowHead(row) == label) return Place{row, -1};
  for (int column = 0; column < table.SpokenColumns(); ++column)
    if (table.SpokenColumnHead(column) == label) return Place{-1, column};
  return std::nullopt;
}

QAccessible::Role RoleOf(const Place &place) {
  return place.row < 0 ? QAccessible::ColumnHeader : place.column < 0 ? QAccessible::RowHeader : QAccessible::Cell;
}

class CellAccess : public QAccessibleWidget, public QAccessibleTableCellInterface {
 public:
  CellAccess(QLabel *shown, const SpokenTable &owner, Place where)
      : QAccessibleWidget(shown, RoleOf(where)), label(shown), told(owner), place(where) {}

  QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? WordsOf(label) : QAccessibleWidget::text(kind); }
  void *interface_cast(QAccessible::InterfaceType type) override {
    const bool isCell = place.row >= 0 && place.column >= 0;
    return type == QAccessible::TableCellInterface && isCell ? static_cast<QAccessibleTableCellInterface *>(this)
                                                             : QAccessibleWidget::interface_cast(type);
  }

  int rowIndex() const override { return place.row; }
  int columnIndex() const override { return place.column; }
  int rowExtent() const override { return 1; }
  int columnExtent() const override { return 1; }
  bool isSelected() const override { return false; }
  QList<QAccessibleInterface *> columnHeaderCells() const override { return Heads(told.SpokenColumnHead(place.column)); }
  QList<QAccessibleInterface *> rowHeaderCells() const override { return Heads(told.SpokenRowHead(place.row)); }
  QAccessibleInterface *table() const override { return parent(); }

 private:
  QList<QAccessibleInterface *> Heads(QLabel *head) const {
    return head && head != label ? QList<QAccessibleInterface *>{Told(head)} : QList<QAccessibleInterface *>();
  }

  QLabel *label;
  const SpokenTable &told;
  Place place;
};

QAccessibleInterface *Make(const QString &, QObject *object) {
  auto *widget = qobject_cast<QWidget *>(object);
  if (!widget) return nullptr;
  if (const auto *table = dynamic_cast<const SpokenTable *>(object)) return new TableAccess(widget, *table);
  auto *label = qobject_cast<QLabel *>(widget);
  const auto *table = label ? dynamic_cast<const SpokenTable *>(label->parentWidget()) : nullptr;
  if (!table) return nullptr;
  const std::optional<Place> place = PlaceOf(*table, label);
  return place ? new CellAccess(label, *table, *place) : nullptr;
}

}  // namespace

SpokenTable::SpokenTable() {
  static const bool installed = (QAccessible::installFactory(Make), true);
  (void)installed;
}
