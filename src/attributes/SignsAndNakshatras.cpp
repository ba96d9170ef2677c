// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Signs and nakshatras: numbers, lords, classes and names.
// Tables: SignLords, NakshatraLords, SerialNumbers, Elements, EnglishAbbreviations, EnglishNames, SignAbbreviations, SunSigns, TatwaEnds.
#include <array>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

using Functions::Fix;
using Functions::Int;
using Functions::ModPos;
using Functions::NumberText;

namespace {

const QString Cnvt = QStringLiteral("CNVT");

constexpr int Moon = 7;

double NakshatraSpan() { return 360.0 / 27; }

int SignOf(double degrees) { return Functions::Whole(Int(degrees / 30)) + 1; }

// Sign:                                      1  2  3  4  5  6  7  8  9  10 11 12
constexpr std::array<int, 12> SignLords{4, 3, 2, 7, 1, 2, 3, 4, 5, 6, 6, 5};

// Nakshatra, counted modulo 9:                   1  2  3  4  5  6  7  8  9
constexpr std::array<int, 9> NakshatraLords{9, 3, 1, 7, 4, 8, 5, 6, 2};

// Planet:                                         0  1  2  3  4  5  6  7  8  9
constexpr std::array<int, 10> SerialNumbers{0, 1, 4, 6, 3, 5, 7, 2, 8, 9};

// The Moon alone keeps four letters, and the ascendant's full form its double c.
constexpr std::array<const char *, 13> EnglishAbbreviations{"Asc",  "Sun", "Mer", "Ven", "Mar", "Jup", "Sat",
                                                            "Moon", "Rah", "Ket", "Ura", "Nep", "Plu"};
constexpr std::array<const char *, 13> EnglishNames{"Asccendant", "Sun",  "Mercury", "Venus",  "Mars",    "Jupiter", "Saturn",
                                                    "Moon",       "Rahu", "Ketu",    "Uranus", "Neptune", "Pluto"};
constexpr std::array<const char *, 12> SignAbbreviations{"Ari", "Tau", "Gem", "Can", "Leo", "Vir",
                                                         "Lib", "Sco", "Sag", "Cap", "Aqu", "Pis"};

// Western Sun signs by calendar date; the first sign's word is in capitals in the text table.
struct SunSignRow {
  const char *word;
  int fromMonth, fromDay, toMonth, toDay;
};
constexpr std::array<SunSignRow, 12> SunSigns{{
    {"ARIES", 3, 21, 4, 20},
    {"Taurus", 4, 21, 5, 21},
    {"Gemini", 5, 22, 6, 21},
    {"Cancer", 6, 22, 7, 22},
    {"Leo", 7, 23, 8, 23},
    {"Virgo", 8, 24, 9, 23},
    {"Libra", 9, 24, 10, 23},
    {"Scorpio", 10, 24, 11, 22},
    {"Sagittarius", 11, 23, 12, 21},
    {"Capricorn", 12, 22, 1, 20},
    {"Aquarius", 1, 21, 2, 19},
    {"Pisces", 2, 20, 3, 20},
}};

int SunSignOn(int month, int day) {
  for (size_t i = 0; i < SunSigns.size(); ++i) {
    const SunSignRow &row = SunSigns[i];
    if ((month == row.fromMonth && day >= row.fromDay) || (month == row.toMonth && day <= row.toDay)) return static_cast<int>(i) + 1;
  }
  return 0;
}

// The last nakshatra of each tatwa's group.
constexpr std::array<int, 5> TatwaEnds{5, 11, 17, 22, 27};

// A sign or house counts only as a whole number of the table.
std::optional<int> LordOf(double sign) {
  if (sign != Int(sign) || sign < 1 || sign > 12) return std::nullopt;
  return SignLords[static_cast<size_t>(sign) - 1];
}

// 1 for the movable signs or angular houses, 2 and 3 for those that follow; nothing outside 1 to 12.
std::optional<int> TriadOf(double number) {
  if (number != Int(number) || number < 1 || number > 12) return std::nullopt;
  return (static_cast<int>(number) - 1) % 3 + 1;
}

template <size_t N>
QString EnglishWord(const std::array<const char *, N> &words, int number, int first) {
  if (number < first || number >= first + static_cast<int>(N)) return {};
  return QLatin1String(words[static_cast<size_t>(number - first)]);
}

}  // namespace

// --- positions to numbers -----------------------------------------------------------------------------

int clsPlanets::PlanetRashiNum(int planet) const { return SignOf(PlanetLongi(planet)); }

double clsPlanets::Sign(int planet) const {
  SubscriptError::Check("Sign", planet, 0, 13);
  double &sign = signs.sign[static_cast<size_t>(planet)];
  if (sign == 0) sign = Fix(PlanetLongi(planet) / 30) + 1;
  return sign;
}

double clsPlanets::PlanetSign(int planet) const { return Sign(planet); }

int clsPlanets::GetSign(int planet) const { return SignOf(PlanetLongi(planet)); }

int clsPlanets::RashiNum() const { return PlanetRashiNum(Moon); }

double clsPlanets::ConvertRashiNum(double degrees) {
  const double quotient = degrees / 30;
  return quotient == Int(quotient) ? quotient : Int(quotient) + 1;
}

int clsPlanets::NakshatraNum(double degrees) { return Functions::Whole(Int(degrees / NakshatraSpan())) + 1; }

int clsPlanets::Nakshatra() const { return NakshatraNum(PlanetLongi(Moon)); }

int clsPlanets::NakOf(int planet) const { return NakshatraNum(LysPlnt(planet)); }

int clsPlanets::Nak28GetNakshatra() const {
  constexpr double abhijitBegin = 276.4, abhijitEnd = 280.54;
  const double moon = PlanetLongi(Moon);
  if (moon >= abhijitBegin && moon <= abhijitEnd) return 28;
  return NakshatraNum(moon);
}

int clsPlanets::NakPadaNum(double degrees) {
  const double rest = ModPos(degrees, NakshatraSpan());
  return Functions::Whole16(Int(rest / (10.0 / 3))) + 1;
}

std::optional<int> clsPlanets::NakPadaPlanet(int planet) const {
  double rest = PlanetLongi(planet);
  while (rest > NakshatraSpan()) rest = rest - NakshatraSpan();
  const double quarter = NakshatraSpan() / 4;
  if (rest > 0 && rest < quarter) return 1;
  if (rest > quarter && rest < quarter * 2) return 2;
  if (rest > quarter * 2 && rest < quarter * 3) return 3;
  if (rest > quarter * 3 && rest < NakshatraSpan()) return 4;
  return std::nullopt;
}

// The sum of the two signs stands where a difference would be expected; the figure is kept so.
int clsPlanets::PlanetHouse(int planet) const {
  return Functions::Whole(Functions::Norm12(PlanetRashiNum(planet) + PlanetRashiNum(0) + 1));
}

int clsPlanets::GetTaraNum(int first, int second) {
  const int distance = Functions::Whole(static_cast<double>(second) - first + 1);
  const int tara = Functions::Whole(Functions::Norm27(distance)) % 9;
  return tara == 0 ? 9 : tara;
}

int clsPlanets::CountPlanetInSign(int sign) const {
  int count = 0;
  for (int planet = 1; planet <= 7; ++planet) count += Sign(planet) == sign;
  return count;
}

int clsPlanets::SignOccupiedNum(int mode) const {
  const int last = mode == 1 ? 9 : 7;
  int count = 0;
  for (int sign = 1; sign <= 12; ++sign) {
    bool occupied = false;
    for (int planet = 1; planet <= last; ++planet) occupied = occupied || Sign(planet) == sign;
    count += occupied;
  }
  return count;
}

// --- lords ----------------------------------------------------------------------------------------------

std::optional<int> clsPlanets::SignLord(double sign) { return LordOf(sign); }
std::optional<int> clsPlanets::GetHouseLord(double sign) { return LordOf(sign); }
std::optional<int> clsPlanets::GetRashiLordNum(int sign) { return LordOf(sign); }
std::optional<int> clsPlanets::FindRashiLordNo(int sign) { return LordOf(sign); }

std::optional<int> clsPlanets::PlanetRashiLordNum(double signOrDegrees) {
  if (signOrDegrees != Fix(signOrDegrees)) signOrDegrees = Int(signOrDegrees / 30) + 1;
  return LordOf(signOrDegrees);
}

std::optional<int> clsPlanets::PlanetSignLord(int planet) const { return SignLord(Sign(planet)); }

std::optional<int> clsPlanets::NakLordNum(int nakshatra) {
  if (nakshatra < 1 || nakshatra > 27) return std::nullopt;
  return NakshatraLords[static_cast<size_t>(nakshatra - 1) % 9];
}

bool clsPlanets::PlanetINNakof(int planet, int lord) const { return lord >= 1 && lord <= 7 && NakLordNum(NakOf(planet)) == lord; }

int clsPlanets::PlanetSerialNumber(int planet) {
  if (planet < 0 || planet >= static_cast<int>(SerialNumbers.size())) return planet;
  return SerialNumbers[static_cast<size_t>(planet)];
}

// --- classes --------------------------------------------------------------------------------------------

int clsPlanets::RashiClass(double sign) { return TriadOf(sign).value_or(0); }
std::optional<int> clsPlanets::HouseClass(double house) { return TriadOf(house); }

int clsPlanets::GetRashiElement(int sign) { return sign < 1 || sign > 12 ? 0 : (sign - 1) % 4 + 1; }

// --- names ------------------------------------------------------------------------------------------------

QString clsPlanets::ConvertRashi(double signOrDegrees) const {
  if (Int(signOrDegrees) < signOrDegrees) signOrDegrees = Int(signOrDegrees / 30) + 1;
  const int sign = Functions::Whole(signOrDegrees);
  SubscriptError::Check("sign name", sign, 0, 13);
  QString &name = words.rashi[static_cast<size_t>(sign)];
  if (name.isEmpty()) name = GetTextBetween(Cnvt, QString::number(sign), QStringLiteral("Rashi"));
  return name;
}

QString clsPlanets::RashiName() const { return ConvertRashi(PlanetRashiNum(Moon)); }
QString clsPlanets::PlanetRashiName(int planet) const { return ConvertRashi(PlanetRashiNum(planet)); }

QString clsPlanets::ConvertRashiEng(double signOrDegrees) const {
  if (signOrDegrees != Fix(signOrDegrees)) signOrDegrees = Int(signOrDegrees / 30) + 1;
  return SunSignEngByNumber(Functions::Whole(signOrDegrees));
}

QString clsPlanets::SunSignEngByNumber(int sign) const {
  return GetTextBetween(Cnvt, QString::number(sign), QStringLiteral("SunSignEngNum"));
}

QString clsPlanets::GetNakshatraName(double &nakshatraOrDegrees) const {
  if (Int(nakshatraOrDegrees) < nakshatraOrDegrees) nakshatraOrDegrees = Int(nakshatraOrDegrees / NakshatraSpan()) + 1;
  const int nakshatra = Functions::Whole(nakshatraOrDegrees);
  SubscriptError::Check("nakshatra name", nakshatra, 0, 28);
  QString &name = words.nakshatra[static_cast<size_t>(nakshatra)];
  if (name.isEmpty()) name = GetTextBetween(Cnvt, QString::number(nakshatra), QStringLiteral("Nakshatra"));
  return name;
}

QString clsPlanets::NakNamePlanet(int planet) const {
  return GetTextBetween(Cnvt, QString::number(NakOf(planet)), QStringLiteral("Nakshatra"));
}

// The nine rows of the lords run by the nakshatra's digit sum: 10 and 19 share row 1 with 1.
QString clsPlanets::NakLordName(double nakshatra) const {
  QString key = NumberText(nakshatra);
  while (key.size() > 1) {
    const int first = key.front().digitValue(), last = key.back().digitValue();
    if (first < 0 || last < 0)
      throw ConversionError(QStringLiteral("'%1' is not the number of a nakshatra; they run from 1 to 27.").arg(key));
    key = QString::number(first + last);
  }
  return GetTextBetween(Cnvt, key, QStringLiteral("Naklord"));
}

QString clsPlanets::GetNakLordName(int nakshatra) const {
  while (nakshatra >= 10) {
    const QString digits = QString::number(nakshatra);
    nakshatra = digits.front().digitValue() + digits.back().digitValue();
  }
  return GetTextBetween(Cnvt, QString::number(nakshatra), QStringLiteral("Naklord"));
}

QString clsPlanets::PlanetName(int planet) const {
  SubscriptError::Check("PlanetName", planet, 0, 13);
  QString &name = words.planetAbbreviation[static_cast<size_t>(planet)];
  name = GetTextBetween(Cnvt, QString::number(planet), QStringLiteral("PLNTABB"));
  // The abbreviations are English in every language; another word there means a damaged language file.
  if (planet <= 12 && name != PlanetNameEng(planet))
    Notices::Show({Notice::Kind::Critical, QStringLiteral("Invalid Data File"),
                   QStringLiteral("Invalid Data File. Please Re-install. Program will Terminate")});
  return name;
}

QString clsPlanets::PlanetNameFull(int planet) const {
  SubscriptError::Check("PlanetNameFull", planet, 0, 13);
  const auto fetch = [this](int index) {
    words.planetFull[static_cast<size_t>(index)] = GetTextBetween(Cnvt, QString::number(index), QStringLiteral("PLANETS"));
  };
  if (words.planetFull[static_cast<size_t>(planet)].isEmpty())
    for (int index = 0; index <= 12; ++index) fetch(index);
  return words.planetFull[static_cast<size_t>(planet)];
}

QString clsPlanets::PlanetNameSmall(int planet) const {
  SubscriptError::Check("PlanetNameSmall", planet, 0, 13);
  QString &name = words.planetSmall[static_cast<size_t>(planet)];
  if (name.isEmpty()) name = GetTextBetween(Cnvt, QString::number(planet), QStringLiteral("PLNTABBSU"));
  return name;
}

QString clsPlanets::PlanetNameEng(int planet) { return EnglishWord(EnglishAbbreviations, planet, 0); }
QString clsPlanets::PlanetNameFullEng(int planet) { return EnglishWord(EnglishNames, planet, 0); }
QString clsPlanets::PlanetRashiNameEngSmall(int sign) { return EnglishWord(SignAbbreviations, sign, 1); }

QString clsPlanets::FindFirstLetters(int number) const { return GetTextBetween(Cnvt, QString::number(number), QStringLiteral("Firstl")); }

QString clsPlanets::FindSunSign() const {
  const int sign = SunSignOn(clsPerson().Month(), clsPerson().Day());
  if (sign == 0) return {};
  return GetTextBetween(Cnvt, QLatin1String(SunSigns[static_cast<size_t>(sign - 1)].word), QStringLiteral("SunSign"));
}

QString clsPlanets::FindSunSignEng() const {
  const int sign = SunSignOn(clsPerson().Month(), clsPerson().Day());
  return sign == 0 ? QString() : SunSignEngByNumber(sign);
}

QString clsPlanets::Tatwa() const {
  const int nakshatra = NakOf(Moon);
  if (nakshatra < 1) return {};
  for (size_t group = 0; group < TatwaEnds.size(); ++group)
    if (nakshatra <= TatwaEnds[group]) return GetTextBetween(Cnvt, QString::number(group + 1), QStringLiteral("Tatwa"));
  return {};
}
