// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"
#include "panchang/DailyYogas.h"

namespace {

Value InputNamed(const QString &letter, const DailyYogas::Inputs &inputs) {
  switch (letter.isEmpty() ? 0 : letter.front().toLatin1()) {
    case 'w': return inputs.weekday;
    case 't': return inputs.tithi;
    case 'y': return inputs.tithiType;
    case 'n': return inputs.nakshatra;
    case 'm': return inputs.month;
    case 's': return inputs.sunNakshatra;
    case 'c': return inputs.moonNakshatra;
    case 'r': return inputs.moonSign;
    case 'l': return inputs.ascendantSign;
    default: return {};
  }
}

}  // namespace

void RegisterYogaFigures() {
  Members::Register("YogaInput", [](Members &members, const Question &question) {
    return InputNamed(question.arguments.value(0), DailyYogas::InputsOf(members.Chart()));
  });
  Members::Register("yogas", [](Members &members, const Question &) {
    QStringList heads;
    for (const QString &head : DailyYogas::HeadsThatHold(members.Chart())) heads << head;
    return Value(heads.join(QLatin1Char('|')));
  });
  // "IsAdham 16": the test by its name, with its number on the page.
  for (const char *name : {"IsAmritSiddhi", "IsKrakach",       "IsHutashan",        "IsYamghant",  "IsShunyaTithi", "IsShunyaNakshatra",
                           "IsMrityuTithi", "IsJupVenCombust", "IsVidal",           "IsPanchaka",  "IsVajra",       "IsDwipushkar",
                           "IsTripushkar",  "IsBhumiSupt",     "IsSiddhiTithi",     "IsAdham",     "IsVisha",       "IsRavi",
                           "IsGandMool",    "IsAmritTithi",    "IsDagdhaNakshatra", "IsSamvartak", "IsDagdha",      "IsTithiNakshatropann",
                           "IsShunyaRashi", "IsDagdhaLagna",   "IsUtpaat",          "IsMrityuNak", "IsKaan",        "IsSiddhi"})
    Members::Register(QLatin1String(name), [](Members &members, const Question &question) {
      const size_t number = question.suffix.trimmed().toUInt();
      return Value(DailyYogas::All().at(number - 1).holds(DailyYogas::InputsOf(members.Chart())));
    });
}
