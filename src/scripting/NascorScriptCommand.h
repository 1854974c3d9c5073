// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/Log.h"
#include "framework/DocumentController.h"
#include "scripting/ScriptValue.h"

namespace nascor::scripting {

inline constexpr std::string_view kMakeNewDocument = "make new document";
inline constexpr std::string_view kExportToFile = "export to file";

struct ScriptCommandDescription {
  std::optional<std::string> commandName;
};

/// A command that a script sends to the application.
class ScriptCommand {
 public:
  explicit ScriptCommand(std::optional<ScriptCommandDescription> description)
      : commandDescription_(std::move(description)) {}
  virtual ~ScriptCommand() = default;
  ScriptCommand(const ScriptCommand&) = delete;
  ScriptCommand& operator=(const ScriptCommand&) = delete;

  const std::optional<ScriptCommandDescription>& commandDescription() const { return commandDescription_; }

  /// Does what the command says, and gives its result.
  virtual ScriptValue performDefaultImplementation() = 0;

 private:
  std::optional<ScriptCommandDescription> commandDescription_;
};

/// "make new document" opens a new untitled document; "export to file" exports the document in front. A command of any
/// other name does nothing.
class NascorScriptCommand final : public ScriptCommand {
 public:
  /// `documents` and `log` outlive the command.
  NascorScriptCommand(std::optional<ScriptCommandDescription> description,
                      framework::DocumentController& documents, foundation::Log& log)
      : ScriptCommand(std::move(description)), documents_(documents), log_(log) {}

  /// Always none. Throws AssertionFailure without description or name, and when there is no document to export.
  ScriptValue performDefaultImplementation() override;
  /// Why the page was not exported, a sentence; nothing when it was, or when nothing was to be.
  const std::optional<std::string>& failure() const { return failure_; }

 private:
  framework::DocumentController& documents_;
  foundation::Log& log_;
  std::optional<std::string> failure_;
};

}  // namespace nascor::scripting
