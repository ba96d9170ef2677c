// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "content/pages/CaptionTable.h"

// mark: the English one of a planet's dignity, empty for none.
inline CaptionTable::Tone ToneOfDignity(const QString &mark) {
  if (mark == QLatin1String("Debi")) return CaptionTable::Tone::Bad;
  return mark.isEmpty() ? CaptionTable::Tone::Plain : CaptionTable::Tone::Good;
}
