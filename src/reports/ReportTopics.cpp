// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reports/ReportTopics.h"

#include <QCoreApplication>

#include <algorithm>

#include "platform/Errors.h"

namespace {

constexpr size_t FirstPrediction = 5;

constexpr std::array<ReportTopics::Topic, 12> Topics{{
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

}  // namespace

const std::array<ReportTopics::Topic, 12> &ReportTopics::List() { return Topics; }

ReportTopics ReportTopics::All() {
  ReportTopics all;
  for (const Topic &topic : Topics) all.Set(QLatin1String(topic.key), true);
  return all;
}

ReportTopics ReportTopics::FromKeys(const QStringList &keys) {
  if (keys.isEmpty()) return All();
  ReportTopics chosen;
  for (const QString &key : keys) {
    const auto known = std::find_if(Topics.begin(), Topics.end(), [&](const Topic &topic) {
      return key.trimmed().compare(QLatin1String(topic.key), Qt::CaseInsensitive) == 0;
    });
    if (known == Topics.end()) {
      QStringList names;
      for (const Topic &topic : Topics) names << QLatin1String(topic.key);
      throw UsageError(QCoreApplication::translate("ReportTopics", "'%1' is not a topic of the report; the topics are %2.")
                           .arg(key.trimmed(), names.join(QStringLiteral(", "))));
    }
    chosen.Set(QLatin1String(known->key), true);
  }
  return chosen;
}

void ReportTopics::Set(const QString &key, bool wanted) {
  if (wanted)
    keys_.insert(key);
  else
    keys_.erase(key);
}

bool ReportTopics::HasPrediction() const {
  return std::any_of(Topics.begin() + FirstPrediction, Topics.end(), [this](const Topic &topic) { return Has(topic.key); });
}
