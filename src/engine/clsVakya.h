// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// Positions by the traditional siddhantic method: days from the start of the Kali age, mean motions by revolutions
// in a great age, the manda and sighra corrections (Surya Siddhanta, chapters 1 to 3). Longitudes are sidereal
// degrees, 0 up to and including 360. It stands beside the modern positions and reads no file.
class clsVakya {
 public:
  // The moment is local clock time, the place degrees and minutes, north and east alone. Every result is written
  // anew. Throws ArithmeticError where the Sun does not rise on that day, near the poles.
  void Calculate(int day, int month, int year, int hour, int minute, int second, int latitudeDegrees, int latitudeMinutes,
                 int longitudeDegrees, int longitudeMinutes);

  // Stores a moment without working out positions.
  void SetMoment(int day, int month, int year, int hour, int minute, int second);

  // The ahargana of the stored moment: days since the start of the Kali age, with the time of day as fraction.
  double FindKaliDin() const;
  static double CalcVakyaAyanamsha(double ahargana);

  // Radians, 0 to pi. Throws ArithmeticError outside -1 to 1.
  static double Acos(double value);
  // The day's place in the week of seven, 0 to 6, counted from the start of the age, a Friday.
  static int WeekdayOfDay(double ahargana);

  double Sun() const { return sun; }
  double Moon() const { return moon; }
  double Mars() const { return mars; }
  double Mercury() const { return mercury; }
  double Jupiter() const { return jupiter; }
  double Venus() const { return venus; }
  double Saturn() const { return saturn; }
  double Rahu() const { return rahu; }
  double Ketu() const { return ketu; }
  double Ascendant() const { return ascendant; }
  double Ayanamsha() const { return ayanamsha; }

 private:
  struct Elements;  // of one of the five planets

  double KaliDayNumber() const;
  double DecimalTime() const;
  void CalcFivePlanets(double ahargana);
  double CalcAscendant() const;
  double RisingLength(int sign) const;

  static double MeanLongitude(double ahargana, double revolutions);
  static double MeanSunLongitude(double ahargana);
  static double TrueSun(double ahargana);
  static double TrueMoon(double ahargana);
  static double MeanNode(double ahargana);
  static double TruePlanet(double ahargana, const Elements &planet, double meanSun);
  static double ArcSin(double value);

  int day = 1, month = 1, year = 2000, hour = 0, minute = 0, second = 0;
  int latitudeDegrees = 0, latitudeMinutes = 0, longitudeDegrees = 0, longitudeMinutes = 0;

  double sun = 0, moon = 0, mars = 0, mercury = 0, jupiter = 0, venus = 0, saturn = 0;
  double rahu = 0, ketu = 0, ascendant = 0, ayanamsha = 0;
};
