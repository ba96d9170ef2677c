// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <map>

#include "engine/clsVakya.h"
#include "figures/Members.h"

namespace {

// A copy of the case's chart filled by the siddhantic method, made once a case.
clsPlanets &VakyaChart(Members &members) {
  static std::map<int, std::unique_ptr<clsPlanets>> charts;
  std::unique_ptr<clsPlanets> &chart = charts[members.Of().Number()];
  if (!chart) {
    chart = members.Of().NewCopy();
    chart->CalcVakyaPositions();
  }
  return *chart;
}

}  // namespace

void RegisterVakyaFigures() {
  for (const auto &[name, member] :
       {std::pair("Sun", &clsVakya::Sun), std::pair("Moon", &clsVakya::Moon), std::pair("Mars", &clsVakya::Mars),
        std::pair("Mercury", &clsVakya::Mercury), std::pair("Jupiter", &clsVakya::Jupiter), std::pair("Venus", &clsVakya::Venus),
        std::pair("Saturn", &clsVakya::Saturn), std::pair("Rahu", &clsVakya::Rahu), std::pair("Ketu", &clsVakya::Ketu),
        std::pair("Ascendant", &clsVakya::Ascendant), std::pair("Ayanamsha", &clsVakya::Ayanamsha),
        std::pair("FindKaliDin", &clsVakya::FindKaliDin)})
    Members::Register(QStringLiteral("Vakya.") + QLatin1String(name),
                      [m = member](Members &members, const Question &) { return Value((VakyaChart(members).Vakya().*m)()); });
  Members::Bind("Vakya.Acos", &clsVakya::Acos);
  Members::Bind("Vakya.CalcVakyaAyanamsha", &clsVakya::CalcVakyaAyanamsha);
  Members::Register("Vakya.PlanetLongi", [](Members &members, const Question &question) {
    return Value(VakyaChart(members).PlanetLongi(members.Whole(question.arguments.value(0))));
  });
}
