// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
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

// Kept words that no page shows: directions of the day, professions of the planets, and the weekday's verdict on a court-case.
constexpr std::array<const char *, 9> Directions{"East, North, South-East", "West, South, North-West", "South-East, South-East",
                                                 "South, East, South-West", "East, North, North-East", "West, South, South-West",
                                                 "West, North-West",        "North, West, North-West", "North, West, North-East"};
constexpr std::array<const char *, 4> Professions{
    "Science, Engineering, Armed Forces, Industry, Electricity, Medical and Administrative Studies.",
    "Writing, Medical, Cosmetics, Medicine Research and planning.",
    "Electronics, Surgery, Martial Arts, Fire, Sports, Dental science.",
    "Farming, Shares, Books, Publishing, Accounts, Education, Law, Sculpture, Editing, Vehicles.",
};
constexpr std::array<const char *, 3> CourtCaseVerdicts{"Today's weekday is auspicious for a court-case.",
                                                        "Today's weekday is mediocre for a court-case.",
                                                        "Today's weekday is unlucky for a court-case."};

}  // namespace PredictionKeys
