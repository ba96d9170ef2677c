// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

void RegisterDignityFigures() {
  Members::Bind("CheckIfExalted", &clsPlanets::CheckIfExalted);
  Members::Bind("CheckIfDebi", &clsPlanets::CheckIfDebi);
  Members::Bind("Exalted", &clsPlanets::Exalted);
  Members::Bind("Debilitated", &clsPlanets::Debilitated);
  Members::Bind("CheckOwnHouse", &clsPlanets::CheckOwnHouse);
  Members::Bind("InOwnHouse", &clsPlanets::InOwnHouse);
  Members::Bind("InFriendHouse", &clsPlanets::InFriendHouse);
  Members::Bind("InEnemyHouse", &clsPlanets::InEnemyHouse);
  Members::Bind("InSamaHouse", &clsPlanets::InSamaHouse);
  Members::Bind("ExaltClass", &clsPlanets::ExaltClass);
  Members::Bind("ExaltClassEng", &clsPlanets::ExaltClassEng);
  Members::Bind("IsMoolTrikona", &clsPlanets::IsMoolTrikona);
  Members::Bind("CheckHighestExaltDeg", &clsPlanets::CheckHighestExaltDeg);
  Members::Bind("CheckHighestDebiDeg", &clsPlanets::CheckHighestDebiDeg);
  Members::Bind("PlanetBenefic", &clsPlanets::PlanetBenefic);
  Members::Bind("PlanetMalefic", &clsPlanets::PlanetMalefic);
  Members::Bind("GrahaRelation", &clsPlanets::GrahaRelation);
  Members::Bind("IsPlanetEnemy", &clsPlanets::IsPlanetEnemy);
  Members::Bind("GrahaMaitriNo", &clsPlanets::GrahaMaitriNo);
  Members::Bind("InAdhiMitraHouse", &clsPlanets::InAdhiMitraHouse);
  Members::Bind("InAdhiSatruHouse", &clsPlanets::InAdhiSatruHouse);
  Members::Bind("CheckIfCombust", &clsPlanets::CheckIfCombust);
  Members::Bind("Combust", &clsPlanets::Combust);
  Members::Bind("AstaText", &clsPlanets::AstaText);
  Members::Bind("WithinOrbOfSun", &clsPlanets::WithinOrbOfSun);
  Members::Bind("CheckDigBala", &clsPlanets::CheckDigBala);
  Members::Bind("CheckIfStrong", &clsPlanets::CheckIfStrong);
  Members::Bind("PlanetSpeedPoints", &clsPlanets::PlanetSpeedPoints);
  Members::Bind("PlanetIsFaster", &clsPlanets::PlanetIsFaster);
  Members::Bind("PlanetIsSlower", &clsPlanets::PlanetIsSlower);
  Members::Bind("PlanetGetFaster", &clsPlanets::PlanetGetFaster);
  Members::Bind("PlanetGetSlower", &clsPlanets::PlanetGetSlower);
}
