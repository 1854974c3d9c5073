// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"
#include "scripting/NCDocumentScripting.h"
#include "scripting/ScriptValue.h"

namespace nascor::scripting {

enum class ValueKind {
  text,
  integer,  ///< takes every number, and leaves its fraction away
  real,     ///< takes every number
  date  ///< a text: the local day, `2027-04-10`; none for no date. Takes a date-time too, and an empty text for none
};

/// One property of a document, as scripts know it.
struct ScriptProperty {
  std::string_view key;
  ValueKind kind;
  std::string_view unit;      ///< empty where there is none
  std::string_view sentence;  ///< what it is, for the authors of scripts
  ScriptValue (*read)(NCDocumentScripting& document, const foundation::Calendar& calendar);
  /// The value is of the property's kind.
  void (*write)(NCDocumentScripting& document, const ScriptValue& value,
                const foundation::Calendar& calendar);
};

/// The nine properties.
std::span<const ScriptProperty> scriptProperties();
/// Null when there is no such property.
const ScriptProperty* scriptProperty(std::string_view key);

/// A value that is not of the property's kind. The text names property, kind and unit.
class WrongKind : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

/// What a value must be, in words: the text of WrongKind.
std::string expectation(const ScriptProperty& property);

ScriptValue readProperty(const ScriptProperty& property, NCDocumentScripting& document,
                         const foundation::Calendar& calendar);
/// Throws WrongKind, and then nothing was changed or logged, and what the setter throws.
void writeProperty(const ScriptProperty& property, NCDocumentScripting& document, const ScriptValue& value,
                   const foundation::Calendar& calendar);

}  // namespace nascor::scripting
