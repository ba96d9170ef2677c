// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class AppPaths;
class MessageBoxes;

// Writes a picture of every page, in each chart style where it matters, and of the small screens into a folder, at the
// window sizes that people use. Works on the person last chosen and a fixed moment, with the settings of a new user, of which none is
// kept. Returns the program's exit code.
int WriteScreens(const QString &folder, const AppPaths &paths, MessageBoxes &boxes);
