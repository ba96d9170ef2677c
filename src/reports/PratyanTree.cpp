// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/PratyanTree.h"

#include "dasha/clsDashas.h"

namespace {

constexpr double Inch = 1440;
constexpr int Deepest = 3;
constexpr double CycleYears = 120;

// The report's page: columns left of which a label begins, and the rule above each row of Mahadashas.
constexpr double ColumnLeft[]{0.8 * Inch, 2.9 * Inch, 5 * Inch};
constexpr double BandTop[]{1.9 * Inch, 4.74 * Inch, 7.626 * Inch};
constexpr double PartsTop[]{2.4 * Inch, 5.22 * Inch, 8.1 * Inch};
constexpr double PageShift = 100;  // the page adds it to every label
constexpr double DateLeft = 0.74 * Inch;
constexpr double RowStep = 340;

void AddParts(PratyanPeriod &whole, double years, int position, const clsPlanets &words, const QDateTime &moment) {
  QDateTime begin = whole.begin;
  for (int i = 0; i < 9; ++i) {
    PratyanPeriod part;
    part.lord = clsPlanets::GetVimSotPlanetLord(position);
    part.level = whole.level + 1;
    part.name = words.PlanetNameFull(part.lord);
    part.begin = begin;
    const double length = years * (clsPlanets::GetVimSotPeriods(part.lord).value_or(0) / CycleYears);
    part.end = begin = clsDashas::AddYears(begin, length);
    part.running = whole.running && part.begin < moment && moment <= part.end;
    if (part.level < Deepest) AddParts(part, length, position, words, moment);
    whole.parts.push_back(std::move(part));
    position = position % 9 + 1;
  }
}

}  // namespace

void PratyanTree::FindPratyantara(const clsPlanets &birthChart, const QDateTime &moment) {
  periods.clear();
  months.assign(1, QString());
  for (int month = 1; month <= 12; ++month) months.push_back(birthChart.GetMonthNameByNum(month).left(3));
  clsDashas dashas([&]() -> const clsPlanets & { return birthChart; }, [&] { return moment; });
  dashas.CalcDashaVimshottari(birthChart);
  for (const DashaPeriod &record : dashas.Records()) {
    PratyanPeriod period;
    period.lord = record.Lord;
    period.name = birthChart.PlanetNameFull(record.Lord);
    period.begin = record.Start;
    period.end = clsDashas::EndOf(record);
    period.running = period.begin < moment && moment <= period.end;
    AddParts(period, record.Length, record.Position, birthChart, moment);
    periods.push_back(std::move(period));
  }
}

QString PratyanTree::DateText(const QDateTime &date) const {
  const QDate day = date.date();
  return QStringLiteral("%1 %2 %3").arg(QString::number(day.day()), months[static_cast<size_t>(day.month())], QString::number(day.year()));
}

std::vector<PratyanLabel> PratyanTree::Labels() const {
  std::vector<PratyanLabel> labels;
  for (size_t i = 0; i < periods.size(); ++i) {
    const PratyanPeriod &whole = periods[i];
    const double left = ColumnLeft[i % 3], top = BandTop[i / 3] - PageShift;
    labels.push_back({whole.name, left, top + 100, true});
    labels.push_back({DateText(whole.begin), left + DateLeft, top + 100, whole.running});
    labels.push_back({QStringLiteral("\u2013 ") + DateText(whole.end), left + DateLeft - 183, top + 380, whole.running});
    double row = PartsTop[i / 3] - PageShift + 50;
    for (const PratyanPeriod &part : whole.parts) {
      // The running one has a mark as well as weight.
      if (part.running) labels.push_back({QStringLiteral("\u25BA"), left - 230, row, true});
      labels.push_back({part.name, left, row, part.running});
      labels.push_back({DateText(part.begin), left + DateLeft, row, part.running});
      row += RowStep;
    }
  }
  return labels;
}
