// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

#include "content/Languages.h"

class Kundali;
class QWidget;
class clsPlanets;

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

  // The language's form of a sign: kinds 1 and 2 the colon, 3 the slash, 4 the minus, 5 the plus; empty for any other.
  // Asked of the chart's words once in a run: a language that is chosen later keeps the signs of the first.
  static QString GetSymbol(int kind, const clsPlanets &chart);

  // The one face of the program, as bold as what it is set in, or as told.
  static QFont Face(double points);
  static QFont Face(double points, bool bold);

 private:
  LanguageRow language;
};
