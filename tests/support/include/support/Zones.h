// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "support/RuleCalendar.h"

namespace nascor::tests {

/// A time zone by its public name, with its rules written out: they hold from 2010 to the end of 2028 wherever
/// the test runs, with or without zone files.
struct Zone {
  std::string name;
  RuleCalendar calendar;
};

namespace zones_detail {

inline RuleCalendar::Change change(std::chrono::sys_seconds instant, double offsetHours) {
  constexpr std::chrono::sys_seconds kReference = std::chrono::sys_days{std::chrono::year{2001} / 1 / 1};
  return {static_cast<double>((instant - kReference).count()), offsetHours * 3600.0};
}

/// Two changes a year, each on a given Sunday.
template <class Spring, class Autumn>
RuleCalendar yearly(int firstYear, double firstOffsetHours, Spring spring, Autumn autumn) {
  std::vector<RuleCalendar::Change> changes;
  for (int year = firstYear; year <= 2028; ++year) {
    changes.push_back(spring(std::chrono::year{year}));
    changes.push_back(autumn(std::chrono::year{year}));
  }
  return {firstOffsetHours * 3600.0, std::move(changes)};
}

}  // namespace zones_detail

inline Zone utc() { return {"UTC", {0.0, {}}}; }

inline Zone newYork() {
  using namespace std::chrono;
  return {
      "America/New_York",
      zones_detail::yearly(
          2010, -5.0, [](year y) { return zones_detail::change(sys_days{y / March / Sunday[2]} + 7h, -4.0); },
          [](year y) { return zones_detail::change(sys_days{y / November / Sunday[1]} + 6h, -5.0); })};
}

inline Zone paris() {
  using namespace std::chrono;
  return {"Europe/Paris",
          zones_detail::yearly(
              2010, 1.0,
              [](year y) { return zones_detail::change(sys_days{y / March / Sunday[last]} + 1h, 2.0); },
              [](year y) { return zones_detail::change(sys_days{y / October / Sunday[last]} + 1h, 1.0); })};
}

inline Zone sydney() {
  using namespace std::chrono;
  return {
      "Australia/Sydney",
      zones_detail::yearly(
          2010, 11.0, [](year y) { return zones_detail::change(sys_days{y / April / Sunday[1]} - 8h, 10.0); },
          [](year y) { return zones_detail::change(sys_days{y / October / Sunday[1]} - 8h, 11.0); })};
}

/// Daylight saving of half an hour.
inline Zone lordHowe() {
  using namespace std::chrono;
  return {
      "Australia/Lord_Howe",
      zones_detail::yearly(
          2010, 11.0, [](year y) { return zones_detail::change(sys_days{y / April / Sunday[1]} - 9h, 10.5); },
          [](year y) { return zones_detail::change(sys_days{y / October / Sunday[1]} - 8h - 30min, 11.0); })};
}

/// Daylight saving began at midnight, so that each of its first days had none, and ended for good in 2019.
inline Zone saoPaulo() {
  using namespace std::chrono;
  const auto on = [](int y, int m, int d) {
    return zones_detail::change(sys_days{year{y} / m / d} + 3h, -2.0);
  };
  const auto off = [](int y, int m, int d) {
    return zones_detail::change(sys_days{year{y} / m / d} + 2h, -3.0);
  };
  return {"America/Sao_Paulo",
          {-2.0 * 3600.0,
           {off(2010, 2, 21), on(2010, 10, 17), off(2011, 2, 20), on(2011, 10, 16), off(2012, 2, 26),
            on(2012, 10, 21), off(2013, 2, 17), on(2013, 10, 20), off(2014, 2, 16), on(2014, 10, 19),
            off(2015, 2, 22), on(2015, 10, 18), off(2016, 2, 21), on(2016, 10, 16), off(2017, 2, 19),
            on(2017, 10, 15), off(2018, 2, 18), on(2018, 11, 4), off(2019, 2, 17)}}};
}

/// Went over the date line: after 29 December 2011 came the 31st.
inline Zone apia() {
  using namespace std::chrono;
  std::vector<RuleCalendar::Change> changes{zones_detail::change(sys_days{2010y / 9 / 26} + 11h, -10.0),
                                            zones_detail::change(sys_days{2011y / 4 / 2} + 14h, -11.0),
                                            zones_detail::change(sys_days{2011y / 9 / 24} + 14h, -10.0),
                                            zones_detail::change(sys_days{2011y / 12 / 30} + 10h, 14.0),
                                            zones_detail::change(sys_days{2012y / 4 / 1} - 10h, 13.0)};
  for (int y = 2012; y <= 2020; ++y) {
    changes.push_back(zones_detail::change(sys_days{year{y} / September / Sunday[last]} - 10h, 14.0));
    changes.push_back(zones_detail::change(sys_days{year{y + 1} / April / Sunday[1]} - 10h, 13.0));
  }
  return {"Pacific/Apia", {-11.0 * 3600.0, std::move(changes)}};
}

inline std::vector<Zone> allZones() {
  return {utc(), newYork(), paris(), sydney(), lordHowe(), saoPaulo(), apia()};
}

}  // namespace nascor::tests
