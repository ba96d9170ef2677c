// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PlaceCombo.h"

#include <QAbstractListModel>
#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QStandardItemModel>
#include <algorithm>

#include "content/Theme.h"

namespace {

constexpr int MostSuggestions = 12;
enum Role { CityName = Qt::UserRole, RowNumber };

}  // namespace

// The places of one country, without a copy of each as an item.
class PlaceCombo::ListModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Set(std::vector<PlaceSearch::Listed> fresh) {
    beginResetModel();
    listed = std::move(fresh);
    endResetModel();
  }
  int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : static_cast<int>(listed.size()); }
  QVariant data(const QModelIndex &index, int role) const override {
    if (!index.isValid()) return {};
    const PlaceSearch::Listed &place = listed.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::DisplayRole) return place.label;
    if (role == Qt::EditRole) return place.city;
    return role == RowNumber ? QVariant(place.row) : QVariant();
  }

 private:
  std::vector<PlaceSearch::Listed> listed;
};

PlaceCombo::PlaceCombo(QWidget *parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setDuplicatesEnabled(true);  // or Enter would choose the first of several places of one name
  setCompleter(nullptr);
  ChooseOnlyByHand(*this);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(12);
  list = new ListModel(this);
  setModel(list);
  if (auto *rows = qobject_cast<QListView *>(view())) rows->setUniformItemSizes(true);  // there are thousands of them

  suggestions = new QStandardItemModel(this);
  auto *choice = new QCompleter(suggestions, this);
  choice->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  choice->setCompletionRole(CityName);
  choice->setMaxVisibleItems(MostSuggestions);
  // Of the line, not of the list: the suggestions are not rows of the list.
  lineEdit()->setCompleter(choice);
  connect(lineEdit(), &QLineEdit::textEdited, this, &PlaceCombo::Typed);
  connect(choice, qOverload<const QModelIndex &>(&QCompleter::activated), this, [this](const QModelIndex &index) {
    if (!search) return;
    if (const auto place = search->Load(index.data(RowNumber).toLongLong())) {
      ShowCity(place->City);
      emit Matched(*place);
    }
  });
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (!search || index < 0) return;
    if (const auto place = search->Load(itemData(index, RowNumber).toLongLong())) emit Matched(*place);
  });
}

void PlaceCombo::SetSearch(const PlaceSearch *places) {
  search = places;
  const QString text = currentText();
  list->Set({});
  suggestions->clear();
  setEditText(text);
}

void PlaceCombo::ListCountry(const QString &name) {
  const QString text = currentText();
  std::vector<PlaceSearch::Listed> places = search ? search->CitiesOf(name) : std::vector<PlaceSearch::Listed>();
  const auto longest =
      std::max_element(places.begin(), places.end(), [](const auto &a, const auto &b) { return a.label.size() < b.label.size(); });
  widestLabel = longest == places.end() ? QString() : longest->label;
  list->Set(std::move(places));
  setCurrentIndex(-1);
  setEditText(text);
}

// What tells two places apart stands at the end of a line, so a line must not be cut.
void PlaceCombo::showPopup() {
  // It opens at the place that is shown, which was typed more often than chosen here.
  if (itemText(currentIndex()).compare(currentText(), Qt::CaseInsensitive) != 0) {
    const QModelIndexList same = list->match(list->index(0), Qt::EditRole, currentText(), 1, Qt::MatchFixedString);
    const QSignalBlocker quiet(this);
    if (!currentText().isEmpty() && !same.isEmpty()) setCurrentIndex(same.first().row());
  }
  view()->setMinimumWidth(RoomFor(*view(), widestLabel));
  QComboBox::showPopup();
}

int PlaceCombo::RoomFor(const QAbstractItemView &rows, const QString &label) {
  const int text = rows.fontMetrics().horizontalAdvance(label) + 4 * Grid::Gap;
  return text + rows.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void PlaceCombo::ShowCity(const QString &name) {
  lastTyped = name;
  setEditText(name);
  lineEdit()->setCursorPosition(0);
}

void PlaceCombo::ChooseOnlyByHand(QComboBox &editable) { disconnect(editable.lineEdit(), &QLineEdit::editingFinished, &editable, nullptr); }

void PlaceCombo::CompleteInline(QLineEdit &edit, const QString &typed, const QString &whole) {
  if (!whole.startsWith(typed, Qt::CaseInsensitive) || edit.cursorPosition() != typed.size()) return;
  edit.setText(whole);
  edit.setCursorPosition(static_cast<int>(whole.size()));
  edit.cursorBackward(true, static_cast<int>(whole.size() - typed.size()));
}

void PlaceCombo::Typed(const QString &text) {
  // Deleting must not bring back what was deleted.
  const bool isGrowing = text.size() > lastTyped.size() || !lastTyped.startsWith(text, Qt::CaseInsensitive);
  lastTyped = text;
  suggestions->clear();
  if (!search) return;
  QAbstractItemView &rows = *lineEdit()->completer()->popup();
  int room = 0;
  const std::vector<PlaceSearch::Found> found = search->Find(text, country, MostSuggestions);
  for (const PlaceSearch::Found &one : found) {
    auto *item = new QStandardItem(one.Label());
    item->setData(one.place.City, CityName);
    item->setData(one.place.row, RowNumber);
    suggestions->appendRow(item);
    room = std::max(room, RoomFor(rows, item->text()));
  }
  rows.setMinimumWidth(room);
  const auto first = PlaceSearch::FirstOf(found);
  if (!first) {
    emit Unmatched();
    return;
  }
  if (isGrowing && first->byStart) CompleteInline(*lineEdit(), text, first->place.City);
  emit Matched(first->place);
}
