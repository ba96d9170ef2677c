// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

namespace {

Value TextOrEmpty(const QString &text) { return text.isEmpty() ? Value() : Value(text); }

// A member under the varna mode of the case, or under the one that the suffix names.
template <typename Read>
void BindVarna(const QString &name, Read read) {
  Members::Register(name, [read](Members &members, const Question &question) {
    clsPlanets &chart = members.Chart();
    const QString modeSuffix = QStringLiteral(" CalcModVarna=");
    if (!question.suffix.startsWith(modeSuffix)) return read(chart);
    const int before = chart.CalcModVarna();
    chart.SetCalcModVarna(question.suffix.mid(modeSuffix.size()).toInt());
    const Value answer = read(chart);
    chart.SetCalcModVarna(before);
    return answer;
  });
}

}  // namespace

void RegisterCompatibilityFigures() {
  Members::Register("Gana", [](Members &members, const Question &question) {
    int nakshatra = members.Whole(question.arguments.value(0));
    const std::optional<int> gana = members.Chart().Gana(nakshatra);
    return question.suffix == QLatin1String(" argument after") ? Value(nakshatra) : Value(gana);
  });
  Members::Register("AssignGana", [](Members &members, const Question &) {
    int nakshatra = 0;
    return Value(members.Chart().AssignGana(members.Chart().Gana(nakshatra).value_or(0)));
  });
  Members::Register("AssignNadi", [](Members &members, const Question &) {
    return Value(members.Chart().AssignNadi(members.Chart().NadiNo().value_or(0)));
  });
  Members::Bind("NadiNo", &clsPlanets::NadiNo);
  Members::Bind("RajjuType", &clsPlanets::RajjuType);
  Members::Bind("Rajju", &clsPlanets::Rajju);
  Members::Register("Vihag", [](Members &members, const Question &) { return TextOrEmpty(members.Chart().Vihag()); });
  Members::Bind("YoniNo", &clsPlanets::YoniNo);
  Members::Bind("YoniName", &clsPlanets::YoniName);
  BindVarna("Varna", [](clsPlanets &chart) { return TextOrEmpty(chart.Varna()); });
  BindVarna("VarnaNo", [](clsPlanets &chart) { return Value(chart.VarnaNo()); });
  Members::Bind("Vasya", &clsPlanets::Vasya);
  Members::Bind("VasyaNo", &clsPlanets::VasyaNo);
  Members::Bind("NadiPada", &clsPlanets::NadiPada);
  Members::Bind("Paya", &clsPlanets::Paya);
}
