// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <array>
#include <vector>

class clsPlanets;

// A chart picture as data: the sign of the first house and the planets' short names in their signs.
struct KundaliPage {
  struct Placed {
    int sign = 0;  // 1 Aries to 12 Pisces
    QString name;
    QString fullName = {};  // for a reader who hears it
  };

  int houseNumber = 0;  // sign in the first house
  std::vector<Placed> planets;
  std::array<QString, 13> signName;  // by sign; entry 0 is empty
};

KundaliPage FillBirthKundali(const clsPlanets &birthChart);
KundaliPage FillTransitKundali(const clsPlanets &todayChart);

// The day's chart cast for sunrise at the residence, whatever the analysis time.
KundaliPage FillSunriseKundali(const clsPlanets &todayChart);

// The moment for which the sunrise chart is cast, local time.
QDateTime SunriseMoment(const clsPlanets &todayChart);
