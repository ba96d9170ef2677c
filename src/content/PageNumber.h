// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// The number of each page of the main screen. 3, 4, 14 and 26 are no pages; the help and the third list stand beside the others.
namespace PageNumber {

constexpr int ChartList = 1;
constexpr int PredictionList = 2;
constexpr int Credits = 5;
constexpr int BirthKundali = 6;
constexpr int SunriseKundali = 7;
constexpr int TransitKundali = 8;
constexpr int BirthPlanets = 9;
constexpr int TodayPlanets = 10;
constexpr int VimshottariDasha = 11;
constexpr int TrishulChakra = 12;
constexpr int Panchang = 13;
constexpr int Journey = 15;
constexpr int Chowgadiya = 16;
constexpr int HoraChart = 17;
constexpr int TodayOverview = 18;
constexpr int Rashifala = 19;
constexpr int MoonTransits = 20;
constexpr int FinancialAnalysis = 21;
constexpr int EvilMuhurthas = 22;
constexpr int YogaResults = 23;
constexpr int SuryaYogaResults = 24;
constexpr int TithiResult = 25;
constexpr int NakshatraResult = 27;
constexpr int WeekdayResult = 28;
constexpr int DivisionalCharts = 29;
constexpr int Ashtakavarga = 30;
constexpr int Upagrahas = 31;
constexpr int Aspects = 32;
constexpr int BirthAttributes = 33;
constexpr int DayScores = 34;
constexpr int VakyaPositions = 35;
constexpr int ExactDay = 36;
constexpr int Month = 37;
constexpr int Help = 101;
constexpr int StudyList = 102;

}  // namespace PageNumber
