// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

void RegisterAspectFigures() {
  Members::Bind("CheckIfPlanetAspects", &clsPlanets::CheckIfPlanetAspects);
  Members::Bind("IfPlanetAspects", &clsPlanets::IfPlanetAspects);
  Members::Bind("PlanetAspectedByNatBenefic", &clsPlanets::PlanetAspectedByNatBenefic);
  Members::Bind("PlanetAspectedByNatMalefic", &clsPlanets::PlanetAspectedByNatMalefic);
  Members::Bind("AspectedByEnemy", &clsPlanets::AspectedByEnemy);
  Members::Bind("CheckMaleficAspects", &clsPlanets::CheckMaleficAspects);
  Members::Bind("PlanetOrb", &clsPlanets::PlanetOrb);
  Members::Bind("PlanetMutOrb", &clsPlanets::PlanetMutOrb);
  Members::Bind("PlanetDegAspect", &clsPlanets::PlanetDegAspect);
  Members::Bind("PlanetInSameSign", &clsPlanets::PlanetInSameSign);
  Members::Bind("PlanetWithBenefic", &clsPlanets::PlanetWithBenefic);
  Members::Bind("PlanetWithMalefic", &clsPlanets::PlanetWithMalefic);
  Members::Bind("WithBenefic", &clsPlanets::WithBenefic);
  Members::Bind("WithMalefic", &clsPlanets::WithMalefic);
  Members::Bind("WithEnemy", &clsPlanets::WithEnemy);
  Members::Bind("PlanetInKendra", &clsPlanets::PlanetInKendra);
  Members::Bind("PlanetInTrikona", &clsPlanets::PlanetInTrikona);
  Members::Bind("PlanetInTrika", &clsPlanets::PlanetInTrika);
  Members::Bind("PlanetInPanaphara", &clsPlanets::PlanetInPanaphara);
  Members::Bind("PlanetInApoklima", &clsPlanets::PlanetInApoklima);
  Members::Bind("GetConjText", &clsPlanets::GetConjText);
  Members::Register("FindRelation", [](Members &members, const Question &question) {
    const QString code = clsPlanets::FindRelation(members.Number(question.arguments.value(0)));
    return code.isEmpty() ? Value() : Value(code);
  });
}
