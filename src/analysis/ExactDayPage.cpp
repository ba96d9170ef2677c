// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "analysis/ExactDayPage.h"

#include <QLocale>
#include <algorithm>
#include <functional>

#include "engine/clsPlanets.h"

namespace {

using Tone = ExactDayPage::Tone;

class Filler {
 public:
  explicit Filler(const clsPlanets &chart) : times(chart, ExactDay::Extent::Whole) {}

  ExactDayPage Fill() {
    FillFrame();
    FillLimbs();
    FillPeriods();
    FillDivisions();
    FillMoon();
    FillFacts();
    return std::move(page);
  }

 private:
  double At(double universalDay) const { return times.At(universalDay); }
  bool IsNow(double begins, double ends) const { return moment >= begins && moment < ends; }
  QString Time(double universalDay) const { return words.Time(universalDay, day.date); }
  QString Exact(double universalDay) const { return words.TimeToSecond(universalDay, day.date); }

  // Cut to the day; one that lies outside is left out.
  void AddBar(ExactDayPage::Lane &lane, double begins, double ends, QStringList captions, const QString &spoken, Tone tone) {
    ExactDayPage::Bar bar{std::max(At(begins), 0.0), std::min(At(ends), page.minutes), std::move(captions), spoken, tone, 0};
    if (bar.begins < bar.ends) lane.bars.push_back(std::move(bar));
  }

  void FillFrame() {
    page.title = QLocale::c().toString(day.date, QStringLiteral("dddd, MMMM d, yyyy"));
    const ExactFrame frame = times.Frame();
    page.minutes = frame.minutes;
    page.dayEnds = frame.dayEnds;
    page.now = frame.now;
    page.hours = frame.hours;
    if (page.now >= 0) page.nowCaption = QLocale::c().toString(times.rules.zone.LocalOf(moment), QStringLiteral("H:mm"));
    const bool bySun = day.sunrise.Happens() && day.nextSunrise.Happens();
    page.lblExactDesc = QStringLiteral("%1, %2").arg(
        words.Word(bySun ? "FromTo" : "FromToMean").arg(Time(day.begins), words.Time(day.ends, day.date.addDays(1))),
        words.PlaceAndRules(day.begins));
    page.limbHead = words.Word("LimbHead");
    page.nameHead = words.Word("NameHead");
    page.periodHead = words.Word("PeriodHead");
    page.eventHead = words.Word("EventHead");
    page.beginsHead = words.Word("BeginsHead");
    page.endsHead = words.Word("EndsHead");
    page.remarkHead = words.Word("RemarkHead");
  }

  void FillLimb(const QString &head, const std::vector<LimbSpan> &spans, const std::function<QString(int)> &nameOf) {
    ExactDayPage::Lane lane{head, {}, 1, false};
    QString rowHead = head;
    for (const LimbSpan &span : spans) {
      const QString name = nameOf(span.number), remark = words.Remark(span.course);
      // "Shukla Dvadashi" may be cut to "Dvadashi".
      const QString last = name.section(QLatin1Char(' '), -1);
      QStringList captions{name, last, last.left(4), last.left(2)};
      if (span.ends < day.ends) captions.prepend(words.Word("Until").arg(name, words.TimeAlone(span.ends)));
      const QString range = words.Range(span.begins, span.ends, day.date);
      AddBar(lane, span.begins, span.ends, captions, QStringLiteral("%1 %2, %3").arg(head, name, range), Tone::Plain);
      page.limbs.push_back({rowHead, name, Exact(span.begins), Exact(span.ends), remark, Tone::Plain, IsNow(span.begins, span.ends)});
      rowHead.clear();
    }
    page.lanes.push_back(std::move(lane));
  }

  void FillLimbs() {
    FillLimb(words.General("Tithi"), day.limbs.tithis, [this](int n) { return words.Tithi(n); });
    FillLimb(words.General("Nak"), day.limbs.nakshatras, [this](int n) { return words.Nakshatra(n); });
    FillLimb(words.General("Yoga"), day.limbs.yogas, [this](int n) { return words.Yoga(n); });
    FillLimb(words.General("Karan"), day.limbs.karanas, [this](int n) { return words.Karana(n); });
  }

  void FillPeriods() {
    for (const bool good : {false, true}) {
      ExactDayPage::Lane lane{words.Word(good ? "Favourable" : "Avoid"), {}, 1, !good};
      const QString verdict = words.Word(good ? "Good" : "Bad");
      for (const Period &period : day.periods) {
        if (period.IsGood() != good) continue;
        const QString name = words.PeriodName(period.kind), remark = period.setAside ? words.Word("AbhijitSetAside") : verdict;
        const Tone tone = period.setAside ? Tone::Plain : good ? Tone::Good : Tone::Bad;
        const QString brief = words.PeriodShort(period.kind);
        AddBar(lane, period.begins, period.ends, {name, brief, brief.left(2), brief.left(1)},
               QStringLiteral("%1 %2, %3").arg(name, words.Range(period.begins, period.ends, day.date), remark), tone);
        page.periods.push_back({{}, name, Exact(period.begins), Exact(period.ends), remark, tone, IsNow(period.begins, period.ends)});
      }
      SetLevels(lane);
      if (lane.bars.empty()) AddNote(lane, day.begins, day.ends, words.Word("None"));
      page.lanes.push_back(std::move(lane));
    }
    if (!day.sunrise.Happens() || !day.sunset.Happens())
      for (const Period::Kind kind : {Period::Kind::Abhijit, Period::Kind::Gulika, Period::Kind::Yamaghanta, Period::Kind::RahuKaal})
        page.periods.insert(
            page.periods.begin(),
            {{}, words.PeriodName(kind), words.Word("None"), words.Word("None"), words.PolarState(day), Tone::Plain, false});
  }

  // Each bar goes onto the first level that is free where it begins.
  static void SetLevels(ExactDayPage::Lane &lane) {
    std::sort(lane.bars.begin(), lane.bars.end(), [](const auto &a, const auto &b) { return a.begins < b.begins; });
    std::vector<double> freeFrom;
    for (ExactDayPage::Bar &bar : lane.bars) {
      const auto level = std::find_if(freeFrom.begin(), freeFrom.end(), [&](double from) { return from <= bar.begins + 1e-6; });
      bar.level = static_cast<int>(level - freeFrom.begin());
      if (level == freeFrom.end())
        freeFrom.push_back(bar.ends);
      else
        *level = bar.ends;
    }
    lane.levels = std::max(1, static_cast<int>(freeFrom.size()));
  }

  void FillDivisions() {
    constexpr std::array verdicts{"Bad", "Fair", "Good"};  // by the judgement
    constexpr std::array tones{Tone::Bad, Tone::Plain, Tone::Good};
    ExactDayPage::Lane chogadiyas{words.Word("Chogadiya"), {}, 1, true}, horas{words.Word("Hora"), {}, 1, false};
    for (const DayPart &part : day.chogadiyas) {
      const auto judgement = static_cast<size_t>(Periods::ChogadiyaJudgement(part.type));
      const QString name = words.Chogadiya(part.type);
      AddBar(chogadiyas, part.begins, part.ends, {name, name.left(2), name.left(1)},
             QStringLiteral("%1 %2, %3").arg(name, words.Range(part.begins, part.ends, day.date), words.Word(verdicts[judgement])),
             tones[judgement]);
    }
    for (const DayPart &part : day.horas)
      AddBar(horas, part.begins, part.ends, {words.HoraLord(part.type), words.HoraLordShort(part.type)},
             QStringLiteral("%1 %2").arg(words.HoraLord(part.type), words.Range(part.begins, part.ends, day.date)), Tone::Plain);
    for (ExactDayPage::Lane *lane : {&chogadiyas, &horas}) AddMissingHalves(*lane);
    page.lanes.push_back(std::move(chogadiyas));
    page.lanes.push_back(std::move(horas));
  }

  // Says of a daylight or a night that is not there why it has no parts.
  void AddMissingHalves(ExactDayPage::Lane &lane) {
    const QString noDaylight = words.NoDaylight(day), noNight = words.NoNight(day);
    if (!day.sunset.Happens()) return AddNote(lane, day.begins, day.ends, noDaylight);
    if (!noDaylight.isEmpty()) AddNote(lane, day.begins, day.sunset.at, noDaylight);
    if (!noNight.isEmpty()) AddNote(lane, day.sunset.at, day.ends, noNight);
  }

  void AddNote(ExactDayPage::Lane &lane, double begins, double ends, const QString &note) {
    AddBar(lane, begins, ends, {note}, QStringLiteral("%1 %2").arg(lane.head, note), Tone::Note);
  }

  // Where the Moon is above the horizon: from its rise, or from the day's beginning, to its set.
  void FillMoon() {
    using State = SkyEvent::State;
    ExactDayPage::Lane lane{words.Body(Ephemeris::Body::Moon), {}, 1, true};
    const SkyEvent &rise = day.moonrise, &set = day.moonset;
    const auto add = [&](double begins, double ends) {
      QStringList parts{words.Word("MoonUp")};
      if (rise.Happens() && begins == rise.at) parts << words.Word("MoonRises").arg(words.TimeAlone(rise.at));
      if (set.Happens() && ends == set.at) parts << words.Word("MoonSets").arg(words.TimeAlone(set.at));
      QStringList captions{parts.join(QStringLiteral(", "))};
      if (parts.size() > 1) captions << parts.mid(1).join(QStringLiteral(", "));
      captions << words.Word("MoonUp");
      AddBar(lane, begins, ends, captions, QStringLiteral("%1 %2").arg(lane.head, captions.front()), Tone::Light);
    };
    if (rise.Happens() && set.Happens() && rise.at < set.at) {
      add(rise.at, set.at);
    } else {
      if (set.Happens()) add(day.begins, set.at);
      if (rise.Happens()) add(rise.at, day.ends);
      if (rise.state == State::StaysAbove) add(day.begins, day.ends);
    }
    if (lane.bars.empty()) AddNote(lane, day.begins, day.ends, words.Moonrise(day));
    page.lanes.push_back(std::move(lane));

    page.events = {{{}, words.General("Sunrise"), {}, words.Sunrise(day), {}, Tone::Plain, false},
                   {{}, words.General("Sunset"), {}, words.Sunset(day), {}, Tone::Plain, false},
                   {{}, words.Word("Moonrise"), {}, words.Moonrise(day), {}, Tone::Plain, false},
                   {{}, words.Word("Moonset"), {}, words.Moonset(day), {}, Tone::Plain, false}};
    for (const SignChange &change : day.signChanges)
      page.events.push_back(
          {{}, words.Word("Enters").arg(words.Body(change.body), words.Sign(change.sign)), {}, Exact(change.at), {}, Tone::Plain, false});
  }

  void FillFacts() {
    const auto pair = [this](const SkyEvent &first, const QString &firstText, const SkyEvent &second, const QString &secondText) {
      const auto text = [this](const SkyEvent &event, const QString &reason) { return event.Happens() ? Time(event.at) : reason; };
      return words.Word("EventPair").arg(text(first, firstText), text(second, secondText));
    };
    page.facts = {
        {"lblExactWeekday", words.Word("WeekdayHead"), words.Weekday(day.weekday)},
        {"lblExactAmanta", words.Word("AmantaHead"), words.WithHalf(words.Amanta(day.month), day.month.bright)},
        {"lblExactPurnimanta", words.Word("PurnimantaHead"), words.Purnimanta(day.month)},
        {"lblExactSamvat", words.Word("SamvatHead"),
         words.Word("SamvatValue").arg(QString::number(day.month.vikrama), QString::number(day.month.shaka))},
        {"lblExactSun", words.Word("SunHead"), pair(day.sunrise, words.Sunrise(day), day.sunset, words.Sunset(day))},
        {"lblExactMoon", words.Word("MoonHead"), pair(day.moonrise, words.Moonrise(day), day.moonset, words.Moonset(day))},
        {"lblExactSunAt", words.Word("SunAtHead"), words.InSign(day.sunLongitude)},
        {"lblExactMoonAt", words.Word("MoonAtHead"), words.InSign(day.moonLongitude)},
    };
  }

  const ExactTimes times;
  const ExactWords &words = times.words;
  const ExactDay &day = times.day;
  const double moment = times.moment;
  ExactDayPage page;
};

}  // namespace

ExactDayPage FillExactDay(const clsPlanets &todayChart) { return Filler(todayChart).Fill(); }
