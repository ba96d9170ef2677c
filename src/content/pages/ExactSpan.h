// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "analysis/ExactTimes.h"
#include "content/pages/SpanStrip.h"

// The exact day as an axis without parts yet: hours and the moment.
namespace ExactSpan {

SpanStrip::Span OfDay(const ExactFrame &frame, const QString &momentWord);       // from sunrise to sunrise
SpanStrip::Span OfDaylight(const ExactFrame &frame, const QString &momentWord);  // from sunrise to sunset

// The row that runs at a place on the axis, -1 for none. Rows without a length are those of a day or a night that is not there.
template <typename Rows>
int RowAt(const Rows &rows, double place) {
  for (size_t row = 0; row < rows.size(); ++row)
    if (place >= rows[row].begins && place < rows[row].ends) return static_cast<int>(row);
  return -1;
}

}  // namespace ExactSpan
