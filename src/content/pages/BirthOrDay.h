// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>

class QComboBox;
class QRadioButton;
class SetFonts;

// Chooses which of the two charts a page shows, and where asked for, what of it.
class BirthOrDay : public QWidget {
  Q_OBJECT

 public:
  static constexpr size_t Birth = 0, Day = 1;

  explicit BirthOrDay(QWidget *parent = nullptr);

  size_t Chosen() const;

  // A list beside it, of which Changed tells too. element: its object name.
  QComboBox *AddList(const QString &element, const QString &accessibleName);
  // What the list offers. What was chosen in it stays chosen; `first` the first time. Tells nothing.
  void SetList(const QStringList &names, int first);

  void ApplyFonts(const SetFonts &fonts);

 signals:
  void Changed();

 private:
  std::array<QRadioButton *, 2> options{};
  QComboBox *list = nullptr;
};
