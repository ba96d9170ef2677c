// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The search for the moment of a longitude. Table: Speeds.
#include "dasha/clsGochara.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/Functions.h"

using Functions::Divide;
using Functions::Int;

namespace {

constexpr int MaxRounds = 26;
constexpr double CircleMinutes = 21600;  // of arc

enum Point { Ascendant, Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu };

struct SpeedRow {
  double typical, slowest;  // minutes of time per degree
  double window;            // degrees of distance within which the present speed steers
};

constexpr std::array<SpeedRow, 13> Speeds{{
    {3.5, 5, 5},          // ascendant
    {1450, 5000, 30},     // Sun
    {1200, 5000, 30},     // Mercury
    {1300, 5000, 30},     // Venus
    {1800, 8000, 30},     // Mars
    {9500, 50000, 30},    // Jupiter
    {10000, 40000, 30},   // Saturn
    {105, 300, 30},       // Moon
    {23000, 60000, 30},   // Rahu
    {23000, 60000, 30},   // Ketu
    {28000, 60000, 30},   // Uranus
    {50000, 120000, 30},  // Neptune
    {50000, 120000, 30},  // Pluto
}};

SpeedRow GetSpeedRow(int point) {
  return point < 0 || point >= static_cast<int>(Speeds.size()) ? SpeedRow{0, 0, 0} : Speeds[static_cast<size_t>(point)];
}

// The planets that turn back often for their speed.
bool IsSuperior(int planet) { return planet == Mars || planet == Jupiter || planet == Saturn; }

bool MovesBackward(int planet) { return planet == Rahu || planet == Ketu; }

}  // namespace

std::unique_ptr<clsPlanets> clsGochara::Gochara(int planet, double target, double tolerance, const clsPlanets &chart) {
  Search(planet, target, tolerance, chart);
  if (planet == Ascendant) {
    // The search went without planets; the chart handed over has them, and the found moment to the minute.
    auto found = std::make_unique<clsPlanets>(chart.Settings());
    WorkChart->CopySettingTo(*found);
    found->Calculate();
    WorkChart->CopySettingTo(*found);
    WorkChart = std::move(found);
  }
  return std::move(WorkChart);
}

std::unique_ptr<clsPlanets> clsGochara::FindAscendant(double target, double tolerance, const clsPlanets &chart) {
  Search(Ascendant, target, tolerance, chart);
  return std::move(WorkChart);
}

void clsGochara::ResetSearch() {
  previous = {};
  Distance = StepMinutes = Rate = Longitude = 0;
}

void clsGochara::Search(int planet, double target, double tolerance, const clsPlanets &chart) {
  ResetSearch();
  StartChart = std::make_unique<clsPlanets>(chart.Settings());
  WorkChart = std::make_unique<clsPlanets>(chart.Settings());
  chart.CopySettingTo(*StartChart);
  chart.CopySettingTo(*WorkChart);
  Planet = planet;
  Target = target;
  Tolerance = tolerance;
  Wrapped = false;
  CalculateChart(*StartChart);
  CalculateChart(*WorkChart);
  Rounds = 0;
  SearchStep();
}

void clsGochara::CalculateChart(clsPlanets &chart) const {
  if (Planet == Ascendant)
    chart.CalculateAscendant();
  else
    chart.Calculate();
}

void clsGochara::SearchStep() {
  do {
    Rounds = Rounds + 1;
    CalcStep();
    AdvanceChart();
  } while (Rounds < MaxRounds && !Reached());
}

void clsGochara::AdvanceChart() {
  WorkChart->clsPerson().AddMinutes(StepMinutes);
  CalculateChart(*WorkChart);
}

bool clsGochara::Reached() const {
  const double minutes = 60 * WorkChart->PlanetLongi(Planet);
  if (Target == 0) return std::abs(minutes - CircleMinutes) <= Tolerance || minutes <= Tolerance;
  if (Target == 360) return !(minutes > CircleMinutes - Tolerance && minutes > Tolerance);
  return std::abs(minutes - 60 * Target) <= Tolerance;
}

void clsGochara::CalcStep() {
  const SpeedRow row = GetSpeedRow(Planet);
  Longitude = WorkChart->PlanetLongi(Planet);
  const bool crossed = CrossedZero();
  if (crossed || Wrapped) {
    Longitude = StartBeyondTarget() ? -(360 - Longitude) : Longitude + 360;
    if (crossed) {
      CrossedZero();  // asked with the new value, for what it does to Wrapped
      Wrapped = !Wrapped;
    }
  }
  Distance = (Target - Longitude) * 60;

  const bool hasPrevious = previous.longitude != 0;
  Rate = hasPrevious && Longitude != previous.longitude ? EstimateRate() : row.typical;
  const double speed = WorkChart->PlanetSpeed(Planet);
  const double now = std::abs(Divide(60, speed, "the speed of a planet that stands still"));  // minutes per degree
  const double degreesLeft = std::abs(Distance / 60);
  const bool near = degreesLeft < row.window;

  if (near && now < row.slowest) Rate = now;
  if (Rate > row.slowest) {
    if (IsSuperior(Planet))
      Rate = (row.typical + now) / 2;
    else
      Rate = near ? row.typical : (row.typical + now) / 2;
  }
  if (speed < 0) {
    if (IsSuperior(Planet) && near)
      Rate = row.typical + now;
    else
      Rate = near ? row.typical : (row.typical + now) / 2;
  }
  if (Planet != Mars && Rate > row.slowest) Rate = row.slowest;
  if (!MovesBackward(Planet) && WorkChart->RetroGrade(Planet) && std::abs(Distance) <= 120) Rate = Rate * 2;
  if (Rate < 1) Rate = EstimateRate();
  if (Rate == 0) Rate = row.typical;
  if (Rate < 1 && Planet == Mercury) Rate = row.typical;

  if (Longitude < 0 || Longitude > 360) Longitude = WorkChart->PlanetLongi(Planet);
  StepMinutes = Distance / 60 * Rate;
  if (StepMinutes > -1 && StepMinutes < 0) StepMinutes = -1;
  if (StepMinutes > 0 && StepMinutes < 1) StepMinutes = 1;
  if (MovesBackward(Planet)) StepMinutes = -StepMinutes;

  previous = {Distance, Longitude, Rate, WorkChart->clsPerson().GetBirthDate()};
}

double clsGochara::EstimateRate() const {
  if (previous.longitude == 0) return 0;
  const double motion = Divide((previous.longitude - Longitude) * 60, StepMinutes, "the motion of a search step");
  return std::abs(Divide(60, motion, "the motion of a search step"));
}

bool clsGochara::StartBeyondTarget() const { return StartChart->PlanetLongi(Planet) > Target; }

double clsGochara::ZeroWindow() const {
  const qint64 seconds = StartChart->clsPerson().GetBirthDate().secsTo(WorkChart->clsPerson().GetBirthDate());
  const double minutes = std::abs(static_cast<double>(seconds / 60));
  const double window = Functions::Fix(Divide(minutes, Int(GetSpeedRow(Planet).typical), "the window of a search"));
  return std::clamp(window, Planet == Mercury ? 90.0 : 60.0, 150.0);
}

bool clsGochara::CrossedZero() {
  if (previous.longitude == 0) return false;
  const double window = ZeroWindow();
  const QDateTime start = StartChart->clsPerson().GetBirthDate(), now = WorkChart->clsPerson().GetBirthDate();
  const bool leaptUp = Longitude > previous.longitude + window;
  const bool leaptDown = Longitude < previous.longitude - window;
  const bool beyond = StartBeyondTarget();
  if (!Wrapped) return beyond ? leaptUp && start < now : leaptDown && start > now;
  if (beyond ? leaptDown && start < now : leaptUp && start > now) Wrapped = false;
  return false;
}
