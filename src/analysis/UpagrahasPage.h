// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// The seventeen upagrahas, in both ways of casting those that follow from the time of day: at the end of their part
// (mode 1) and at its beginning; and the points of Jaimini.
struct UpagrahasPage {
  static constexpr int Points = 17;

  struct Row {
    QString lblUpaName, lblUpaRashi, lblUpaDegrees, lblUpaNak, lblUpaPada;
  };
  struct Mode {
    QString title;
    bool chosen = false;           // by the user's setting
    std::array<Row, Points> rows;  // upagraha number less 1
  };

  std::array<Mode, 2> modes;  // end, beginning
  QString lblNameHead, lblRashiHead, lblDegreesHead, lblNakHead, lblPadaHead;
  QString chosenWord;
  QString lblJaimini;  // the atmakaraka with its sign, and the karakamsa, the arudha lagna and the upapada

  // With a word at the chosen one.
  QString TitleOf(const Mode &mode) const { return mode.chosen ? QStringLiteral("%1 (%2)").arg(mode.title, chosenWord) : mode.title; }
};

UpagrahasPage FillUpagrahas(const clsPlanets &chart);

// Degrees by upagraha number less 1, whatever the user's setting says.
std::array<double, UpagrahasPage::Points> UpagrahasInMode(const clsPlanets &chart, int mode);
