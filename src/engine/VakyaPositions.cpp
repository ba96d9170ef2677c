// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Fills a chart's longitudes by the siddhantic method instead of the ephemeris. Table: VakyaBodies.
#include <array>

#include "engine/clsPlanets.h"
#include "engine/clsVakya.h"

namespace {

struct VakyaBody {
  double (clsVakya::*longitude)() const;
  int index;  // the body one hour later has the index 13 higher
};
constexpr std::array<VakyaBody, 9> VakyaBodies{{
    {&clsVakya::Jupiter, 5},
    {&clsVakya::Ketu, 9},
    {&clsVakya::Mars, 4},
    {&clsVakya::Mercury, 2},
    {&clsVakya::Moon, 7},
    {&clsVakya::Rahu, 8},
    {&clsVakya::Saturn, 6},
    {&clsVakya::Sun, 1},
    {&clsVakya::Venus, 3},
}};

}  // namespace

clsVakya &clsPlanets::Vakya() const {
  if (!vakya) vakya = std::make_unique<clsVakya>();
  return *vakya;
}

void clsPlanets::CalcVakyaPositions() {
  const ::clsPerson &p = clsPerson();
  for (const int hoursLater : {1, 0}) {
    Vakya().Calculate(p.Day(), p.Month(), p.Year(), p.Hour() + hoursLater, p.Minutes(), p.seconds(), p.LatDeg(), p.LatMT(), p.LongDeg(),
                      p.LongMT());
    for (const VakyaBody &body : VakyaBodies) SetPlanetLongi(body.index + 13 * hoursLater, (Vakya().*body.longitude)());
  }
  SetPlanetLongi(0, Vakya().Ascendant());
}

// The ayanamsha of the person's moment; seconds take no part in a chart.
double clsPlanets::VakyaAyanamsha() const {
  const ::clsPerson &p = clsPerson();
  Vakya().SetMoment(p.Day(), p.Month(), p.Year(), p.Hour(), p.Minutes(), 0);
  return clsVakya::CalcVakyaAyanamsha(Vakya().FindKaliDin());
}
