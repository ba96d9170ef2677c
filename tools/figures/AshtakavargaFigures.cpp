// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <map>

#include "figures/Members.h"

namespace {

// The suffix tells what ran before the reading; without one AshTable ran once. Each such chart is made once a case.
clsPlanets &ChartAfter(Members &members, const QString &suffix) {
  static std::map<std::pair<int, QString>, std::unique_ptr<clsPlanets>> charts;
  std::unique_ptr<clsPlanets> &chart = charts[{members.Of().Number(), suffix}];
  if (chart) return *chart;
  chart = members.Of().NewChartOf(members.Of().RawPerson());
  const QString added = QStringLiteral(" after AshComp");
  if (suffix.startsWith(added)) {
    QStringList numbers = Members::Parse(suffix.mid(7)).arguments;
    std::array<int, 12> flags{};
    for (int house = 0; house < 12; ++house) flags[static_cast<size_t>(house)] = numbers.value(house).toInt();
    chart->AshComp(flags, numbers.value(12).toInt());
  } else if (suffix != QLatin1String(" before AshTable")) {
    chart->AshTable();
    if (suffix == QLatin1String(" after a second AshTable")) chart->AshTable();
  }
  return *chart;
}

}  // namespace

void RegisterAshtakavargaFigures() {
  Members::Register("Ashtak", [](Members &members, const Question &question) {
    return Value(ChartAfter(members, question.suffix).Ashtak(members.Whole(question.arguments.value(0))));
  });
  Members::Register("AshTotal", [](Members &members, const Question &question) {
    return Value(ChartAfter(members, question.suffix).AshTotal(members.Whole(question.arguments.value(0))));
  });
  Members::Register("AshVarga", [](Members &members, const Question &question) {
    const int body = members.Whole(question.arguments.value(0)), sign = members.Whole(question.arguments.value(1));
    return Value(ChartAfter(members, question.suffix).AshVarga(body, sign));
  });
}
