// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Tables: WeekdayNames, ElementNames, SuryaYogaHeads.
#include "content/PredictionKeys.h"

#include <array>

#include "engine/Functions.h"
#include "engine/clsPlanets.h"

namespace PredictionKeys {
namespace {

constexpr int DailyText = 11, TransitText = 12;

constexpr std::array<const char *, 7> WeekdayNames{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr std::array<const char *, 4> ElementNames{"Fire", "Earth", "Air", "Water"};

constexpr std::array<const char *, 27> SuryaYogaHeads{
    "YogVishKumbha", "YogPriti",  "YogAyusman",   "YogSaubhagya", "YogShobhana", "YogAtiganda",  "YogSukarma",
    "YogDhriti",     "YogSula",   "YogGanda",     "YogVriddhi",   "YogDhruva",   "YogVyaghata",  "YogHarshana",
    "YogVajra",      "YogSiddhi", "YogVyatipata", "YogVariyan",   "YogParigha",  "YogSiva",      "YogSiddha",
    "YogSadhya",     "YogSubha",  "YogSukla",     "YogBrahma",    "YogIndra",    "YogVaridhriti"};

template <size_t N>
QString NameOf(const std::array<const char *, N> &names, int number) {
  return number >= 1 && number <= static_cast<int>(N) ? QLatin1String(names[static_cast<size_t>(number - 1)]) : QString();
}

Key Daily(const QString &head, const char *category) { return {DailyText, head, QLatin1String(category)}; }

}  // namespace

QString WeekdayName(int weekday) { return NameOf(WeekdayNames, weekday); }
QString ElementName(int element) { return NameOf(ElementNames, element); }

int FoldedTithi(int tithi) { return tithi > 15 && tithi < 30 ? tithi - 15 : tithi; }

Key JourneyKey(int weekday, int element) {
  return Daily(WeekdayName(weekday).toUpper() + QLatin1Char('-') + ElementName(element).toUpper(), "JOURNEY");
}

Key RashifalaKey(const QString &birthSign, const QString &todaySign) {
  return Daily(birthSign + QLatin1Char('-') + todaySign, "RASHIFALA");
}

Key FinanceKey(int weekday, const QString &sign) { return Daily(sign + QLatin1Char('-') + WeekdayName(weekday).toUpper(), "FINANCE"); }

Key TithiKey(int tithi) { return Daily(QString::number(FoldedTithi(tithi)), "TITHI"); }
Key WeekdayKey(int weekday) { return Daily(WeekdayName(weekday), "Day"); }
Key NakshatraKey(int nakshatra) { return Daily(QString::number(nakshatra), "Nakshatra"); }

std::optional<Key> SuryaYogaKey(int yoga) {
  const QString head = NameOf(SuryaYogaHeads, yoga);
  if (head.isEmpty()) return std::nullopt;
  return Daily(head, "SURYAYOGA");
}

Key MoonTransitKey(int birthMoonSign, int todayMoonSign) {
  constexpr int moon = 7;
  const int house = Functions::Whole(Functions::Norm12(todayMoonSign - birthMoonSign + 1));
  return {TransitText, clsPlanets::PlanetNameEng(moon) + QString::number(house), QString()};
}

}  // namespace PredictionKeys
