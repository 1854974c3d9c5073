#include "cli_commands/Documents.h"

#include "archive/FormatError.h"
#include "cli_commands/Input.h"

namespace nascor::cli {

std::variant<model::UnarchivedPatient, std::string> documentFrom(std::span<const std::byte> bytes) {
  try {
    auto document = model::unarchivedPatient(bytes);
    if (document.patient) return document;
    return "holds no patient";
  } catch (const archive::FormatError& error) {
    return model::refusalText(error);
  }
}

std::optional<model::UnarchivedPatient> documentIn(const std::string& path, Console& console) {
  const auto bytes = contentsOf(path, console);
  if (!bytes) return std::nullopt;
  auto document = documentFrom(*bytes);
  if (auto* read = std::get_if<model::UnarchivedPatient>(&document)) return std::move(*read);
  console.complain(nameOf(path), std::get<std::string>(document));
  return std::nullopt;
}

}  // namespace nascor::cli
