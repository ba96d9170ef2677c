// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class SelvaniDailyMod;

// The day as text for a terminal, 80 columns wide, drawn from the same pages as the screen.
QString DailyText(SelvaniDailyMod &session);

// The day's paragraphs to read, under the titles of their pages, 78 columns wide, and the muhurtha yogas that hold.
QString DailyReading(SelvaniDailyMod &session);
