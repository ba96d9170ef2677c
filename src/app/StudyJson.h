// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QJsonObject>

class clsPlanets;

// Adds what the study pages tell of one chart, under the names of the chart's members.
void AddStudy(QJsonObject &chart, const clsPlanets &planets);

// The seven scores of the day, 0 to 100, and those of the thirty days that follow.
QJsonObject ScoresObject(const clsPlanets &birth, const clsPlanets &today);
