// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <QRegularExpression>

#include "figures/Members.h"

void RegisterSignFigures() {
  Members::Bind("PlanetRashiNum", &clsPlanets::PlanetRashiNum);
  Members::Bind("Sign", &clsPlanets::Sign);
  Members::Bind("PlanetSign", &clsPlanets::PlanetSign);
  Members::Bind("GetSign", &clsPlanets::GetSign);
  Members::Bind("RashiNum", &clsPlanets::RashiNum);
  Members::Bind("ConvertRashiNum", &clsPlanets::ConvertRashiNum);
  Members::Bind("NakshatraNum", &clsPlanets::NakshatraNum);
  Members::Bind("Nakshatra", &clsPlanets::Nakshatra);
  Members::Bind("NakOf", &clsPlanets::NakOf);
  Members::Bind("Nak28GetNakshatra", &clsPlanets::Nak28GetNakshatra);
  Members::Bind("NakPadaNum", &clsPlanets::NakPadaNum);
  Members::Bind("NakPadaPlanet", &clsPlanets::NakPadaPlanet);
  Members::Bind("NakPada", &clsPlanets::NakPada);
  Members::Bind("Pada", &clsPlanets::Pada);
  Members::Bind("GetTaraNum", &clsPlanets::GetTaraNum);
  Members::Bind("CountPlanetInSign", &clsPlanets::CountPlanetInSign);
  Members::Bind("SignOccupiedNum", &clsPlanets::SignOccupiedNum);
  Members::Bind("SignLord", &clsPlanets::SignLord);
  Members::Bind("GetHouseLord", &clsPlanets::GetHouseLord);
  Members::Bind("GetRashiLordNum", &clsPlanets::GetRashiLordNum);
  Members::Bind("FindRashiLordNo", &clsPlanets::FindRashiLordNo);
  Members::Bind("PlanetRashiLordNum", &clsPlanets::PlanetRashiLordNum);
  Members::Bind("PlanetSignLord", &clsPlanets::PlanetSignLord);
  Members::Bind("NakLordNum", &clsPlanets::NakLordNum);
  Members::Bind("PlanetINNakof", &clsPlanets::PlanetINNakof);
  Members::Bind("PlanetSerialNumber", &clsPlanets::PlanetSerialNumber);
  Members::Bind("RashiClass", &clsPlanets::RashiClass);
  Members::Bind("HouseClass", &clsPlanets::HouseClass);
  Members::Bind("GetRashiElement", &clsPlanets::GetRashiElement);
  Members::Bind("ConvertRashi", &clsPlanets::ConvertRashi);
  Members::Bind("RashiName", &clsPlanets::RashiName);
  Members::Bind("PlanetRashiName", &clsPlanets::PlanetRashiName);
  Members::Bind("ConvertRashiEng", &clsPlanets::ConvertRashiEng);
  Members::Bind("SunSignEngByNumber", &clsPlanets::SunSignEngByNumber);
  Members::Bind("GetNakshatraName", &clsPlanets::GetNakshatraName);
  Members::Bind("NakNamePlanet", &clsPlanets::NakNamePlanet);
  Members::Bind("NakLordName", &clsPlanets::NakLordName);
  Members::Bind("GetNakLordName", &clsPlanets::GetNakLordName);
  Members::Bind("PlanetName", &clsPlanets::PlanetName);
  Members::Bind("PlanetNameFull", &clsPlanets::PlanetNameFull);
  Members::Bind("PlanetNameSmall", &clsPlanets::PlanetNameSmall);
  Members::Bind("FindFirstLetters", &clsPlanets::FindFirstLetters);
  Members::Bind("Tatwa", &clsPlanets::Tatwa);
  // A name that does not exist is an empty answer here.
  for (const auto &[name, function] :
       {std::pair("PlanetNameEng", &clsPlanets::PlanetNameEng), std::pair("PlanetNameFullEng", &clsPlanets::PlanetNameFullEng),
        std::pair("PlanetRashiNameEngSmall", &clsPlanets::PlanetRashiNameEngSmall)})
    Members::Register(QLatin1String(name), [f = function](Members &members, const Question &question) {
      const QString text = f(members.Whole(question.arguments.value(0)));
      return text.isEmpty() ? Value() : Value(text);
    });
  for (const auto &[name, member] :
       {std::pair("FindSunSign", &clsPlanets::FindSunSign), std::pair("FindSunSignEng", &clsPlanets::FindSunSignEng)})
    Members::Register(QLatin1String(name), [m = member](Members &members, const Question &question) {
      static const QRegularExpression date(QStringLiteral(" Day=(\\d+) Month=(\\d+)"));
      const QRegularExpressionMatch match = date.match(question.suffix);
      if (!match.hasMatch()) return Value((members.Chart().*m)());
      const auto chart = members.Of().NewCopy();
      chart->clsPerson().SetDay(match.captured(1).toInt());
      chart->clsPerson().SetMonth(match.captured(2).toInt());
      return Value((chart.get()->*m)());
    });

  Members::Bind("PrediVarga", &clsPlanets::PrediVarga);
  Members::Bind("PlanetInNavamsha", &clsPlanets::PlanetInNavamsha);
  Members::Bind("PlanetVargottama", &clsPlanets::PlanetVargottama);
  Members::Bind("PlanetGopuramsa", &clsPlanets::PlanetGopuramsa);
  Members::Bind("KrishAmsha", &clsPlanets::KrishAmsha);
  Members::Bind("NavamshSign", &clsPlanets::NavamshSign);
  Members::Bind("NavamshLord", &clsPlanets::NavamshLord);
  Members::Bind("SaptamshaLord", &clsPlanets::SaptamshaLord);
  Members::Bind("DashamamshaLord", &clsPlanets::DashamamshaLord);
  Members::Bind("DwaDashamamshaLord", &clsPlanets::DwaDashamamshaLord);
  Members::Bind("EkaDashamAmshaLord", &clsPlanets::EkaDashamAmshaLord);
  Members::Bind("DrekkanaLord", &clsPlanets::DrekkanaLord);
  Members::Bind("ChaturthamshLord", &clsPlanets::ChaturthamshLord);
  Members::Bind("PanchamAmshLord", &clsPlanets::PanchamAmshLord);
  Members::Bind("SastamshLord", &clsPlanets::SastamshLord);
  Members::Bind("VarAshtamamshaLord", &clsPlanets::VarAshtamamshaLord);
  Members::Bind("SashtiAmshaBenefic", &clsPlanets::SashtiAmshaBenefic);
  Members::Bind("Decanate", &clsPlanets::Decanate);
}
