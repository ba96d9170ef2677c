// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// Who makes the program, in one place.
namespace Maker {
inline const QString Title = QStringLiteral("Orvani");
inline const QString Name = QStringLiteral("Brivanta Works");
inline const QString WebAddress = QStringLiteral("https://orvani.example");
}  // namespace Maker
