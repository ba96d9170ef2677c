// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Upagrahas: nine arcs chained from the Sun, and eight ascendants of moments inside the day or the night; and
// Jaimini's points, which are counted in signs.
// Tables: Arcs, TimeParts, MandiGhatikas, UpagrahaLords.
#include <array>

#include "engine/Functions.h"
#include "engine/NumberSet.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"

using Functions::Fix;
using Functions::Norm12;
using Functions::NormDeg360;

namespace {

constexpr int Ascendant = 0, Sun = 1, Moon = 7;

enum Upagraha {
  Dhuma = 1,
  Vyatipata,
  Parivesha,
  IndraChapa,
  Upaketu,
  Bhukampa,
  Ulka,
  Brahmadanda,
  Dhwaja,
  KalaBela,
  Paridhi,
  Mrityu,
  ArdhaPrahar,
  YamaKantaka,
  Kodanda,
  Gulika,
  Mandi
};

// Each arc starts from the Sun or from another arc, added or taken from the circle.
struct Arc {
  int from;  // 0 the Sun, else the upagraha
  int sign;
  double degrees;
};
constexpr std::array<Arc, 10> Arcs{{
    {0, 0, 0},
    {0, 1, 400.0 / 3},          // Dhuma
    {Dhuma, -1, 360},           // Vyatipata
    {Vyatipata, 1, 180},        // Parivesha
    {Parivesha, -1, 360},       // Indra Chapa
    {IndraChapa, 1, 50.0 / 3},  // Upaketu
    {0, 1, 80},                 // Bhukampa
    {Bhukampa, 1, 40},          // Ulka
    {Ulka, 1, 200.0 / 3},       // Brahmadanda
    {Brahmadanda, 1, 80},       // Dhwaja
}};

// The eighth of a Sunday's day and night at whose end (mode 1) or beginning (any other mode) a point rises.
struct TimePart {
  int dayEnd, nightEnd, dayBegin, nightBegin;
};
constexpr std::array<TimePart, 7> TimeParts{{
    {1, 4, 0, 3},  // Kala Bela
    {2, 5, 1, 4},  // Paridhi
    {3, 6, 2, 5},  // Mrityu
    {4, 7, 3, 6},  // Ardha Prahar
    {5, 1, 4, 7},  // Yama Kantaka
    {6, 2, 5, 1},  // Kodanda
    {7, 3, 6, 2},  // Gulika
}};

// Ghatikas of 30 to a day or a night. Sunday first: Sun Mon Tue Wed Thu Fri Sat
constexpr std::array<int, 7> MandiDayGhatikas{26, 22, 18, 14, 10, 6, 2};
constexpr std::array<int, 7> MandiNightGhatikas{10, 6, 2, 26, 22, 18, 14};

// Upagraha:                                     0  1  2  3  4  5
constexpr std::array<int, 6> UpagrahaLords{0, 4, 8, 7, 3, 9};

}  // namespace

// The ascendant of the chart's place at decimal hours of the chart's date; beyond midnight it is the next date's.
double clsPlanets::AscendantAtHours(double hours) const {
  clsPlanets risen(settings);
  CopySettingTo(risen);
  ::clsPerson &moment = risen.clsPerson();
  moment.SetAMPM(clsPerson().AMPM());
  double hour = Fix(hours);
  if (hours > 24) {
    // A midnight that the person holds as hour 24 must not carry the date a second time.
    moment.SetHour(0);
    moment.AddDays(1);
    hour = Functions::Norm24(hour);
  }
  moment.SetHour(hour);
  moment.SetMinutes((hours - Fix(hours)) * 60);
  risen.CalculateAscendant();
  return risen.PlanetLongi(Ascendant);
}

clsPlanets::HalfDay clsPlanets::HalfDayOfMoment() const {
  if (DayBirth()) return {true, MinToDec(SunRiseTime()), DayDuration()};
  return {false, MinToDec(SunSetTime()), NightDuration()};
}

double clsPlanets::CalcUpagrahaAt(int dayPart, int nightPart) const {
  const HalfDay half = HalfDayOfMoment();
  // The eighths step back by one with each weekday after Sunday.
  const int weekday = clsPerson().WeekDayOfBirth();
  const double part = Functions::Norm7Z((half.byDay ? dayPart : nightPart) - (weekday - 1));
  return AscendantAtHours(half.hours / 8 * part + half.startHours);
}

double clsPlanets::CalcMandi() const {
  const HalfDay half = HalfDayOfMoment();
  const auto &ghatikas = half.byDay ? MandiDayGhatikas : MandiNightGhatikas;
  const double ghatika = ghatikas[static_cast<size_t>(clsPerson().WeekDayOfBirth() - 1)];
  return AscendantAtHours(ghatika / 30 * half.hours + half.startHours);
}

double clsPlanets::UpagrahaLongi(int number) const {
  SubscriptError::Check("upagraha", number, Dhuma, Mandi);
  double &kept = upagrahas.longitude[static_cast<size_t>(number)];
  if (kept != 0) return kept;
  if (number <= Dhwaja) {
    const Arc &arc = Arcs[static_cast<size_t>(number)];
    const double from = arc.from == 0 ? PlanetLongi(Sun) : UpagrahaLongi(arc.from);
    kept = NormDeg360(arc.sign * from + arc.degrees);
  } else if (number == Mandi) {
    kept = CalcMandi();
  } else {
    const TimePart &row = TimeParts[static_cast<size_t>(number - KalaBela)];
    kept = UpagrahaMode() == 1 ? CalcUpagrahaAt(row.dayEnd, row.nightEnd) : CalcUpagrahaAt(row.dayBegin, row.nightBegin);
  }
  return kept;
}

double clsPlanets::DhumaLongi() const { return UpagrahaLongi(Dhuma); }
double clsPlanets::VyatipataLongi() const { return UpagrahaLongi(Vyatipata); }
double clsPlanets::PariveshaLongi() const { return UpagrahaLongi(Parivesha); }
double clsPlanets::IndraChapaLongi() const { return UpagrahaLongi(IndraChapa); }
double clsPlanets::UpaketuLongi() const { return UpagrahaLongi(Upaketu); }
double clsPlanets::BhukampaLongi() const { return UpagrahaLongi(Bhukampa); }
double clsPlanets::UlkaLongi() const { return UpagrahaLongi(Ulka); }
double clsPlanets::BrahmadandaLongi() const { return UpagrahaLongi(Brahmadanda); }
double clsPlanets::DhwajaLongi() const { return UpagrahaLongi(Dhwaja); }
double clsPlanets::KalaBelaLong() const { return UpagrahaLongi(KalaBela); }
double clsPlanets::ParidhiLong() const { return UpagrahaLongi(Paridhi); }
double clsPlanets::MrityuLong() const { return UpagrahaLongi(Mrityu); }
double clsPlanets::ArdhaPraharLong() const { return UpagrahaLongi(ArdhaPrahar); }
double clsPlanets::YamaKantakaLong() const { return UpagrahaLongi(YamaKantaka); }
double clsPlanets::KodandaLong() const { return UpagrahaLongi(Kodanda); }
double clsPlanets::GulikaLong() const { return UpagrahaLongi(Gulika); }
double clsPlanets::MandiLong() const { return UpagrahaLongi(Mandi); }

int clsPlanets::UpagrahaSign(int number) const { return Functions::Whole(Functions::Int(UpagrahaLongi(number) / 30)) + 1; }
int clsPlanets::UpagrahaNak(int number) const { return NakshatraNum(UpagrahaLongi(number)); }
int clsPlanets::UpaNakPada(int number) const { return NakPadaNum(UpagrahaLongi(number)); }
int clsPlanets::UpagrahaLord(int number) { return RowOf(UpagrahaLords, number); }
double clsPlanets::GulikaSign() const { return ConvertRashiNum(GulikaLong()); }

QString clsPlanets::UpagrahaName(int number) const { return GetHeadValue(1, number, QStringLiteral("Upagrahas")); }
QString clsPlanets::UpagrahaNameSmall(int number) const { return GetHeadValue(1, number, QStringLiteral("UpagrahaSmall")); }

// --- Jaimini's points -----------------------------------------------------------------------------------------
// By Parashara: seven planets contend for the atmakaraka; an arudha lies as far from the lord of its house as the lord
// from the house, and one that falls into the house itself or its seventh gives way to the tenth from there
// (Brihat Parashara Hora Shastra, the chapters on the karakas and on the arudha padas).

int clsPlanets::AtmaKaraka() const {
  int highest = Sun;
  for (int planet = Sun; planet <= Moon; ++planet)
    if (Functions::Norm30(PlanetLongi(planet)) > Functions::Norm30(PlanetLongi(highest))) highest = planet;
  return highest;
}

int clsPlanets::AtmaKarakaSign() const { return PlanetRashiNum(AtmaKaraka()); }

int clsPlanets::KarakamsaLagna() const { return PlanetInNavamsha(AtmaKaraka()); }

int clsPlanets::ArudhaOf(int house) const {
  const int sign = Functions::Whole(Norm12(PlanetRashiNum(Ascendant) + house - 1));
  const int lordSign = PlanetRashiNum(SignLord(sign).value_or(Sun));
  const double arudha = Norm12(2 * lordSign - sign);
  const bool inHouseOrSeventh = arudha == sign || arudha == Norm12(sign + 6);
  return Functions::Whole(inHouseOrSeventh ? Norm12(arudha + 9) : arudha);
}

int clsPlanets::FindAroodhaLagna() const { return ArudhaOf(1); }
int clsPlanets::FindUpaPadaLagna() const { return ArudhaOf(12); }
