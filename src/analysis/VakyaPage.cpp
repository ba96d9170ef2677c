// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/VakyaPage.h"

#include "analysis/StudyWords.h"
#include "engine/Functions.h"
#include "engine/clsVakya.h"
#include "platform/Errors.h"

namespace {

constexpr size_t Ayanamsha = 10;
constexpr int ModernAyanamsha = 13;

// In the order of the weekdays, then the nodes.
constexpr std::array<int, VakyaPage::Bodies> BodyOrder{0, 1, 7, 4, 2, 5, 3, 6, 8, 9};

const QString Dash = QStringLiteral("-");

QString DifferenceText(double degrees) { return (degrees < 0 ? QStringLiteral("-") : QStringLiteral("+")) + ArcText(degrees); }

}  // namespace

double ArcBetween(double first, double second) {
  const double arc = Functions::NormDeg360(first - second);
  return arc > 180 ? arc - 360 : arc;
}

std::array<double, VakyaPage::Rows> VakyaPositionsOf(const clsPlanets &chart) {
  const clsPerson &p = chart.clsPerson();
  clsVakya vakya;
  vakya.Calculate(p.Day(), p.Month(), p.Year(), p.Hour(), p.Minutes(), p.seconds(), p.LatDeg(), p.LatMT(), p.LongDeg(), p.LongMT());
  return {vakya.Ascendant(), vakya.Sun(),  vakya.Mercury(), vakya.Venus(), vakya.Mars(),     vakya.Jupiter(),
          vakya.Saturn(),    vakya.Moon(), vakya.Rahu(),    vakya.Ketu(),  vakya.Ayanamsha()};
}

VakyaPage FillVakya(const clsPlanets &chart) {
  VakyaPage page;
  std::optional<std::array<double, VakyaPage::Rows>> vakya;
  try {
    vakya = VakyaPositionsOf(chart);
  } catch (const ArithmeticError &error) {
    page.lblFailure = error.Sentence();
  }
  for (size_t i = 0; i < BodyOrder.size(); ++i) {
    VakyaPage::Row &row = page.rows[i];
    const int body = BodyOrder[i];
    const double modern = chart.PlanetLongi(body);
    row.lblBody = chart.PlanetNameFull(body);
    row.lblModernRashi = chart.ConvertToDegNoVal(modern);
    row.lblModernDegrees = clsPlanets::ConvertValNoDeg(modern);
    if (vakya) {
      const double siddhantic = (*vakya)[static_cast<size_t>(body)];
      row.lblVakyaRashi = chart.ConvertToDegNoVal(siddhantic);
      row.lblVakyaDegrees = clsPlanets::ConvertValNoDeg(siddhantic);
      row.lblDifference = DifferenceText(ArcBetween(siddhantic, modern));
    } else {
      row.lblVakyaRashi = row.lblVakyaDegrees = row.lblDifference = Dash;
    }
  }
  VakyaPage::Row &ayanamsha = page.rows.back();
  ayanamsha.lblBody = StudyWord(chart, "Ayanamsha");
  ayanamsha.lblVakyaRashi = ayanamsha.lblModernRashi = Dash;
  ayanamsha.lblModernDegrees = ArcText(chart.PlanetLongi(ModernAyanamsha));
  ayanamsha.lblVakyaDegrees = vakya ? ArcText((*vakya)[Ayanamsha]) : Dash;
  ayanamsha.lblDifference = vakya ? DifferenceText((*vakya)[Ayanamsha] - chart.PlanetLongi(ModernAyanamsha)) : Dash;

  page.lblBodyHead = chart.GetGenText(QStringLiteral("TPlanets"));
  page.lblVakyaHead = StudyWord(chart, "VakyaHead");
  page.lblModernHead = StudyWord(chart, "ModernHead");
  page.lblDegreesHead = chart.GetGenText(QStringLiteral("Degrees"));
  page.lblDifferenceHead = StudyWord(chart, "Difference");
  page.lblNodeNote = StudyWord(chart, "NodeNote");
  // Only the siddhantic ascendant asks for the latitude, and it knows no south.
  if (chart.clsPerson().TextNS().compare(QLatin1String("S"), Qt::CaseInsensitive) == 0) page.lblPlaceNote = StudyWord(chart, "PlaceNote");
  return page;
}
