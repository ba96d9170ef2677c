// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/BirthAttributesPage.h"

#include "analysis/StudyWords.h"
#include "engine/NumberSet.h"

namespace {

constexpr int Moon = 7;

// The third, fifth and seventh tara hinder; the first is neither.
constexpr NumberSet GoodTaras{2, 4, 6, 8, 9}, BadTaras{3, 5, 7};

}  // namespace

BirthAttributesPage FillBirthAttributes(const clsPlanets &birthChart, const clsPlanets &todayChart) {
  BirthAttributesPage page;
  int nakshatra = 0;
  const std::optional<int> gana = birthChart.Gana(nakshatra);
  const std::optional<int> nadi = birthChart.NadiNo();
  const int tara = clsPlanets::GetTaraNum(birthChart.Nakshatra(), todayChart.Nakshatra());
  const struct {
    const char *head;
    QString value;
  } answers[] = {
      {"Gana", gana ? birthChart.AssignGana(*gana) : QString()},
      {"Nadi", nadi ? birthChart.AssignNadi(*nadi) : QString()},
      {"Yoni", birthChart.YoniName()},
      {"Varna", birthChart.Varna()},
      {"Vasya", birthChart.Vasya()},
      {"Rajju", birthChart.Rajju()},
      {"Paya", birthChart.Paya()},
      {"Vihag", birthChart.Vihag()},
      {"Tatwa", birthChart.Tatwa()},
      {"TaraToday", StudyWord(birthChart, "Tara", tara)},
  };
  for (size_t i = 0; i < page.rows.size(); ++i) {
    BirthAttributesPage::Row &row = page.rows[i];
    const QString head = QString::fromLatin1(answers[i].head);
    row.lblAttribute = StudyWord(birthChart, head);
    row.lblAttributeVal = answers[i].value.isEmpty() ? QStringLiteral("-") : answers[i].value;
    row.lblAttributeHelp = StudyWord(birthChart, head + QStringLiteral("Help"));
  }
  page.rows.back().tone = GoodTaras.Has(tara)  ? BirthAttributesPage::Tone::Good
                          : BadTaras.Has(tara) ? BirthAttributesPage::Tone::Bad
                                               : BirthAttributesPage::Tone::Plain;
  const std::optional<int> pada = birthChart.NakPadaPlanet(Moon);
  page.lblMoon =
      StudyWord(birthChart, "MoonLine")
          .arg(birthChart.PlanetRashiName(Moon), birthChart.NakNamePlanet(Moon), pada ? QString::number(*pada) : QStringLiteral("-"));
  return page;
}
