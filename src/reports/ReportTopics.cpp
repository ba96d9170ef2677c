// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/ReportTopics.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "platform/Errors.h"

namespace {

using Topic = ReportTopics::Topic;

constexpr size_t FirstPrediction = 5;

constexpr std::array<Topic, 12> DailyTopics{{
    {"FrontPage", QT_TRANSLATE_NOOP("frmDayPrint", "Front Page Details - Panchaang, Karak, Birth & Gochar Kundali")},
    {"PlanetPos", QT_TRANSLATE_NOOP("frmDayPrint", "Charts - Birth and Current Planetary Positions")},
    {"MoreCharts", QT_TRANSLATE_NOOP("frmDayPrint", "Charts - Suryodaya Kundali, Trishul Chakra, Hora and Chowgadia")},
    {"Auspicious", QT_TRANSLATE_NOOP("frmDayPrint", "Charts - Details Panchaang and Evil Muhurtas")},
    {"Mahadasha", QT_TRANSLATE_NOOP("frmDayPrint", "Charts - Vimshottari Dasha")},
    {"FinancialAnalysis", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Financial Predictions")},
    {"TithiResult", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Tithi Results")},
    {"Nakshatra", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Nakshatra Results")},
    {"Journey", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Journey Results")},
    {"Yogas", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Yogas")},
    {"Rashifala", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Rashifala")},
    {"WeekdayRes", QT_TRANSLATE_NOOP("frmDayPrint", "Predictions - Weekday Results")},
}};

constexpr std::array<Topic, 7> StudyTopics{{
    {"DivisionalCharts", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Divisional Charts")},
    {"Ashtakavarga", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Ashtakavarga")},
    {"Upagrahas", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Upagrahas")},
    {"Aspects", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Aspects, Dignity and Combustion")},
    {"BirthAttributes", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Birth Attributes")},
    {"DayScores", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Day Scores and the Next Thirty Days")},
    {"Vakya", QT_TRANSLATE_NOOP("frmDayPrint", "Study - Vakya and Modern Positions")},
}};

constexpr std::array<ReportTopics::Group, 2> AllGroups{{
    {"Main", QT_TRANSLATE_NOOP("frmDayPrint", "Topic List"), true, DailyTopics},
    {"Study", QT_TRANSLATE_NOOP("frmDayPrint", "Study"), false, StudyTopics},
}};

bool IsKey(const QString &text, const char *key) { return text.compare(QLatin1String(key), Qt::CaseInsensitive) == 0; }

}  // namespace

std::span<const ReportTopics::Group> ReportTopics::Groups() { return AllGroups; }

QString ReportTopics::KeysOf(const Group &group) {
  QStringList keys;
  for (const Topic &topic : group.topics) keys << QLatin1String(topic.key);
  return keys.join(QStringLiteral(", "));
}

ReportTopics ReportTopics::Usual() {
  ReportTopics usual;
  for (const Group &group : AllGroups)
    for (const Topic &topic : group.topics)
      if (group.wantedAtFirst) usual.Set(QLatin1String(topic.key), true);
  return usual;
}

ReportTopics ReportTopics::FromKeys(const QStringList &chosenKeys) {
  if (chosenKeys.isEmpty()) return Usual();
  ReportTopics chosen;
  for (const QString &given : chosenKeys) {
    const QString key = given.trimmed();
    bool known = false;
    for (const Group &group : AllGroups) {
      const bool whole = IsKey(key, group.key);
      for (const Topic &topic : group.topics) {
        if (!whole && !IsKey(key, topic.key)) continue;
        chosen.Set(QLatin1String(topic.key), true);
        known = true;
      }
    }
    if (!known)
      throw UsageError(QCoreApplication::translate("ReportTopics",
                                                   "'%1' is not a topic of the report; the topics are %2 (all of them: Main), "
                                                   "and %3 (all of them: Study).")
                           .arg(key, KeysOf(AllGroups[0]), KeysOf(AllGroups[1])));
  }
  return chosen;
}

void ReportTopics::Set(const QString &key, bool wanted) {
  if (wanted)
    keys.insert(key);
  else
    keys.erase(key);
}

bool ReportTopics::HasPrediction() const {
  return std::any_of(DailyTopics.begin() + FirstPrediction, DailyTopics.end(), [this](const Topic &topic) { return Has(topic.key); });
}
