// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/ScriptProperties.h"

#include <algorithm>
#include <array>

#include "foundation/IsoDate.h"

namespace nascor::scripting {
namespace {

using foundation::Calendar;
using foundation::Date;
using Document = NCDocumentScripting;

ScriptValue dayValue(const std::optional<Date>& date, const Calendar& calendar) {
  std::string day = date ? foundation::isoDayText(*date, calendar) : std::string();
  // A date that no calendar holds has no text, and cannot be told from none.
  if (day.empty()) return {};
  return day;
}

std::optional<Date> dateOf(const ScriptValue& value, const Calendar& calendar) {
  const auto* text = std::get_if<std::string>(&value);
  return text ? foundation::dateFromIsoText(*text, calendar) : std::nullopt;
}

ScriptNumber numberOf(const ScriptValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  return std::get<double>(value);
}

// clang-format off
constexpr std::array kProperties{
    ScriptProperty{
        "identifier", ValueKind::text, "",
        "The mother's reference ID. Reading it refreshes the window, so that text typed and not yet entered is lost.",
        [](Document& d, const Calendar&) -> ScriptValue {
          auto identifier = d.identifier();
          if (!identifier) return {};
          return *std::move(identifier);
        },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setIdentifier(std::get<std::string>(v)); }},
    ScriptProperty{
        "gravida", ValueKind::integer, "pregnancies",
        "The number of pregnancies of the mother, this one included.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.gravida(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setGravida(numberOf(v)); }},
    ScriptProperty{
        "edd", ValueKind::date, "local time",
        "The estimated date of delivery.",
        [](Document& d, const Calendar& c) { return dayValue(d.edd(), c); },
        [](Document& d, const ScriptValue& v, const Calendar& c) { d.setEdd(dateOf(v, c)); }},
    ScriptProperty{
        "examDate", ValueKind::date, "local time",
        "The date of the last examination, whichever examination is on show.",
        [](Document& d, const Calendar& c) { return dayValue(d.examDate(), c); },
        [](Document& d, const ScriptValue& v, const Calendar& c) { d.setExamDate(dateOf(v, c)); }},
    ScriptProperty{
        "bpd", ValueKind::real, "mm",
        "The biparietal diameter of the fetus on show at the last examination; 0 when it is not measured.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.bpd(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setBpd(numberOf(v)); }},
    ScriptProperty{
        "hc", ValueKind::real, "mm",
        "The head circumference of the fetus on show at the last examination; 0 when it is not measured.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.hc(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setHc(numberOf(v)); }},
    ScriptProperty{
        "ac", ValueKind::real, "mm",
        "The abdominal circumference of the fetus on show at the last examination; 0 when it is not measured.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.ac(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setAc(numberOf(v)); }},
    ScriptProperty{
        "fl", ValueKind::real, "mm",
        "The femur length of the fetus on show at the last examination; 0 when it is not measured.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.fl(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setFl(numberOf(v)); }},
    ScriptProperty{
        "tabViewIndex", ValueKind::integer, "pages, counted from 0",
        "The page of the window that is on show.",
        [](Document& d, const Calendar&) -> ScriptValue { return d.tabViewIndex(); },
        [](Document& d, const ScriptValue& v, const Calendar&) { d.setTabViewIndex(numberOf(v)); }},
};
// clang-format on

bool isOfKind(const ScriptValue& value, ValueKind kind, const Calendar& calendar) {
  switch (kind) {
    case ValueKind::text: return std::holds_alternative<std::string>(value);
    case ValueKind::integer:
    case ValueKind::real:
      return std::holds_alternative<std::int64_t>(value) || std::holds_alternative<double>(value);
    case ValueKind::date: break;
  }
  const auto* text = std::get_if<std::string>(&value);
  return std::holds_alternative<std::monostate>(value) ||
         (text != nullptr && (text->empty() || dateOf(value, calendar)));
}

}  // namespace

std::span<const ScriptProperty> scriptProperties() { return kProperties; }

const ScriptProperty* scriptProperty(std::string_view key) {
  const auto* found = std::ranges::find(kProperties, key, &ScriptProperty::key);
  return found == kProperties.end() ? nullptr : found;
}

std::string expectation(const ScriptProperty& property) {
  std::string sentence = std::string(property.key) + ": expected ";
  switch (property.kind) {
    case ValueKind::text: sentence += "a text"; break;
    case ValueKind::integer:
    case ValueKind::real: sentence += "a number"; break;
    case ValueKind::date: sentence += "an ISO 8601 date such as 2027-04-10, or an empty text for none"; break;
  }
  if (!property.unit.empty()) sentence.append(" (").append(property.unit).append(")");
  return sentence;
}

ScriptValue readProperty(const ScriptProperty& property, NCDocumentScripting& document,
                         const Calendar& calendar) {
  return property.read(document, calendar);
}

void writeProperty(const ScriptProperty& property, NCDocumentScripting& document, const ScriptValue& value,
                   const Calendar& calendar) {
  if (!isOfKind(value, property.kind, calendar)) throw WrongKind(expectation(property));
  property.write(document, value, calendar);
}

}  // namespace nascor::scripting
