// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

class clsPlanets;

// What a birth Moon is counted to, each with a line that helps to read it, and its tara to the day's Moon.
struct BirthAttributesPage {
  enum class Tone { Plain, Good, Bad };

  struct Row {
    QString lblAttribute, lblAttributeVal, lblAttributeHelp;
    Tone tone = Tone::Plain;
  };

  // Gana, nadi, yoni, varna, vasya, rajju, paya, vihag, tatwa, tara.
  std::array<Row, 10> rows;
  QString lblMoon;  // sign, nakshatra and pada that they rest on
};

BirthAttributesPage FillBirthAttributes(const clsPlanets &birthChart, const clsPlanets &todayChart);
