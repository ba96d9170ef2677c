// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

namespace {

// A point under the mode of the case, or under the one that the suffix names.
void BindTimePoint(const QString &name, double (clsPlanets::*member)() const) {
  Members::Register(name, [member](Members &members, const Question &question) {
    clsPlanets &chart = members.Chart();
    const QString modeSuffix = QStringLiteral(" UpagrahaMode=");
    if (!question.suffix.startsWith(modeSuffix)) return Value((chart.*member)());
    const int before = chart.UpagrahaMode();
    chart.SetUpagrahaMode(question.suffix.mid(modeSuffix.size()).toInt());
    const double degrees = (chart.*member)();
    chart.SetUpagrahaMode(before);
    return Value(degrees);
  });
}

}  // namespace

void RegisterUpagrahaFigures() {
  Members::Bind("DhumaLongi", &clsPlanets::DhumaLongi);
  Members::Bind("VyatipataLongi", &clsPlanets::VyatipataLongi);
  Members::Bind("PariveshaLongi", &clsPlanets::PariveshaLongi);
  Members::Bind("IndraChapaLongi", &clsPlanets::IndraChapaLongi);
  Members::Bind("UpaketuLongi", &clsPlanets::UpaketuLongi);
  Members::Bind("BhukampaLongi", &clsPlanets::BhukampaLongi);
  Members::Bind("UlkaLongi", &clsPlanets::UlkaLongi);
  Members::Bind("BrahmadandaLongi", &clsPlanets::BrahmadandaLongi);
  Members::Bind("DhwajaLongi", &clsPlanets::DhwajaLongi);
  BindTimePoint("KalaBelaLong", &clsPlanets::KalaBelaLong);
  BindTimePoint("ParidhiLong", &clsPlanets::ParidhiLong);
  BindTimePoint("MrityuLong", &clsPlanets::MrityuLong);
  BindTimePoint("ArdhaPraharLong", &clsPlanets::ArdhaPraharLong);
  BindTimePoint("YamaKantakaLong", &clsPlanets::YamaKantakaLong);
  BindTimePoint("KodandaLong", &clsPlanets::KodandaLong);
  BindTimePoint("GulikaLong", &clsPlanets::GulikaLong);
  Members::Bind("MandiLong", &clsPlanets::MandiLong);
  Members::Bind("UpagrahaLongi", &clsPlanets::UpagrahaLongi);
  Members::Bind("UpagrahaSign", &clsPlanets::UpagrahaSign);
  Members::Bind("UpagrahaNak", &clsPlanets::UpagrahaNak);
  Members::Bind("UpaNakPada", &clsPlanets::UpaNakPada);
  Members::Bind("UpagrahaName", &clsPlanets::UpagrahaName);
  Members::Bind("UpagrahaNameSmall", &clsPlanets::UpagrahaNameSmall);
  Members::Bind("GulikaSign", &clsPlanets::GulikaSign);
  Members::Bind("AtmaKaraka", &clsPlanets::AtmaKaraka);
  Members::Bind("AtmaKarakaSign", &clsPlanets::AtmaKarakaSign);
  Members::Bind("KarakamsaLagna", &clsPlanets::KarakamsaLagna);
  Members::Bind("FindAroodhaLagna", &clsPlanets::FindAroodhaLagna);
  Members::Bind("FindUpaPadaLagna", &clsPlanets::FindUpaPadaLagna);
}
