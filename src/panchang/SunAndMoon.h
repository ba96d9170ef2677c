// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDate>

#include "engine/Ephemeris.h"
#include "panchang/ExactZone.h"

// A rise or a set, or why there is none.
struct SkyEvent {
  enum class State {
    Happens,
    StaysBelow,  // below the horizon all the time: for the Sun the polar night
    StaysAbove,  // above the horizon all the time: for the Sun the midnight sun
    NotToday,    // the Moon alone: it rises or sets only before or after this day
  };

  State state = State::NotToday;
  double at = 0;  // Julian day in universal time, where it happens

  bool Happens() const { return state == State::Happens; }
};

// Sunrise, sunset, moonrise and moonset of a place.
class SunAndMoon {
 public:
  // The place and the zone must outlive this object.
  SunAndMoon(const Ephemeris::Observer &place, const ExactZone &clock, Ephemeris::DiscRule discRule)
      : observer(place), zone(clock), rule(discRule) {}

  // Of a date of the place's clock, the first from its first moment on.
  SkyEvent SunriseOf(const QDate &date) const;

  // The beginning of the date's panchang day: sunrise, and where there is none six o'clock of local mean time, at which the
  // mean Sun rises.
  double DayBegins(const QDate &date, const SkyEvent &sunrise) const;

  // Between two moments.
  SkyEvent SunsetWithin(double begins, double ends) const;
  SkyEvent MoonWithin(Ephemeris::Crossing crossing, double begins, double ends) const;

 private:
  SkyEvent::State SunStays(double begins, double ends) const;

  const Ephemeris::Observer &observer;
  const ExactZone &zone;
  Ephemeris::DiscRule rule;
};
