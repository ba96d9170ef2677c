// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

#include "content/Languages.h"

class Kundali;
class QWidget;

// The five font roles of a language. Every face is Arial or its metric twin; a language differs by sizes and bold.
class SetFonts {
 public:
  SetFonts() = default;
  explicit SetFonts(const LanguageRow &row) : language(row) {}

  const LanguageRow &Language() const { return language; }

  QFont HeadFont() const;
  QFont NormalFont() const;
  QFont SubHeadFont() const;
  QFont SmallFont() const;
  QFont KundaliFont() const;

  void SetHeadFont(QWidget &target) const;
  void SetNormalFont(QWidget &target) const;
  void SetSubHeadFont(QWidget &target) const;
  void SetSmallFont(QWidget &target) const;
  void SetKundaliFont(Kundali &control) const;

 private:
  static QFont Face(int points, bool bold);

  LanguageRow language;
};
