// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

// How the facts of a day become the key of a paragraph in the language's data file. The keys are English in every
// language. Weekdays are 1 Sunday to 7 Saturday; a number that has no name leaves its place in the key empty.
namespace PredictionKeys {

// The arguments of GetHeadValue.
struct Key {
  int kind = 11;
  QString head;
  QString category;
};

QString WeekdayName(int weekday);  // "Sunday"
QString ElementName(int element);  // 1 "Fire" to 4 "Water"

// 1 to 15 and 30 stay, 16 to 29 become 1 to 14: the two halves of the month share their paragraphs.
int FoldedTithi(int tithi);

Key JourneyKey(int weekday, int element);  // "SUNDAY-FIRE"
// The signs by their English names, as the language's table writes them.
Key RashifalaKey(const QString &birthSign, const QString &todaySign);
Key FinanceKey(int weekday, const QString &sign);  // "Aries-SUNDAY"
Key TithiKey(int tithi);
Key WeekdayKey(int weekday);
Key NakshatraKey(int nakshatra);
std::optional<Key> SuryaYogaKey(int yoga);                 // none outside 1 to 27
Key MoonTransitKey(int birthMoonSign, int todayMoonSign);  // "Moon1" in the birth sign

}  // namespace PredictionKeys
