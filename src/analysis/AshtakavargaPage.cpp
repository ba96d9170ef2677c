// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/AshtakavargaPage.h"

#include <algorithm>

#include "analysis/StudyWords.h"

namespace {

constexpr int Ascendant = 0, LastPoint = 12;

// In the order of the weekdays, then the node and the ascendant.
constexpr std::array<int, AshtakavargaPage::Bodies> BodyOrder{1, 7, 4, 2, 5, 3, 6, 8, Ascendant};

// "Leo 41", or several signs with the same number.
QString SignsWith(int points, const AshtakavargaPage &page) {
  QStringList signs;
  const AshtakavargaPage::Row &total = page.rows[AshtakavargaPage::Total];
  for (size_t sign = 1; sign <= 12; ++sign)
    if (total.points[sign] == points) signs << page.signName[sign];
  return QStringLiteral("%1 (%2)").arg(signs.join(QStringLiteral(", "))).arg(points);
}

}  // namespace

double AshtakavargaPage::Row::Share(int sign) const {
  return std::clamp(double(points[static_cast<size_t>(sign)] - least) / std::max(1, most - least), 0.0, 1.0);
}

KundaliPage AshtakavargaPage::ChartOf(size_t row) const {
  KundaliPage chart;
  chart.houseNumber = ascendantSign;
  chart.planets.push_back({ascendantSign, ascendantName});
  for (int sign = 1; sign <= 12; ++sign) chart.planets.push_back({sign, QString::number(rows[row].points[static_cast<size_t>(sign)])});
  return chart;
}

std::unique_ptr<clsPlanets> WithAshtakavarga(const clsPlanets &chart) {
  auto counted = std::make_unique<clsPlanets>(chart.Settings());
  for (int point = 0; point <= LastPoint; ++point) counted->SetPlanetLongi(point, chart.PlanetLongi(point));
  counted->AshTable();
  return counted;
}

AshtakavargaPage FillAshtakavarga(const clsPlanets &chart) {
  AshtakavargaPage page;
  const std::unique_ptr<clsPlanets> counted = WithAshtakavarga(chart);
  const SignNames signs = SignNames::Of(chart);
  page.signName = signs.full;
  page.narrowSign = signs.narrow;
  for (size_t i = 0; i < page.rows.size(); ++i) {
    AshtakavargaPage::Row &row = page.rows[i];
    const bool total = i == AshtakavargaPage::Total;
    row.name = total ? StudyWord(chart, "Total") : chart.PlanetNameFull(BodyOrder[i]);
    for (int sign = 1; sign <= 12; ++sign) {
      const int points = total ? counted->AshTotal(sign) : counted->AshVarga(BodyOrder[i], sign);
      row.points[static_cast<size_t>(sign)] = points;
      row.sum += points;
    }
  }
  page.ascendantSign = std::min(chart.PlanetRashiNum(Ascendant), 12);
  page.ascendantName = chart.PlanetName(Ascendant);
  page.lblSumHead = StudyWord(chart, "Sum");
  const std::array<int, 13> &points = page.rows[AshtakavargaPage::Total].points;
  const auto [fewest, most] = std::minmax_element(points.begin() + 1, points.end());
  // A body gives a sign up to eight points, one by each contributor. The total has no fixed scale: its own ends are the scale's.
  page.rows[AshtakavargaPage::Total].least = *fewest;
  page.rows[AshtakavargaPage::Total].most = *most;
  page.lblMost = StudyWord(chart, "MostPoints").arg(SignsWith(*most, page));
  page.lblFewest = StudyWord(chart, "FewestPoints").arg(SignsWith(*fewest, page));
  return page;
}
