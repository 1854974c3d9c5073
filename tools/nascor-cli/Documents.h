#pragma once

#include <optional>
#include <string>

#include "cli_commands/Console.h"
#include "model/PatientFile.h"

namespace nascor::cli {

/// The document in a file, or in standard input for "-"; its patient is there. When it cannot be read, or holds no
/// patient: a complaint, and nothing.
std::optional<model::UnarchivedPatient> documentIn(const std::string& path, Console& console);

}  // namespace nascor::cli
