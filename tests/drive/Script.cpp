// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Script.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "scripting/NCDocumentScripting.h"
#include "scripting/NascorScriptCommand.h"
#include "scripting/ScriptProperties.h"

namespace nascor::drive {
namespace {

using scripting::ScriptProperty;
using scripting::ScriptValue;
using scripting::ValueKind;

ScriptValue valueOf(const Json& json, ValueKind kind) {
  if (json.is_null()) return {};
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_number_unsigned() && json.get<std::uint64_t>() > std::numeric_limits<std::int64_t>::max())
    return json.get<double>();
  if (json.is_number_integer()) return json.get<std::int64_t>();
  if (json.is_number()) return json.get<double>();
  if (!json.is_string()) throw std::runtime_error("expected a text, a number, true, false or null");
  auto text = json.get<std::string>();
  if (kind == ValueKind::integer || kind == ValueKind::real) {  // numbers that JSON lacks
    if (text == "nan") return std::nan("");
    if (text == "inf") return HUGE_VAL;
    if (text == "-inf") return -HUGE_VAL;
  }
  return text;
}

Json jsonOf(const ScriptValue& value) {
  return std::visit(
      [](const auto& held) -> Json {
        if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>) {
          return nullptr;
        } else {
          return held;
        }
      },
      value);
}

}  // namespace

Json script(const Json& call, framework::DocumentController& documents,
            const foundation::Services& services) {
  const auto isCall = [&](std::string_view verb, std::size_t size) {
    return call.is_array() && call.size() == size && call[0] == verb;
  };
  if (isCall("command", 2)) {
    if (!call[1].is_string() && !call[1].is_null())
      throw std::runtime_error("expected the name of a command");
    scripting::ScriptCommandDescription description;
    if (call[1].is_string()) description.commandName = call[1].get<std::string>();
    scripting::NascorScriptCommand command(description, documents, services.log);
    return {{"value", jsonOf(command.performDefaultImplementation())}};
  }
  const bool reads = isCall("get", 2);
  if (!(reads || isCall("set", 3)) || !call[1].is_string())
    throw std::runtime_error(R"(expected ["get",KEY], ["set",KEY,VALUE] or ["command",NAME])");
  const ScriptProperty* property = scripting::scriptProperty(call[1].get<std::string>());
  if (!property) throw std::runtime_error("there is no property " + call[1].dump());
  auto* document = dynamic_cast<app::NCDocument*>(documents.currentDocument());
  if (!document) throw std::runtime_error("there is no document");

  scripting::NCDocumentScripting scripted(*document, services.log);
  ScriptValue value;
  if (reads) {
    value = readProperty(*property, scripted, services.calendar);
  } else {
    writeProperty(*property, scripted, valueOf(call[2], property->kind), services.calendar);
  }
  return {{"value", jsonOf(value)}};
}

}  // namespace nascor::drive
