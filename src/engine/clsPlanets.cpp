// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "engine/clsPlanets.h"

#include "engine/Functions.h"
#include "engine/clsVakya.h"
#include "platform/Errors.h"

clsPlanets::clsPlanets(UserSettings &userSettings)
    : settings(userSettings),
      ayanType(userSettings.IntValue(SettingKeys::AyanType)),
      rahuKetuMode(userSettings.IntValue(SettingKeys::RahuKetuMode)) {}

clsPlanets::~clsPlanets() = default;

::clsPerson &clsPlanets::clsPerson() {
  if (!person) person = std::make_shared<::clsPerson>();
  return *person;
}

const ::clsPerson &clsPlanets::clsPerson() const { return const_cast<clsPlanets *>(this)->clsPerson(); }

void clsPlanets::SetclsPerson(std::shared_ptr<::clsPerson> record) { person = std::move(record); }

double clsPlanets::PlanetLongi(int index) const {
  SubscriptError::Check("PlanetLongi", index, 0, 26);
  return index == 0 ? houseMid[0] : longitude[static_cast<size_t>(index)];
}

void clsPlanets::SetPlanetLongi(int index, double degrees) {
  SubscriptError::Check("PlanetLongi", index, 0, 26);
  (index == 0 ? houseMid[0] : longitude[static_cast<size_t>(index)]) = degrees;
}

double clsPlanets::LysPlnt(int index) const { return PlanetLongi(index); }
void clsPlanets::SetLysPlnt(int index, double degrees) { SetPlanetLongi(index, degrees); }

double clsPlanets::KPHouse(int index) const {
  SubscriptError::Check("KPHouse", index, 0, 13);
  return kpCusp[static_cast<size_t>(index)];
}

double clsPlanets::BhavBegin(int index) const {
  SubscriptError::Check("BhavBegin", index, 0, 12);
  return houseBegin[static_cast<size_t>(index)];
}

double clsPlanets::BhavMid(int index) const {
  SubscriptError::Check("BhavMid", index, 0, 12);
  return houseMid[static_cast<size_t>(index)];
}

bool clsPlanets::RetroGrade(int index) const {
  // The ascendant never moves backward, and the ayanamsha has no motion of its own.
  if (index == 0 || index == 13) return false;
  SubscriptError::Check("RetroGrade", index, 0, 13);
  return longitude[static_cast<size_t>(index)] > longitude[static_cast<size_t>(index) + 13];
}

double clsPlanets::PlanetSpeed(int index) const {
  if (index != 0) return LysPlnt(index + 13) - LysPlnt(index);
  clsPlanets hourLater(settings);
  CopySettingTo(hourLater);
  hourLater.clsPerson().AddMinutes(60);
  hourLater.CalculateAscendant();
  return Functions::NormDeg360(hourLater.PlanetLongi(0) - PlanetLongi(0));
}

void clsPlanets::SetAyanType(int type) {
  ayanType = type;
  settings.SetIntValue(SettingKeys::AyanType, type);
}

int clsPlanets::UpagrahaMode() const { return settings.IntValue(SettingKeys::UpagrahaMode); }

void clsPlanets::SetUpagrahaMode(int mode) {
  settings.SetIntValue(SettingKeys::UpagrahaMode, mode);
  upagrahas = {};
}

int clsPlanets::CalcModmanglik() const {
  if (!manglikMode) manglikMode = settings.IntValue(SettingKeys::CalcMangMod);
  return *manglikMode;
}

void clsPlanets::SetCalcModmanglik(int mode) {
  manglikMode = mode;
  settings.SetIntValue(SettingKeys::CalcMangMod, mode);
}

int clsPlanets::CalcModVarna() const {
  if (!varnaMode) varnaMode = settings.IntValue(SettingKeys::CalcVarMod);
  return *varnaMode;
}

void clsPlanets::SetCalcModVarna(int mode) {
  varnaMode = mode;
  settings.SetIntValue(SettingKeys::CalcVarMod, mode);
}

void clsPlanets::CopySettingTo(clsPlanets &target) const {
  const ::clsPerson &from = clsPerson();
  ::clsPerson &to = target.clsPerson();
  to.SetDay(from.Day());
  to.SetMonth(from.Month());
  to.SetYear(from.Year());
  to.SetHour(from.Hour());
  to.SetMinutes(from.Minutes());
  to.Setseconds(from.seconds());
  to.SetLongDeg(from.LongDeg());
  to.SetLongMT(from.LongMT());
  to.SetLatDeg(from.LatDeg());
  to.SetLatMT(from.LatMT());
  to.SetGMTDIFF(from.GMTDIFF());
  to.SetName(from.Name());
  to.SetPLOB(from.PLOB());
}

int clsPlanets::Latitude() const { return clsPerson().LatDeg() + static_cast<int>(Functions::Int(60 * clsPerson().LatMT() / 100.0)); }
