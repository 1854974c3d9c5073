// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What scripts write into a document, one line after the other: the first byte of a line is the property, the second the kind
// of the value, the rest the value. A value of the wrong kind changes nothing, and whatever was written is saved and read again.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "ValidText.h"
#include "app/NCDocument.h"
#include "foundation/LeadingInteger.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "scripting/NCDocumentScripting.h"
#include "scripting/ScriptProperties.h"
#include "support/TestApplication.h"

namespace {

using namespace nascor;

constexpr std::size_t kMostLines = 64;

void require(bool holds) {
  if (!holds) std::abort();
}

double numberIn(std::string_view bytes) {
  double number = 0.0;
  if (bytes.size() >= sizeof number) {
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
  }
  return static_cast<double>(foundation::leadingInteger(bytes));
}

scripting::ScriptValue valueIn(char kind, std::string_view bytes) {
  switch (static_cast<unsigned char>(kind) % 5) {
    case 0: return std::monostate();
    case 1: return !bytes.empty();
    case 2: return foundation::leadingInteger(bytes);
    case 3: return numberIn(bytes);
    default: return validText(bytes);
  }
}

void write(std::string_view line, app::NCDocument& document, scripting::NCDocumentScripting& scripted,
           const foundation::Calendar& calendar) {
  const auto properties = scripting::scriptProperties();
  const auto& property = properties[static_cast<unsigned char>(line[0]) % properties.size()];
  const auto before = document.dataRepresentationOfType("");
  try {
    scripting::writeProperty(property, scripted, valueIn(line[1], line.substr(2)), calendar);
  } catch (const scripting::WrongKind& wrong) {
    require(std::string_view(wrong.what()) == scripting::expectation(property));
    require(document.dataRepresentationOfType("") == before);
  } catch (const std::exception& refusal) {
    require(refusal.what()[0] != '\0');
  }
  for (const auto& each : properties) static_cast<void>(scripting::readProperty(each, scripted, calendar));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  tests::TestApplication platform;
  platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  app::NCDocument document(platform.environment());
  document.windowControllerDidLoadNib();
  scripting::NCDocumentScripting scripted(document, platform.log);
  for (std::size_t lines = 0; lines < kMostLines && !rest.empty(); ++lines) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    if (end >= 2) write(rest.substr(0, end), document, scripted, platform.calendar);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  const auto saved = document.dataRepresentationOfType("");
  const auto read = model::unarchivedPatient(saved);
  require(read.patient != nullptr);
  require(model::archivedPatient(*read.patient) == saved);
  return 0;
}
