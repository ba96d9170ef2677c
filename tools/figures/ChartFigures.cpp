// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

void RegisterChartFigures() {
  Members::Bind("PlanetLongi", &clsPlanets::PlanetLongi);
  Members::Bind("LysPlnt", &clsPlanets::LysPlnt);
  Members::Bind("BhavMid", &clsPlanets::BhavMid);
  Members::Bind("BhavBegin", &clsPlanets::BhavBegin);
  Members::Bind("KPHouse", &clsPlanets::KPHouse);
  Members::Bind("KPAyanVal", &clsPlanets::KPAyanVal);
  Members::Bind("Obliq", &clsPlanets::Obliq);
  Members::Bind("SidrealTime", &clsPlanets::SidrealTime);
  Members::Bind("RetroGrade", &clsPlanets::RetroGrade);
  Members::Bind("PlanetSpeed", &clsPlanets::PlanetSpeed);
  Members::Bind("PlanetHouse", &clsPlanets::PlanetHouse);
  Members::Bind("AyanType", &clsPlanets::AyanType);
  Members::Bind("RahuKetuMode", &clsPlanets::RahuKetuMode);
  Members::Bind("UpagrahaMode", &clsPlanets::UpagrahaMode);
  Members::Bind("CalcModmanglik", &clsPlanets::CalcModmanglik);
  Members::Bind("CalcModVarna", &clsPlanets::CalcModVarna);
  Members::Bind("Latitude", &clsPlanets::Latitude);
  // The polynomial written anew over a calculated chart.
  Members::Register("Recalc.LysAyan.PlanetLongi", [](Members &members, const Question &question) {
    const auto chart = members.Of().NewChartOf(members.Of().Chart().clsPerson());
    chart->LysAyan();
    return Value(chart->PlanetLongi(members.Whole(question.arguments.value(0))));
  });
}
