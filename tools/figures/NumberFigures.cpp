// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "engine/Functions.h"
#include "figures/Members.h"

namespace {

// The normalisers are asked with whole numbers and answer with them.
void BindNormaliser(const char *name, double (*normaliser)(double)) {
  Members::Register(QLatin1String(name), [normaliser](Members &members, const Question &question) {
    return Value(static_cast<int>(normaliser(members.Number(question.arguments.value(0)))));
  });
}

}  // namespace

void RegisterNumberFigures() {
  BindNormaliser("NormDeg360", Functions::NormDeg360);
  BindNormaliser("Norm30", Functions::Norm30);
  BindNormaliser("Norm27", Functions::Norm27);
  BindNormaliser("Norm24", Functions::Norm24);
  BindNormaliser("Norm7", Functions::Norm7);
  BindNormaliser("Norm12", Functions::Norm12);
  BindNormaliser("Norm7Z", Functions::Norm7Z);
  BindNormaliser("Norm9", Functions::Norm9);
  Members::Bind("ModPos", &Functions::ModPos);
  Members::Bind("FracVar", &Functions::FracVar);
  Members::Bind("FracText", &Functions::FracText);
  Members::Bind("Two", &Functions::Two);
  Members::Bind("ParseDayFirst", &Functions::ParseDayFirst);
  Members::Bind("TimeAMPM", &Functions::TimeAMPM);

  Members::Bind("ConvertDateToNum", &clsPlanets::ConvertDateToNum);
  Members::Bind("ConvertDateToText", &clsPlanets::ConvertDateToText);
  Members::Bind("ConvertDateToTextEng", &clsPlanets::ConvertDateToTextEng);
  Members::Bind("GetMonthNameByNum", &clsPlanets::GetMonthNameByNum);
  Members::Bind("GetMonthNameByNumEng", &clsPlanets::GetMonthNameByNumEng);
  Members::Bind("MinToDec", &clsPlanets::MinToDec);
  Members::Bind("GetMin", &clsPlanets::GetMin);
  Members::Bind("DegToDec", &clsPlanets::DegToDec);
  Members::Bind("DecToDeg", &clsPlanets::DecToDeg);
  Members::Bind("ConvertValNoDeg", &clsPlanets::ConvertValNoDeg);
  Members::Bind("ConvertValNoDegNoSec", &clsPlanets::ConvertValNoDegNoSec);
  Members::Bind("ConvertToDegNoVal", &clsPlanets::ConvertToDegNoVal);
  Members::Bind("DateAddEx", &clsPlanets::DateAddEx);
  Members::Bind("AddDecValToDate", &clsPlanets::AddDecValToDate);
  Members::Bind("FirstDayOfMonth", &clsPlanets::FirstDayOfMonth);
  Members::Bind("FirstDayOfYear", &clsPlanets::FirstDayOfYear);
  Members::Bind("MaxDayInMonth", &clsPlanets::MaxDayInMonth);
  Members::Bind("BhavBeginName", &clsPlanets::BhavBeginName);
  Members::Bind("BhavMidName", &clsPlanets::BhavMidName);
  Members::Bind("AyanamshName", &clsPlanets::AyanamshName);
  Members::Bind("Direction", &clsPlanets::Direction);
}
