// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "panchang/SunAndMoon.h"

#include <algorithm>
#include <cmath>
#include <optional>

using Ephemeris::Body;
using Ephemeris::Crossing;

// By its altitude at the middle of the day, where local mean time is twelve: the Sun stays where it then is.
SkyEvent::State SunAndMoon::SunStays(double begins, double ends) const {
  const double middle = (begins + ends) / 2;
  const double noon = std::round(middle + observer.longitude / 360) - observer.longitude / 360;
  return Ephemeris::TrueAltitude(noon, Body::Sun, observer) < 0 ? SkyEvent::State::StaysBelow : SkyEvent::State::StaysAbove;
}

SkyEvent SunAndMoon::SunriseOf(const QDate &date) const {
  const double from = zone.StartOf(date), to = zone.StartOf(date.addDays(1));
  const std::optional<double> rise = Ephemeris::NextCrossing(from, Body::Sun, Crossing::Rise, rule, observer);
  if (rise && *rise < to) return {SkyEvent::State::Happens, *rise};
  return {SunStays(from, to), 0};
}

double SunAndMoon::DayBegins(const QDate &date, const SkyEvent &sunrise) const {
  if (sunrise.Happens()) return sunrise.at;
  // Six hours of local mean time are a quarter of a day after midnight, where Julian days have the fraction 0.5.
  const double fraction = 0.75 - observer.longitude / 360;
  const double around = zone.StartOf(date) + 0.25;
  return std::round(around - fraction) + fraction;
}

SkyEvent SunAndMoon::SunsetWithin(double begins, double ends) const {
  const std::optional<double> set = Ephemeris::NextCrossing(begins, Body::Sun, Crossing::Set, rule, observer);
  if (set && *set < ends) return {SkyEvent::State::Happens, *set};
  return {SunStays(begins, ends), 0};
}

SkyEvent SunAndMoon::MoonWithin(Crossing crossing, double begins, double ends) const {
  const auto within = [&](Crossing wanted) -> std::optional<double> {
    const std::optional<double> found = Ephemeris::NextCrossing(begins, Body::Moon, wanted, rule, observer);
    return found && *found < ends ? found : std::nullopt;
  };
  if (const std::optional<double> found = within(crossing)) return {SkyEvent::State::Happens, *found};
  if (within(crossing == Crossing::Rise ? Crossing::Set : Crossing::Rise)) return {SkyEvent::State::NotToday, 0};
  const bool above = Ephemeris::TrueAltitude((begins + ends) / 2, Body::Moon, observer) > 0;
  return {above ? SkyEvent::State::StaysAbove : SkyEvent::State::StaysBelow, 0};
}
