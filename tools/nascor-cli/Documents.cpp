#include "cli_commands/Documents.h"

#include "archive/FormatError.h"
#include "cli_commands/Input.h"

namespace nascor::cli {

std::optional<model::UnarchivedPatient> documentIn(const std::string& path, Console& console) {
  const auto bytes = contentsOf(path, console);
  if (!bytes) return std::nullopt;
  try {
    auto document = model::unarchivedPatient(*bytes);
    if (document.patient) return document;
    console.complain(nameOf(path), "holds no patient");
  } catch (const archive::FormatError& error) {
    console.complain(nameOf(path), model::refusalText(error));
  }
  return std::nullopt;
}

}  // namespace nascor::cli
