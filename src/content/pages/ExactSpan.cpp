// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ExactSpan.h"

namespace {

SpanStrip::Span UpTo(double to, const QString &caption, const ExactFrame &frame, const QString &momentWord) {
  SpanStrip::Span span;
  span.to = to;
  span.ticks.push_back({0, frame.begins});
  for (const ExactFrame::Hour &hour : frame.hours)
    if (hour.at < to) span.ticks.push_back({hour.at, hour.caption});
  span.ticks.push_back({to, caption});
  span.moment = frame.now;
  span.momentWord = momentWord;
  return span;
}

}  // namespace

SpanStrip::Span ExactSpan::OfDay(const ExactFrame &frame, const QString &momentWord) {
  return UpTo(frame.minutes, frame.ends, frame, momentWord);
}

SpanStrip::Span ExactSpan::OfDaylight(const ExactFrame &frame, const QString &momentWord) {
  return UpTo(frame.dayEnds, frame.sunset, frame, momentWord);
}
