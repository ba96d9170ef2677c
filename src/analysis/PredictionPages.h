// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "content/PredictionKeys.h"

class clsPlanets;

// The paragraphs of the day. A page of them is a list of headings and bodies, for the screen, the report and the terminal.
struct PredictionPage {
  struct Line {
    bool isHead = false;
    QString text;
  };
  std::vector<Line> lines;

  void AppendHead(const QString &text) { lines.push_back({true, text}); }
  void AppendBody(const QString &text) { lines.push_back({false, text}); }
};

// A family of paragraphs that asks one key of a day.
struct PredictionFamily {
  int page;          // PageNumber of the screen page
  const char *name;  // "journey", as scripts name it
  const char *titleKey;
};
const std::vector<PredictionFamily> &PredictionFamilies();

// The key that the page of a family asks for. None for another page and for a yoga number without a key.
std::optional<PredictionKeys::Key> PredictionKeyOf(int page, const clsPlanets &birthChart, const clsPlanets &todayChart);

// Takes a text to the paper as well.
using PrintMyText = std::function<void(const QString &text, bool bold)>;

// The texts that take `printing` hand the same text to it, where it is given.
QString JourneyText(const clsPlanets &today, int weekday, int element);
QString RashifalaText(const clsPlanets &today, int birthSign, int todaySign);
QString FinanceText(const clsPlanets &today, int weekday, int sign);
QString TithiText(const clsPlanets &today, int tithi);
QString WeekdayText(const clsPlanets &today, int weekday, const PrintMyText *printing = nullptr);
QString NakshatraText(const clsPlanets &today, int nakshatra);
QString SuryaYogaText(const clsPlanets &today, int yoga, const PrintMyText *printing = nullptr);  // empty outside 1 to 27, nothing printed
QString MoonTransitText(const clsPlanets &birthChart, const clsPlanets &todayChart);

// A title and a paragraph for each muhurtha yoga that holds, in their order; nothing where none holds. Titles print bold.
PredictionPage ShowYogas(const clsPlanets &todayChart, const PrintMyText *printing = nullptr);

// The page of a family, or that of the yogas, as the screen shows it.
PredictionPage FillPredictionPage(int page, const clsPlanets &birthChart, const clsPlanets &todayChart);
