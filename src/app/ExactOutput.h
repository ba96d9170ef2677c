// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>
#include <QJsonObject>
#include <QString>

class clsPlanets;

// The exact day and the month for orvani-daily. Each takes the chart of the analysis moment.
namespace ExactOutput {

// The day as text: facts, limbs, periods, Sun and Moon; lines of 80 letters at most where the names allow.
QString Text(const clsPlanets &todayChart);

// The day as one object: rules, sunrise and the like, limbs, periods, chogadiya and hora. Moments are local with their difference,
// "2026-11-21T06:46:02+05:30"; what does not happen is null, with its reason beside it under "states".
QJsonObject Json(const clsPlanets &todayChart);

// The month of a date, one day a paragraph.
QString MonthText(const clsPlanets &todayChart, const QDate &month);

// "2026-11" as the first of that month. Throws UsageError that names the option.
QDate ReadMonth(const QString &text);

// Writes the month of a date as a calendar file, whole or not at all. Throws StoreError that names the file.
void WriteIcs(const QString &path, const clsPlanets &todayChart, const QDate &month);

}  // namespace ExactOutput
