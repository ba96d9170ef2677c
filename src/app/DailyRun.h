// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStringList>

struct DailyOptions;

// One call of orvani-daily: prints the answer to stdout, or one line that names what is wrong to stderr. Gives the exit code: 0, 1 for a
// store that cannot be read, 2 for a wrong call. Needs the application object, and for a report one that can draw.
int RunDaily(const QStringList &arguments);  // the program's own name first
int RunDaily(const DailyOptions &options);
