// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/RowOptions.h"

#include <algorithm>

#include "calc/References.h"
#include "cli_commands/Names.h"

namespace nascor::cli {

std::vector<std::string> partsOf(const std::string& list) {
  std::vector<std::string> parts;
  for (std::size_t start = 0;;) {
    const std::size_t comma = list.find(',', start);
    parts.push_back(list.substr(start, comma - start));
    if (comma == std::string::npos) return parts;
    start = comma + 1;
  }
}

namespace {

/// The place of a growth standard, by number or name, or of another reference of which a block can be made, by name.
std::int64_t requiredBlock(const std::string& text) {
  const auto all = calc::references();
  const auto found = std::ranges::find(all, inSmallLetters(text), &calc::Reference::name);
  if (found == all.end()) return requiredStandard("--standard", text);
  if (!rows::hasBlock(*found))
    throw UsageError(
        Sentence("CommandLine", "--standard: %1 has no mean and SD of the four lengths").with(found->name));
  return found - all.begin();
}

}  // namespace

std::vector<std::int64_t> chosenStandards(const Arguments& arguments) {
  const auto list = arguments.option("standard");
  if (!list) return {};
  if (inSmallLetters(*list) == "all") return rows::allStandards();
  std::vector<std::int64_t> standards;
  for (const std::string& part : partsOf(*list)) {
    const std::int64_t standard = requiredBlock(part);
    if (std::ranges::find(standards, standard) != standards.end()) {
      throw UsageError(Sentence("CommandLine", "--standard: \"%1\" stands there twice").with(part));
    }
    standards.push_back(standard);
  }
  return standards;
}

std::optional<std::int64_t> chosenFormula(const Arguments& arguments) {
  const auto formula = arguments.option("formula");
  if (!formula) return std::nullopt;
  return requiredFormula("--formula", *formula);
}

std::optional<std::vector<std::string>> chosenColumnNames(const Arguments& arguments) {
  const auto list = arguments.option("columns");
  if (!list) return std::nullopt;
  std::vector<std::string> names = partsOf(*list);
  for (auto name = names.begin(); name != names.end(); ++name) {
    if (name->empty()) throw UsageError(Sentence("CommandLine", "--columns: a name is empty"));
    if (std::find(names.begin(), name, *name) != name) {
      throw UsageError(Sentence("CommandLine", "--columns: \"%1\" stands there twice").with(*name));
    }
  }
  return names;
}

}  // namespace nascor::cli
