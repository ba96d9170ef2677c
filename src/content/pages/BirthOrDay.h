// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>

class QRadioButton;
class SetFonts;

// Chooses which of the two charts a page shows.
class BirthOrDay : public QWidget {
  Q_OBJECT

 public:
  static constexpr size_t Birth = 0, Day = 1;

  explicit BirthOrDay(QWidget *parent = nullptr);

  size_t Chosen() const;
  void ApplyFonts(const SetFonts &fonts);

 signals:
  void Changed();

 private:
  std::array<QRadioButton *, 2> options{};
};
