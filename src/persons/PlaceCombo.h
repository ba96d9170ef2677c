// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QComboBox>

#include "persons/PlaceSearch.h"

class QStandardItemModel;

// A list of places with free typing: what is typed is completed to the first match, and a list below tells the places of like names
// apart by region and country.
class PlaceCombo : public QComboBox {
  Q_OBJECT

 public:
  explicit PlaceCombo(QWidget *parent = nullptr);

  // The search must outlive its use here; the list is emptied.
  void SetSearch(const PlaceSearch *places);
  // The country that typing is narrowed to; empty for the whole world.
  void SetCountry(const QString &name) { country = name; }
  // Fills the drop-down list with the places of a country, of the whole world for an empty text. The text stays.
  void ListCountry(const QString &name);
  void ShowCity(const QString &name);  // tells nobody
  void showPopup() override;

  // The toolkit takes a text that stands in the list for a fresh choice each time the field is left, and a fresh choice replaces what
  // was written beside it. After this only a line that is clicked, or chosen by its key, is a choice.
  static void ChooseOnlyByHand(QComboBox &editable);

  // Completes a typed start to the whole text: the part that was not typed is selected, so that typing on replaces it.
  static void CompleteInline(QLineEdit &edit, const QString &typed, const QString &whole);

 signals:
  void Matched(const Place &place);
  void Unmatched();

 private:
  void Typed(const QString &text);
  static int RoomFor(const QAbstractItemView &rows, const QString &label);  // the width of a list that shows it whole

  const PlaceSearch *search = nullptr;
  class ListModel;
  ListModel *list;
  QStandardItemModel *suggestions;
  QString country;
  QString lastTyped;
  QString widestLabel;  // of the drop-down list
};
