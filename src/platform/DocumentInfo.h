// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// What a PDF tells about itself. Keywords are separated by semicolons.
struct DocumentInfo {
  QString title;
  QString author;
  QString subject;
  QString keywords;
};
