// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace nascor::tests {

/// A text of a table, as gettext knows it.
inline std::string gettextKey(const std::string& table, const std::string& text) {
  return table + "|\004" + text;
}

/// A compiled catalogue, as msgfmt writes it: the translation of each key, in UTF-8.
inline std::string compiledCatalogue(std::map<std::string, std::string> texts) {
  texts[""] = "Content-Type: text/plain; charset=UTF-8\n";
  constexpr std::uint32_t kMagic = 0x950412DE;
  constexpr std::uint32_t kHead = 28;
  const auto count = static_cast<std::uint32_t>(texts.size());
  const std::uint32_t pairs = 8 * count;
  std::vector<std::uint32_t> numbers{kMagic, 0, count, kHead, kHead + pairs, 0, kHead + 2 * pairs};
  std::string bytes;
  const auto append = [&](const std::string& text) {
    numbers.push_back(static_cast<std::uint32_t>(text.size()));
    numbers.push_back(static_cast<std::uint32_t>(kHead + 2 * pairs + bytes.size()));
    bytes.append(text).push_back('\0');
  };
  for (const auto& [key, translation] : texts) append(key);
  for (const auto& [key, translation] : texts) append(translation);
  std::string file(reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(numbers[0]));
  return file += bytes;
}

/// Makes the catalogue of a language in a folder of catalogues.
inline void writeCatalogue(const std::string& folder, const std::string& language,
                           std::map<std::string, std::string> texts, const std::string& domain = "nascor") {
  const std::filesystem::path place = std::filesystem::path(folder) / language / "LC_MESSAGES";
  std::filesystem::create_directories(place);
  std::ofstream(place / (domain + ".mo"), std::ios::binary) << compiledCatalogue(std::move(texts));
}

}  // namespace nascor::tests
