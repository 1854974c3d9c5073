// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "cli_commands/Console.h"
#include "model/PatientFile.h"

namespace nascor::cli {

/// The document in bytes, with its patient; or why it is none, in a sentence.
std::variant<model::UnarchivedPatient, Sentence> documentFrom(std::span<const std::byte> bytes);

/// The document in a file, or in standard input for "-"; its patient is there. When it cannot be read, or holds no
/// patient: a complaint, and nothing.
std::optional<model::UnarchivedPatient> documentIn(const std::string& path, Console& console);

}  // namespace nascor::cli
