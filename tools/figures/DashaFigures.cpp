// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/clsGochara.h"
#include "engine/Functions.h"
#include "figures/Members.h"

namespace {

clsDashas NewDashas(Members &members, const QDateTime &moment = {}) {
  clsPlanets &chart = members.Of().Chart();
  return clsDashas([&chart]() -> const clsPlanets & { return chart; }, [moment] { return moment; });
}

// The 0-based indices by which a case goes down.
std::array<int, 4> WayDown(int caseNumber) {
  return {(7 * caseNumber + 3) % 9, (5 * caseNumber + 1) % 9, (2 * caseNumber + 8) % 9, 4 * caseNumber % 9};
}

void GoDown(clsDashas &dashas, int caseNumber, int steps) {
  for (int step = 0; step < steps; ++step) {
    int index = WayDown(caseNumber)[static_cast<size_t>(step)];
    dashas.GoDeep(index);
  }
}

// ".Lord(3)" and its like, of the level that is open.
Value LevelAnswer(const clsDashas &dashas, const QString &suffix) {
  const Question question = Members::Parse(suffix.mid(1));
  if (question.name == QLatin1String("Level")) return dashas.Level();
  const DashaPeriod &period = dashas.Records().at(static_cast<size_t>(question.arguments.value(0).toInt() - 1));
  if (question.name == QLatin1String("Lord")) return period.Lord;
  if (question.name == QLatin1String("Length")) return period.Length;
  if (question.name == QLatin1String("Start")) return period.Start;
  return period.Position;
}

Value GocharaAnswer(Members &members, const Question &question) {
  clsPlanets &chart = members.Chart();
  const int planet = members.Whole(question.arguments.value(0));
  const QString targetText = question.arguments.value(1);
  double target = members.Number(targetText);
  if (targetText.startsWith(QLatin1Char('+')) || targetText.startsWith(QLatin1Char('-'))) {
    target = Functions::Int(chart.PlanetLongi(planet)) + target;
    if (target >= 360) target -= 360;
    if (target < 0) target += 360;
  }
  const auto found = clsGochara().Gochara(planet, target, members.Number(question.arguments.value(2)), chart);
  if (question.suffix == QLatin1String(".Date")) return found->clsPerson().GetBirthDate();
  return found->PlanetLongi(planet);
}

}  // namespace

void RegisterDashaFigures() {
  Members::Bind("GetVimSotPlanetLord", &clsPlanets::GetVimSotPlanetLord);
  Members::Bind("GetVimSotPeriods", &clsPlanets::GetVimSotPeriods);
  Members::Bind("VimName", &clsPlanets::VimName);
  Members::Bind("VimBalAtBirth", &clsPlanets::VimBalAtBirth);
  Members::Bind("VimBalAtBirthKP", &clsPlanets::VimBalAtBirthKP);
  Members::Bind("TriPeriod", &clsPlanets::TriPeriod);
  Members::Bind("MuddaCycleNo", &clsPlanets::MuddaCycleNo);
  Members::Bind("MuddaCycleName", &clsPlanets::MuddaCycleName);
  Members::Bind("YogiCycleName", &clsPlanets::YogiCycleName);
  Members::Bind("YogiCycleLordName", &clsPlanets::YogiCycleLordName);
  // The years come from the text table, so the figure names the row.
  Members::Register("VimPeriod", [](Members &members, const Question &question) {
    members.Chart().VimPeriod(members.Whole(question.arguments.value(0)));
    return Value(QStringLiteral("CNVT|%1|LysY1").arg(question.arguments.value(0)));
  });

  Members::Register("Dasha.Level", [](Members &members, const Question &question) {
    clsDashas dashas = NewDashas(members);
    dashas.CalcDashaVimshottari(members.Of().Chart());
    GoDown(dashas, members.Of().Number(), question.arguments.value(0).toInt() - 1);
    return LevelAnswer(dashas, question.suffix);
  });
  Members::Register("Dasha.GoUp", [](Members &members, const Question &question) {
    clsDashas dashas = NewDashas(members);
    dashas.CalcDashaVimshottari(members.Of().Chart());
    GoDown(dashas, members.Of().Number(), 4);
    for (int up = 0; up < question.arguments.value(0).toInt(); ++up) dashas.GoUp();
    return LevelAnswer(dashas, question.suffix);
  });
  // A step down from the deepest level changes nothing.
  for (const char *member : {"Level", "Start"})
    Members::Register(QStringLiteral("Dasha.GoDeepAt5.") + QLatin1String(member), [member](Members &members, const Question &question) {
      clsDashas dashas = NewDashas(members);
      dashas.CalcDashaVimshottari(members.Of().Chart());
      GoDown(dashas, members.Of().Number(), 4);
      int index = 0;
      dashas.GoDeep(index);
      return LevelAnswer(dashas, QStringLiteral(".%1(%2)").arg(QLatin1String(member), question.arguments.value(0)));
    });
  Members::Register("CalcCurrentDasha", [](Members &members, const Question &question) {
    clsPlanets &chart = members.Of().Chart();
    QDateTime target;
    const Question inner = Members::Parse(question.arguments.value(0));
    if (inner.name == QLatin1String("Start")) {
      clsDashas dashas = NewDashas(members);
      dashas.CalcDashaVimshottari(chart);
      target = dashas.Records().at(static_cast<size_t>(inner.arguments.value(0).toInt() - 1)).Start;
    } else {
      target = chart.clsPerson().GetBirthDate().addDays(members.Whole(question.arguments.value(0)));
    }
    return Value(NewDashas(members, target).CalcCurrentDasha(chart));
  });
  Members::Register("Gochara", GocharaAnswer);
}
