// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/clsDashas.h"

#include "engine/Functions.h"
#include "platform/Errors.h"

using Functions::ModPos;

namespace {

constexpr double CycleYears = 120;
constexpr double NakshatraSpan = 13.333333333333334;
constexpr int Moon = 7;
constexpr int Deepest = 5;

const std::array<QString, Deepest> LevelNames{QStringLiteral("Mahadasha"), QStringLiteral("Antardasha"), QStringLiteral("Pratyantara"),
                                              QStringLiteral("SookshmaDasha"), QStringLiteral("Prana")};

}  // namespace

QDateTime clsDashas::AddYears(const QDateTime &date, double years) {
  int unit = 1;  // years
  return clsPlanets::AddDecValToDate(years, unit, date);
}

clsDashas::clsDashas(std::function<const clsPlanets &()> birthChart, std::function<QDateTime()> analysisMoment)
    : birth(std::move(birthChart)), moment(std::move(analysisMoment)) {}

const clsPlanets &clsDashas::Chart() const {
  if (!current) throw UsageError(QStringLiteral("The dasha has no chart yet: it is opened from its page."));
  return *current;
}

void clsDashas::CalcDashaVimshottari(const clsPlanets &chart) {
  StartAtBirth(chart);
  ShowDashaLevel();
}

// The first level begins with the period in which birth falls, so its start lies before the birth.
void clsDashas::StartAtBirth(const clsPlanets &chart) {
  current = &chart;
  const clsPlanets &birthChart = birth();
  const double moon = birthChart.PlanetLongi(Moon);
  const int nakshatra = birthChart.NakOf(Moon);
  const int position = static_cast<int>(ModPos(nakshatra, 9));
  const double left = (nakshatra * NakshatraSpan - moon) / NakshatraSpan;
  const int lord = clsPlanets::GetVimSotPlanetLord(position);
  const int years = clsPlanets::GetVimSotPeriods(lord).value_or(0);
  const double balance = left * years;
  const QDateTime end = AddYears(chart.clsPerson().GetBirthDate(), balance);
  const QDateTime start = AddYears(end, -years);
  level = 1;
  path.clear();
  GenerateDashaLevel(lord, position, start, CycleYears, records);
}

double clsDashas::CalcSubPeriodLength(double parentLength, int lord) {
  return parentLength * (clsPlanets::GetVimSotPeriods(lord).value_or(0) / CycleYears);
}

void clsDashas::GenerateDashaLevel(int lord, int position, QDateTime start, double parentLength, DashaLevel &out) {
  path.resize(static_cast<size_t>(level) + 1);
  path[static_cast<size_t>(level) - 1] = QString::number(lord);
  for (DashaPeriod &period : out) {
    period = {lord, CalcSubPeriodLength(parentLength, lord), start, position};
    start = AddYears(start, period.Length);
    position = static_cast<int>(ModPos(position + 1, 9));
    lord = clsPlanets::GetVimSotPlanetLord(position);
  }
}

void clsDashas::Forget() {
  current = nullptr;
  level = 0;
}

// Takes the period by value: the level that it stands in is replaced.
void clsDashas::GenerateFrom(DashaPeriod period) { GenerateDashaLevel(period.Lord, period.Position, period.Start, period.Length, records); }

void clsDashas::GoDeep(int &index) {
  if (level >= Deepest) {
    page.status = QStringLiteral("Can't generate beyond Prana Dasha.");
    return;
  }
  SubscriptError::Check("dasha period", index, 0, 8);
  index = index + 1;
  GenerateFrom(records[static_cast<size_t>(index - 1)]);
  level = level + 1;
  ShowDashaLevel();
}

void clsDashas::GoUp() {
  if (level == 1) {
    page.status = QStringLiteral("Can't go above Mahadasha.");
    return;
  }
  if (level == 2) {
    CalcDashaVimshottari(birth());
    return;
  }
  const std::vector<QString> copy = path;
  const int from = level;
  CalcDashaVimshottari(birth());
  for (int k = 1; k <= from - 2; ++k) {
    const int i = FindLordPosition(copy[static_cast<size_t>(k) - 1]);
    SubscriptError::Check("dasha period", i, 1, 9);
    GenerateFrom(records[static_cast<size_t>(i - 1)]);
    level = level + 1;
  }
  ShowDashaLevel();
}

int clsDashas::FindLordPosition(const QString &lordText) const {
  const int lord = lordText.toInt();
  for (size_t i = 0; i < records.size(); ++i)
    if (records[i].Lord == lord) return static_cast<int>(i) + 1;
  return 0;
}

void clsDashas::ShowDashaLevel() {
  const clsPlanets &words = Chart();
  const QString separator = words.GetHeadValue(1, QStringLiteral(":"), QStringLiteral("Symb"));
  for (size_t i = 0; i < records.size(); ++i) {
    const QDate date = records[i].Start.date();
    const QTime time = records[i].Start.time();
    // An hour of exactly 12 reads as before noon.
    const QString halfDay = words.GetHeadValue(1, time.hour() > 12 ? QStringLiteral("PM") : QStringLiteral("AM"), QStringLiteral("Gen"));
    page.lblVimElement[i] =
        QStringLiteral("%1 - %2 %3 %4 %5%6%7 %8")
            .arg(words.PlanetNameFull(records[i].Lord), QString::number(date.day()), words.GetMonthNameByNum(date.month()),
                 QString::number(date.year()), QString::number(Functions::Whole(Functions::Norm12(time.hour()))), separator,
                 QString::number(time.minute()), halfDay);
  }
  page.levelHeading = words.GetHeadValue(1, LevelNames[static_cast<size_t>(level - 1)], QString());
  page.pathHeading = level == 1 ? words.GetHeadValue(1, LevelNames[0], QStringLiteral("Gen")) : ShowDashaPath();
  page.status.clear();
}

QString clsDashas::ShowDashaPath() const {
  const clsPlanets &words = Chart();
  const auto lordName = [&](size_t entry) { return words.PlanetName(path[entry].toInt()); };
  QString text = words.GetHeadValue(1, QStringLiteral("Dasha"), QStringLiteral("Gen")) +
                 words.GetHeadValue(1, QStringLiteral(":"), QStringLiteral("symb")) + QLatin1Char(' ') + lordName(0);
  for (size_t entry = 1; entry + 1 < path.size(); ++entry)
    text += words.GetHeadValue(1, QStringLiteral("-"), QStringLiteral("Symbols")) + lordName(entry);
  return text;
}

QString clsDashas::CalcCurrentDasha(const clsPlanets &chart) {
  const QDateTime target = moment();
  StartAtBirth(chart);
  QString result;
  int i = 0;
  while (level != Deepest + 1) {
    i = i + 1;
    int chosen = 0;
    if (records[static_cast<size_t>(i - 1)].Start >= target) {
      if (i < 2) {
        // A level that starts at or after the moment empties the chain and is searched on.
        result.clear();
        continue;
      }
      chosen = i - 1;
    } else if (i < 9) {
      continue;
    } else {
      chosen = 9;
    }
    const DashaPeriod period = records[static_cast<size_t>(chosen - 1)];
    result += QString::number(period.Lord) + QLatin1Char(':');
    GenerateFrom(period);
    level = level + 1;
    i = 0;
  }
  return result;
}
