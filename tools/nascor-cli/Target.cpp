// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Target.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "cli_commands/Input.h"
#include "cli_commands/Names.h"

namespace nascor::cli {

std::string outFolderIn(const Arguments& arguments) {
  constexpr std::array<std::string_view, 7> kFileSuffixes{".pdf", ".html", ".htm", ".png",
                                                          ".svg", ".dcm",  ".json"};
  const auto out = arguments.option("out");
  if (!out || out->empty()) throw UsageError(Sentence("CommandLine", "--out is missing"));
  std::error_code error;
  const std::filesystem::path path(*out);
  const std::string suffix = inSmallLetters(path.extension().string());
  if (std::ranges::find(kFileSuffixes, suffix) != kFileSuffixes.end() &&
      !std::filesystem::is_directory(path, error)) {
    throw UsageError(
        Sentence("CommandLine", "--out: expected a folder, but \"%1\" is named like a file").with(*out));
  }
  return *out;
}

std::string Target::nameFor(const std::string& path) {
  const std::string stem = path == "-" ? "Untitled" : std::filesystem::path(path).stem().string();
  std::string name = stem;
  for (int number = 2; !names_.insert(name).second; ++number)
    name = stem + " (" + std::to_string(number) + ")";
  return name;
}

void Target::write(const std::string& name, std::span<const std::byte> bytes) {
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  if (error) return console_->complain(folder_, Sentence::ofSystem(error.message()));
  const std::string path = (std::filesystem::path(folder_) / name).string();
  if (keepsOld_ && store_.exists(path))
    return console_->warn(path, Sentence("CommandLine", "it is there already, and stays as it is"));
  if (const auto problem = store_.replaceContents(path, bytes)) console_->complain(path, reasonOf(*problem));
}

}  // namespace nascor::cli
