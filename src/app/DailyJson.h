// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>

class SelvaniDailyMod;

// The day as one JSON object, every number in full precision: person, moment, settings, overview, birth, day, dasha, texts, yogas.
QByteArray DailyJson(SelvaniDailyMod &session);
