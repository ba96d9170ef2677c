// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/MonthMarks.h"

namespace {

constexpr int BrightEkadashi = 11, DarkEkadashi = 26, FullMoon = 15, NewMoon = 30;

}  // namespace

std::vector<MonthMark> MarksOf(const ExactDay &day, const LunarMonth &before, const ExactWords &words) {
  std::vector<MonthMark> marks;
  if (day.month.begins != before.begins && (day.month.amanta != before.amanta || day.month.adhika != before.adhika))
    marks.push_back({words.Word("MonthBegins").arg(words.Amanta(day.month)), 0});
  for (const LimbSpan &tithi : day.limbs.tithis) {
    // A day bears the tithi of its sunrise, and one that no sunrise finds.
    const bool ofSunrise = &tithi == &day.limbs.tithis.front(), skipped = tithi.course == LimbSpan::Course::Skipped;
    if (!ofSunrise && !skipped) continue;
    if (tithi.number == BrightEkadashi || tithi.number == DarkEkadashi) marks.push_back({words.Word("Ekadashi"), 0});
    if (tithi.number == FullMoon) marks.push_back({words.Word("FullMoon"), tithi.ends});
    if (tithi.number == NewMoon) marks.push_back({words.Word("NewMoon"), tithi.ends});
    if (skipped) marks.push_back({words.Word("TithiSkipped").arg(words.Tithi(tithi.number)), 0});
    if (tithi.course == LimbSpan::Course::Again) marks.push_back({words.Word("TithiRepeated").arg(words.Tithi(tithi.number)), 0});
  }
  for (const SignChange &change : day.signChanges)
    if (change.body == Ephemeris::Body::Sun)
      marks.push_back({words.Word("Enters").arg(words.Body(change.body), words.Sign(change.sign)), change.at});
  return marks;
}
