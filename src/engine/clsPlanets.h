// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <array>
#include <memory>
#include <optional>

#include "attributes/AshtakavargaState.h"
#include "attributes/SignState.h"
#include "attributes/UpagrahaState.h"
#include "attributes/VargaState.h"
#include "content/TextState.h"
#include "panchang/PanchangState.h"
#include "persons/clsPerson.h"
#include "platform/TextDb.h"
#include "platform/UserSettings.h"

class clsVakya;

// The chart of one moment and one place: made, given a person, calculated once, then asked and dropped.
// This header is the table of contents of what a chart answers; each group names the source that holds it.
//
// Planet index everywhere: 0 ascendant, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon,
// 8 Rahu, 9 Ketu, 10 Uranus, 11 Neptune, 12 Pluto, 13 the ayanamsha, 14 to 25 the body of index minus 13
// one hour later. Signs are 1 Aries to 12 Pisces, nakshatras 1 Ashwini to 27 Revati. Longitudes are degrees,
// sidereal after Calculate, 0 up to and including 360. An index outside its array throws SubscriptError.
// The caches are not cleared by a second Calculate; for another moment make a new chart (CopySettingTo).
class clsPlanets {
 public:
  explicit clsPlanets(UserSettings &userSettings);
  ~clsPlanets();
  clsPlanets(const clsPlanets &) = delete;
  clsPlanets &operator=(const clsPlanets &) = delete;

  // --- calculation: engine/Calculation.cpp --------------------------------------------------------
  // The person holds universal time while it runs and local time again after it (shifted by TimeCorr).
  // Throws ConversionError for an unreadable GMTDIFF, TimeCorr or custom ayanamsha and for a date that
  // does not exist, ArithmeticError where the ascendant has no finite value.
  void Calculate();
  void LysAyan();  // writes the Lahiri polynomial, degrees, to index 13

  // --- what a calculation leaves: engine/clsPlanets.cpp ---------------------------------------------
  ::clsPerson &clsPerson();
  const ::clsPerson &clsPerson() const;
  void SetclsPerson(std::shared_ptr<::clsPerson> record);
  double PlanetLongi(int index) const;  // 0 to 26
  void SetPlanetLongi(int index, double degrees);
  double LysPlnt(int index) const;  // the same array
  void SetLysPlnt(int index, double degrees);
  double KPAyanVal() const;                   // Krishnamurti ayanamsha of the person's present moment
  double KPHouse(int index) const;            // KP cusps 1 to 12; 0 is the ascendant, not normalised
  double BhavBegin(int index) const;          // 0 to 12: between two house midpoints
  double BhavMid(int index) const;            // 0 to 12: midpoint of house index + 1; 0 is the ascendant
  bool RetroGrade(int index) const;           // false for 0 and 13
  double PlanetSpeed(int index) const;        // degrees per hour, not wrapped at 0 Aries
  double Obliq() const { return obliquity; }  // degrees
  double SidrealTime() const { return siderealHours; }
  int AyanType() const { return ayanType; }
  void SetAyanType(int type);                        // writes the setting at once
  int RahuKetuMode() const { return rahuKetuMode; }  // 1 mean node, 2 true node
  void SetRahuKetuMode(int mode) { rahuKetuMode = mode; }
  int UpagrahaMode() const;  // read from the setting each time
  void SetUpagrahaMode(int mode);
  int CalcModmanglik() const;  // read once and kept
  void SetCalcModmanglik(int mode);
  int CalcModVarna() const;
  void SetCalcModVarna(int mode);
  // Copies moment and place to another chart's person, without hemispheres, AMPM and TimeCorr: a copy
  // of a southern or western person counts north and east.
  void CopySettingTo(clsPlanets &target) const;
  int Latitude() const;  // LatDeg + Int(60 x LatMT / 100), for display alone
  int Langflag() const { return languageMark; }
  void SetLangflag(int mark) { languageMark = mark; }
  void SetBirthDate(const QDateTime &moment) { clsPerson().SetBirthDate(moment); }
  UserSettings &Settings() const { return settings; }

  // --- positions by the siddhantic method: engine/VakyaPositions.cpp ----------------------------------
  // Fills bodies 1 to 9, the same an hour later, and the ascendant, from the person as it stands; Calculate never
  // does so. Throws ArithmeticError where the Sun does not rise.
  void CalcVakyaPositions();
  clsVakya &Vakya() const;  // made on the first request and kept

  // --- date, time and angle arithmetic: engine/Arithmetic.cpp ---------------------------------------
  static int ConvertDateToNum(const QDateTime &date);         // yyyymmdd
  QString ConvertDateToText(const QDateTime &date) const;     // "5 March 2004" in the language
  QString ConvertDateToTextEng(const QDateTime &date) const;  // the same in English
  QString GetMonthNameByNum(int month) const;
  QString GetMonthNameByNumEng(int month) const;
  static double MinToDec(double clock);  // clock number to decimal hours
  static int GetMin(double hours);       // whole minutes of decimal hours
  static double DegToDec(double degrees, double minutes, double seconds);
  static QString DecToDeg(double degrees);             // "164:31:25"; seconds can read 60
  static QString ConvertValNoDeg(double degrees);      // "14:31:25" inside the sign; 30 stays 30
  QString ConvertValNoDegNoSec(double degrees) const;  // "14", the language's ":", "31"
  QString ConvertToDegNoVal(double degrees) const;     // name of the longitude's sign
  static QDateTime DateAddEx(const QString &interval, int count, const QDateTime &date);
  // Adds a decimal amount of years (unit 1), days (3), hours (4), minutes (5) or seconds (6), stepping
  // down through the units; a year's fraction counts days of 365.2564 to the year. The unit ends as 6.
  static QDateTime AddDecValToDate(double value, int &unit, const QDateTime &date);
  int FirstDayOfMonth() const;  // weekday, Sunday 1, of the Sun's entry into its present sign
  int FirstDayOfYear() const;   // weekday, Sunday 1, of the Sun's last entry into Aries
  static int MaxDayInMonth(int month, int year);
  QString BhavBeginName(int index) const;
  QString BhavMidName(int index) const;
  QString AyanamshName() const;
  QString Direction(int index) const;  // the word for direct or retrograde; equal longitudes read retrograde

  // --- signs and nakshatras: attributes/SignsAndNakshatras.cpp ---------------------------------------
  int PlanetRashiNum(int planet) const;  // reads the present longitude
  double Sign(int planet) const;         // kept from the first reading on; planets 0 to 13
  double PlanetSign(int planet) const;   // the same
  int GetSign(int planet) const;
  int RashiNum() const;                           // the Moon's sign
  static double ConvertRashiNum(double degrees);  // a multiple of 30 gives the sign before: 60.0 gives 2
  static int NakshatraNum(double degrees);
  int Nakshatra() const;  // the Moon's
  int NakOf(int planet) const;
  int Nak28GetNakshatra() const;                       // the Moon's with Abhijit as 28, 276.4 to 280.54 degrees
  static int NakPadaNum(double degrees);               // 1 to 4; 5 at the very end of a nakshatra
  std::optional<int> NakPadaPlanet(int planet) const;  // none exactly on a quarter point
  double NakPada() const { return panchang.pada; }     // the Moon's, as stored
  double Pada() const { return panchang.pada; }
  int PlanetHouse(int planet) const;
  static int GetTaraNum(int first, int second);  // 1 to 9
  int CountPlanetInSign(int sign) const;         // of planets 1 to 7
  int SignOccupiedNum(int mode) const;           // mode 1 counts planets 1 to 9, else 1 to 7
  static std::optional<int> SignLord(double sign);
  static std::optional<int> GetHouseLord(double sign);
  static std::optional<int> GetRashiLordNum(int sign);
  static std::optional<int> FindRashiLordNo(int sign);
  static std::optional<int> PlanetRashiLordNum(double signOrDegrees);  // a fraction marks a longitude
  std::optional<int> PlanetSignLord(int planet) const;
  static std::optional<int> NakLordNum(int nakshatra);
  bool PlanetINNakof(int planet, int lord) const;  // lords 1 to 7 only
  static int PlanetSerialNumber(int planet);       // in the traditional order
  static int RashiClass(double sign);              // 1 movable, 2 fixed, 3 dual, 0 none
  static std::optional<int> HouseClass(double house);
  static int GetRashiElement(int sign);              // 1 fire, 2 earth, 3 air, 4 water, 0 none
  QString ConvertRashi(double signOrDegrees) const;  // a whole number above 13 throws SubscriptError
  QString RashiName() const;
  QString PlanetRashiName(int planet) const;
  QString ConvertRashiEng(double signOrDegrees) const;
  QString SunSignEngByNumber(int sign) const;
  QString GetNakshatraName(double &nakshatraOrDegrees) const;  // a longitude is replaced by its nakshatra
  QString NakNamePlanet(int planet) const;
  QString NakLordName(double nakshatra) const;
  QString GetNakLordName(int nakshatra) const;
  QString PlanetName(int planet) const;
  QString PlanetNameFull(int planet) const;
  QString PlanetNameSmall(int planet) const;
  static QString PlanetNameEng(int planet);
  static QString PlanetNameFullEng(int planet);
  static QString PlanetRashiNameEngSmall(int sign);
  QString FindFirstLetters(int number) const;
  QString FindSunSign() const;  // Western Sun sign by birth day and month
  QString FindSunSignEng() const;
  QString Tatwa() const;

  // --- dignity and planetary relations: attributes/Dignity.cpp ---------------------------------------
  // By sign and by degrees; the two forms part in some cells. Longitudes are compared as they stand.
  static bool CheckIfExalted(int planet, double sign);
  static bool CheckIfDebi(int planet, double sign);
  bool Exalted(int planet) const;
  bool Debilitated(int planet) const;
  static bool CheckOwnHouse(int planet, double sign);
  bool InOwnHouse(int planet) const;  // Mercury owns Gemini alone, the outer planets nothing
  bool InFriendHouse(int planet) const;
  bool InEnemyHouse(int planet) const;
  bool InSamaHouse(int planet) const;
  QString ExaltClass(int planet) const;         // the language's word
  QString ExaltClassEng(int planet) const;      // "Exalt", "Mool", "Own", "Debi" or empty
  bool IsMoolTrikona(int planet) const;         // planets 1 to 7
  bool CheckHighestExaltDeg(int planet) const;  // the half degree up to the deepest exaltation
  bool CheckHighestDebiDeg(int planet) const;   // the same for debilitation
  static bool PlanetBenefic(int planet);
  static bool PlanetMalefic(int planet);
  // 1 friend, 2 neutral, 3 enemy of planet 1 to 9 toward "P1" to "P9". An unlisted pair throws SubscriptError.
  static int GrahaRelation(int planet, const QString &other);
  static std::optional<bool> IsPlanetEnemy(int planet, int other);  // true or nothing
  int GrahaMaitriNo() const;                                        // lord of the Moon's sign in the traditional order
  bool InAdhiMitraHouse(int planet) const;                          // in the sign of a compound friend
  bool InAdhiSatruHouse(int planet) const;
  static bool CheckIfCombust(double sunLongitude, int planet, double planetLongitude);  // does not wrap at 0 Aries
  std::optional<bool> Combust(int planet) const;                                        // true or nothing; does not wrap
  QString AstaText(int planet) const;     // by other orbs, which know retrogression; does not wrap
  bool WithinOrbOfSun(int planet) const;  // 15 degrees to either side, wrapped; false for the Sun
  static bool CheckDigBala(int planet, double sign, double ascendantSign);
  bool CheckIfStrong(int planet, double sign) const;
  static int PlanetSpeedPoints(int planet);  // 7 the Moon to 1 Saturn, 0 for none
  static bool PlanetIsFaster(int planet, int other);
  static bool PlanetIsSlower(int planet, int other);
  static int PlanetGetFaster(int planet, int other);  // the other on a tie
  static int PlanetGetSlower(int planet, int other);  // the other on a tie

  // --- aspects and conjunctions: attributes/Aspects.cpp -----------------------------------------------
  // By sign: the second planet looks at the first. Signs are those of Sign, so planets 0 to 13.
  bool CheckIfPlanetAspects(int planet, int aspecting) const;  // by planets 1 to 7
  bool IfPlanetAspects(int planet, int aspecting) const;       // by planets 1 to 9
  bool PlanetAspectedByNatBenefic(int planet) const;           // by the planet's own offsets
  bool PlanetAspectedByNatMalefic(int planet) const;           // the same
  std::optional<bool> AspectedByEnemy(int planet) const;       // true or nothing
  bool CheckMaleficAspects(int planet, double sign) const;     // by Mars or Saturn, direct or retrograde
  double PlanetOrb(int planet) const;                          // degrees
  double PlanetMutOrb(int planet, int other) const;
  // 0 none, 1 conjunction, 2 square, 3 opposition, 4 trine, 5 sextile. Both distances around the circle must pass.
  int PlanetDegAspect(int planet, int other) const;
  static int DegreeAspectOf(double longitude, double otherLongitude, double orb);
  static QString FindRelation(double degrees);  // Western code of an angle, its sign dropped; empty for none
  bool PlanetInSameSign(int planet, int other) const;
  bool PlanetWithBenefic(int planet) const;
  bool PlanetWithMalefic(int planet) const;
  bool WithBenefic(int planet) const;
  bool WithMalefic(int planet) const;
  bool WithEnemy(int planet) const;
  bool PlanetInKendra(int planet, int from) const;
  bool PlanetInTrikona(int planet, int from) const;
  bool PlanetInTrika(int planet, int from) const;
  bool PlanetInPanaphara(int planet) const;  // from the ascendant
  bool PlanetInApoklima(int planet) const;

  // --- divisional charts: attributes/DivisionalCharts.cpp --------------------------------------------
  void FillVargaTable();
  std::optional<int> PrediVarga(int planet, int varga) const;  // planet 0 to 12, varga 1 to 17; empty at 13 and 0
  int PlanetInNavamsha(int planet) const;
  bool PlanetVargottama(int planet) const;
  int PlanetGopuramsa(int planet) const;  // vargas 1 to 16 in the rashi's sign; above 13 gives 0
  double KrishAmsha(int planet) const;    // degrees inside the sign, 0 to 30; planets 0 to 26
  int NavamshSign(int planet) const;
  int NavamshLord(int planet) const;  // the lords are planet indices, 0 for none
  int SaptamshaLord(int planet) const;
  int DashamamshaLord(int planet) const;
  int DwaDashamamshaLord(int planet) const;
  int EkaDashamAmshaLord(int planet) const;
  int DrekkanaLord(int planet) const;
  int ChaturthamshLord(int planet) const;
  int PanchamAmshLord(int planet) const;
  int SastamshLord(int planet) const;
  int VarAshtamamshaLord(int planet) const;
  bool SashtiAmshaBenefic(int planet) const;
  std::optional<int> Decanate() const;  // of the tropical Sun, 1 to 3

  // --- upagrahas and Jaimini's points: attributes/Upagrahas.cpp ---------------------------------------
  // Degrees, worked out on first use and kept until UpagrahaMode is set. Number 1 Dhuma to 17 Mandi, in this order.
  double DhumaLongi() const;
  double VyatipataLongi() const;
  double PariveshaLongi() const;
  double IndraChapaLongi() const;
  double UpaketuLongi() const;
  double BhukampaLongi() const;
  double UlkaLongi() const;
  double BrahmadandaLongi() const;
  double DhwajaLongi() const;
  double KalaBelaLong() const;
  double ParidhiLong() const;
  double MrityuLong() const;
  double ArdhaPraharLong() const;
  double YamaKantakaLong() const;
  double KodandaLong() const;
  double GulikaLong() const;
  double MandiLong() const;
  double UpagrahaLongi(int number) const;  // a number outside 1 to 17 throws SubscriptError
  int UpagrahaSign(int number) const;
  int UpagrahaNak(int number) const;
  int UpaNakPada(int number) const;
  static int UpagrahaLord(int number);  // of the first five; 0 for the others
  double GulikaSign() const;            // by ConvertRashiNum
  QString UpagrahaName(int number) const;
  QString UpagrahaNameSmall(int number) const;
  int AtmaKaraka() const;  // the planet of 1 to 7 with the most degrees inside its sign
  int AtmaKarakaSign() const;
  int KarakamsaLagna() const;    // its navamsha sign
  int FindAroodhaLagna() const;  // sign of the arudha of the first house
  int FindUpaPadaLagna() const;  // of the twelfth

  // --- ashtakavarga: attributes/Ashtakavarga.cpp -------------------------------------------------------
  void AshTable();  // fills the rows; the totals grow with each run
  // Adds a point to each sign whose flag is 1, counted from the base sign as the first.
  void AshComp(const std::array<int, 12> &flags, int baseSign);
  int Ashtak(int sign) const;              // of the reference body in hand; sign 0 to 12
  int AshVarga(int body, int sign) const;  // body 0 to 10, sign 0 to 13
  int AshTotal(int sign) const;            // 0 to 13; the ascendant's row stays out of it
  void SetAshtak(int sign, int points);
  void SetAshVarga(int body, int sign, int points);
  void SetAshTotal(int sign, int points);

  // --- attributes for matching: attributes/Compatibility.cpp -------------------------------------------
  std::optional<int> Gana(int &nakshatra) const;  // 3 deva, 2 manushya, 1 rakshasa; 0 is replaced by the Moon's nakshatra
  QString AssignGana(int gana) const;
  std::optional<int> NadiNo() const;  // 1 to 3
  QString AssignNadi(int nadi) const;
  QString RajjuType() const;  // "F", "W", "B", "T" or "H"
  QString Rajju() const;
  QString Vihag() const;              // empty for nakshatras 26 and 27
  std::optional<int> YoniNo() const;  // 1 to 14
  QString YoniName() const;
  QString Varna() const;               // by CalcModVarna 1 or 2; empty under any other mode
  std::optional<int> VarnaNo() const;  // 4 the highest; every mode but 1 reads the second row
  QString Vasya() const;
  std::optional<int> VasyaNo() const;  // 1 to 5
  QString NadiPada() const;
  QString Paya() const;

  // --- the limbs of the panchang at the chart's moment: panchang/PanchangElements.cpp ------------------
  double Tithi() const { return panchang.tithi; }
  QString TithiName() const;
  QString GetTithiName(double &tithi) const;    // a fraction is replaced by the running tithi
  double TithiValue() const;                    // Moon - Sun, degrees, 0 up to 360
  static int TithiShuklaKrishna(double tithi);  // 1 bright half, 2 dark half
  static int GetTithiType(int tithi);           // 1 to 4, 0 for none
  int YogaNumber() const;
  QString YogaName() const;
  QString FindYoga(int yoga) const;
  QString ConvertYoga(double &yoga) const;                              // a fraction is replaced by the running yoga
  int KaranNumber() const;                                              // for the rules
  QString KaranName() const;                                            // for the screens; parts from KaranNumber above 342 degrees
  static int VikramiMonth(double sunLongitude, const QDateTime &date);  // 1 to 12; 0 and -1 at the edges
  QString GetVikramiMonth(int month) const;
  int WeekDayLord() const;  // lord of the person's civil weekday
  static std::optional<int> WeekDayLordOfDay(int weekday);
  static int WeekDayLordFromDay(int weekday);
  QString GetDayName(int &weekday) const;  // takes 1 to 7 and leaves 0 to 6
  QString ConvertDayEng(int weekday) const;
  int GetSunAyan() const;  // 1 for signs 10 to 12 and 1 to 4, else 2

  // --- divisions of the day: panchang/DayDivisions.cpp --------------------------------------------------
  // Clock numbers (hh.mm) are added and subtracted as they stand; that arithmetic defines the periods.
  double SunRiseTime() const;           // clock number
  double SunSetTime() const;            // clock number; searched from the chart's own moment on
  double DayDuration() const;           // decimal hours
  double NightDuration() const;         // decimal hours
  bool DayBirth() const;                // the moment lies after sunrise and before sunset
  double GetHoraStart(int hora) const;  // 1 to 24; clock number
  static int GetHoraType(int hora, int weekday);
  QString GetHoraName(int type) const;
  static int GetDayHora(int weekday);
  double GetChogadiyaStart(int period) const;  // 1 to 16; clock number
  double GetChogadiyaSpan(int period) const;
  static int GetChogadiyaType(int period, int weekday);
  QString GetChowGadiyaName(int type) const;
  double GetRahuKaalStartToday() const;  // clock number
  double GetRahuKaalSpanToday() const;
  double GetEvilMuhurthaStart(int kind) const;  // 1 Kulik, 2 Kalbela, 3 Yamghant, 4 Kantak; clock number
  double GetMuhurthaLength() const;

  // --- Vimshottari numbers: dasha/VimshottariNumbers.cpp ---------------------------------------------------
  static int GetVimSotPlanetLord(int position);            // positions 1 to 9; 0 outside
  static std::optional<int> GetVimSotPeriods(int planet);  // years
  int VimPeriod(int key) const;                            // years by the language's table
  QString VimName(int key) const;
  double VimBalAtBirth() const;                          // years
  double VimBalAtBirthKP() const;                        // years, under the KP ayanamsha
  static std::optional<double> TriPeriod(int position);  // years
  static std::optional<int> MuddaCycleNo(int position);  // days
  QString MuddaCycleName(int position) const;
  QString YogiCycleName(int key) const;
  QString YogiCycleLordName(int key) const;

  // --- words: content/TextLookups.cpp -----------------------------------------------------------------------
  // A key that is not found shows a notice and gives an empty text.
  void setTextDB(std::shared_ptr<TextDb> textDatabase, std::shared_ptr<Database> personDatabase);
  const std::shared_ptr<TextDb> &GetTxtDB() const { return textDb; }
  QString GetTextBetween(const QString &table, const QString &head, const QString &category) const;
  QString GetGenText(const QString &key) const;
  QString GetHeadValue(int kind, const QString &head, const QString &category) const;
  QString GetHeadValue(int kind, int head, const QString &category) const;
  QString GetYogaText(const QString &head) const;
  QString GetVPhalaText(const QString &head) const;
  QString GetConjText(const QString &head) const;
  QString GetFortuneText(const QString &head, const QString &category) const;
  QString GetYogNameText(const QString &head) const;
  QString GetNakshatraText(const QString &head, const QString &category) const;
  QString GetBhavaText(const QString &head, const QString &category) const;
  QString GetMuhuText(const QString &head, const QString &category) const;
  QString GetDailyText(const QString &head, const QString &category) const;

 private:
  friend class clsGochara;

  // What a calculation works out. A search for the ascendant's moment needs no planet, and its figures
  // come out the same without them.
  enum class Scope { WholeChart, AscendantOnly };

  // engine/Calculation.cpp
  void CalcChart(Scope scope);
  void CalcPlanets();
  void CalcPlanetsHourLater();
  void StorePositions(double julianDay, int offset);
  void ApplyAyanamsha(Scope scope);
  double SwissAyanamsha(int mode) const;
  void CalcHouses(Scope scope);
  double CalcAscendantAt(double hours, double latitude) const;
  void FillQuadrantCusps(double base, double step, int first);
  static double DayNumber(int day, int month, int year);
  double GeographicLongitude() const;
  void CalculateAscendant() { CalcChart(Scope::AscendantOnly); }

  // engine/VakyaPositions.cpp
  double VakyaAyanamsha() const;

  // attributes/Dignity.cpp
  bool CompoundRelation(int planet, bool withFriend) const;

  // attributes/Upagrahas.cpp
  struct HalfDay {
    bool byDay;
    double startHours, hours;  // decimal
  };
  HalfDay HalfDayOfMoment() const;
  double AscendantAtHours(double hours) const;
  double CalcUpagrahaAt(int dayPart, int nightPart) const;
  double CalcMandi() const;
  int ArudhaOf(int house) const;

  // attributes/DivisionalCharts.cpp
  void CalcVargaPositions(double degrees);

  // panchang/
  void CalcPanchangElements();
  double FindSunriseFrom(clsPlanets &start) const;
  double SunriseToSunsetSpan() const;

  UserSettings &settings;
  std::shared_ptr<::clsPerson> person;
  std::shared_ptr<TextDb> textDb;
  int languageMark = 0;

  int ayanType = 1;
  int rahuKetuMode = 1;
  mutable std::optional<int> manglikMode;
  mutable std::optional<int> varnaMode;

  std::array<double, 27> longitude{};  // entry 0 is never used: index 0 is houseMid entry 0
  std::array<double, 13> houseMid{};
  std::array<double, 13> houseBegin{};
  std::array<double, 14> kpCusp{};
  double centuries = 0;    // since 1900 January 0 at noon
  double dayFraction = 0;  // of the universal moment, counted from noon
  double obliquity = 0;
  double siderealHours = 0;

  mutable SignState signs;
  mutable VargaState vargas;
  mutable UpagrahaState upagrahas;
  AshtakavargaState ashtakavarga;
  PanchangState panchang;
  mutable DayState day;
  mutable TextState words;
  mutable std::unique_ptr<clsVakya> vakya;
};
