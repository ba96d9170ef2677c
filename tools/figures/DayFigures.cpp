// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

void RegisterDayFigures() {
  Members::Bind("Tithi", &clsPlanets::Tithi);
  Members::Bind("TithiName", &clsPlanets::TithiName);
  Members::Bind("TithiValue", &clsPlanets::TithiValue);
  Members::Bind("GetTithiName", &clsPlanets::GetTithiName);
  Members::Bind("TithiShuklaKrishna", &clsPlanets::TithiShuklaKrishna);
  Members::Bind("GetTithiType", &clsPlanets::GetTithiType);
  Members::Bind("YogaNumber", &clsPlanets::YogaNumber);
  Members::Bind("YogaName", &clsPlanets::YogaName);
  Members::Bind("FindYoga", &clsPlanets::FindYoga);
  Members::Bind("ConvertYoga", &clsPlanets::ConvertYoga);
  Members::Bind("KaranNumber", &clsPlanets::KaranNumber);
  Members::Bind("KaranName", &clsPlanets::KaranName);
  Members::Bind("VikramiMonth", &clsPlanets::VikramiMonth);
  Members::Bind("GetVikramiMonth", &clsPlanets::GetVikramiMonth);
  Members::Bind("WeekDayLord", &clsPlanets::WeekDayLord);
  Members::Bind("WeekDayLordOfDay", &clsPlanets::WeekDayLordOfDay);
  Members::Bind("WeekDayLordFromDay", &clsPlanets::WeekDayLordFromDay);
  Members::Bind("GetDayName", &clsPlanets::GetDayName);
  Members::Bind("ConvertDayEng", &clsPlanets::ConvertDayEng);
  Members::Bind("GetSunAyan", &clsPlanets::GetSunAyan);

  Members::Bind("SunRiseTime", &clsPlanets::SunRiseTime);
  Members::Bind("SunSetTime", &clsPlanets::SunSetTime);
  Members::Bind("DayDuration", &clsPlanets::DayDuration);
  Members::Bind("NightDuration", &clsPlanets::NightDuration);
  Members::Bind("DayBirth", &clsPlanets::DayBirth);
  Members::Bind("GetHoraStart", &clsPlanets::GetHoraStart);
  Members::Bind("GetHoraType", &clsPlanets::GetHoraType);
  Members::Bind("GetHoraName", &clsPlanets::GetHoraName);
  Members::Bind("GetDayHora", &clsPlanets::GetDayHora);
  Members::Bind("GetChogadiyaStart", &clsPlanets::GetChogadiyaStart);
  Members::Bind("GetChogadiyaSpan", &clsPlanets::GetChogadiyaSpan);
  Members::Bind("GetChogadiyaType", &clsPlanets::GetChogadiyaType);
  Members::Bind("GetChowGadiyaName", &clsPlanets::GetChowGadiyaName);
  Members::Bind("GetRahuKaalStartToday", &clsPlanets::GetRahuKaalStartToday);
  Members::Bind("GetRahuKaalSpanToday", &clsPlanets::GetRahuKaalSpanToday);
  Members::Bind("GetEvilMuhurthaStart", &clsPlanets::GetEvilMuhurthaStart);
  Members::Bind("GetMuhurthaLength", &clsPlanets::GetMuhurthaLength);
}
