// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Documents.h"

#include "archive/FormatError.h"
#include "cli_commands/Input.h"

namespace nascor::cli {

std::variant<model::UnarchivedPatient, Sentence> documentFrom(std::span<const std::byte> bytes) {
  try {
    auto document = model::unarchivedPatient(bytes);
    if (document.patient) return document;
    //: Behind the name of a file.
    return Sentence("CommandLine", "holds no patient");
  } catch (const archive::FormatError& error) {
    return model::refusalSentence(error);
  }
}

std::optional<model::UnarchivedPatient> documentIn(const std::string& path, Console& console) {
  const auto bytes = contentsOf(path, console);
  if (!bytes) return std::nullopt;
  auto document = documentFrom(*bytes);
  if (auto* read = std::get_if<model::UnarchivedPatient>(&document)) return std::move(*read);
  console.complain(nameOf(path), std::get<Sentence>(document));
  return std::nullopt;
}

}  // namespace nascor::cli
