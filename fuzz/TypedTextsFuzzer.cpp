// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Any text as a date, a number and a preference, in the forms of several countries. What is understood shows as a text that
// is understood as the same.

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "foundation/IsoDate.h"
#include "foundation/LeadingInteger.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"
#include "support/FixedOffsetCalendar.h"
#include "support/MemoryUserDefaults.h"

namespace {

using namespace nascor::foundation;

void require(bool holds) {
  if (!holds) std::abort();
}

const std::array<ShortDateForm, 5>& forms() {
  static const std::array<ShortDateForm, 5> kForms{
      {{.pattern = "M/d/yy", .monthNames = {}},
       {.pattern = "dd.MM.yyyy", .monthNames = {}},
       {.pattern = "yyyy-MM-dd", .monthNames = {}},
       {.pattern = "d MMM y",
        .monthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}},
       {.pattern = "'on' d. MMMM yyyy",
        .monthNames = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September",
                       "Oktober", "November", "Dezember"}}}};
  return kForms;
}

void readAsDate(std::string_view text) {
  for (const ShortDateForm& form : forms()) {
    const auto day = civilDayFromShortText(text, form);
    if (!day) continue;
    require(isValid(*day));
    require(civilDayFromShortText(shortDateText(*day, form), form) == day);
  }
  const nascor::tests::FixedOffsetCalendar calendar;
  if (const auto date = dateFromIsoText(text, calendar)) {
    const std::string shown = isoDateTimeText(*date, calendar);
    // The earliest and the latest days of the calendar have no text in every zone.
    if (shown.empty()) return;
    const auto again = dateFromIsoText(shown, calendar);
    require(again && std::floor(date->secondsSince2001) == again->secondsSince2001);
  }
}

void readAsNumber(std::string_view text) {
  if (const auto number = numberFromFieldText(text)) {
    require(std::isfinite(*number));
    // The shortest text may have an exponent, which no field takes.
    const std::string shortest = shortestText(*number);
    if (shortest.find('e') == std::string::npos) require(numberFromFieldText(shortest) == number);
    for (const int decimals : {0, 1, 9}) {
      const auto shown = numberFromFieldText(fieldText(*number, decimals, ','));
      require(shown.has_value());
      require(std::abs(*shown - *number) <=
              0.5000001 * std::pow(10.0, -decimals) + std::abs(*number) * 1e-15);
    }
  }
  if (const auto integer = integerFromFieldText(text)) {
    require(integerFromFieldText(std::to_string(*integer)) == integer);
  }
  require(leadingInteger(std::to_string(leadingInteger(text))) == leadingInteger(text));
}

void readAsPreference(std::string_view text) {
  nascor::tests::MemoryUserDefaults defaults;
  defaults.setValue(defaults_key::standard, std::string(text));
  require(integerForKey(defaults, defaults_key::standard) == leadingInteger(text));
  static_cast<void>(boolForKey(defaults, defaults_key::standard));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  readAsDate(text);
  readAsNumber(text);
  readAsPreference(text);
  return 0;
}
