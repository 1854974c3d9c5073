// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/NascorScriptCommand.h"

#include "app/NCDocument.h"
#include "foundation/Assertion.h"

namespace nascor::scripting {
namespace {

using foundation::SourceLocation;

// What is reported when something is missing. Callers know the three cases by these lines, so they do not move with the
// text of this file.
constexpr const char* kSource = "NascorScriptCommand";
constexpr SourceLocation kNoDescription = SourceLocation::current(kSource, 10);
constexpr SourceLocation kNoName = SourceLocation::current(kSource, 11);
constexpr SourceLocation kNoDocument = SourceLocation::current(kSource, 22);

}  // namespace

ScriptValue NascorScriptCommand::performDefaultImplementation() {
  const std::string& name =
      *foundation::required(foundation::required(commandDescription(), kNoDescription)->commandName, kNoName);
  if (name == kMakeNewDocument) {
    log_.write(name);
    documents_.newDocument();
  }
  if (name == kExportToFile) {
    log_.write(name);
    auto* document = dynamic_cast<app::NCDocument*>(documents_.currentDocument());
    failure_ = foundation::required(document, kNoDocument)->doExport(nullptr);
  }
  return {};
}

}  // namespace nascor::scripting
