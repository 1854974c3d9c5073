// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Names.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "cli_commands/Numbers.h"

namespace nascor::cli {

namespace {

std::vector<std::string_view> namesOf(const auto& facts) {
  std::vector<std::string_view> names;
  for (const auto& fact : facts) names.push_back(fact.name);
  return names;
}

std::optional<std::int64_t> identifierIn(std::string_view text, std::span<const std::string_view> names) {
  const auto place = placeOf(text, names);
  if (!place) return std::nullopt;
  return static_cast<std::int64_t>(*place);
}

std::int64_t requiredIdentifier(std::string_view what, const std::string& text,
                                std::span<const std::string_view> names) {
  if (const auto identifier = identifierIn(text, names)) return *identifier;
  std::string listed;
  for (const std::string_view name : names) listed.append(listed.empty() ? "" : ", ").append(name);
  //: %1 is a list of names.
  const auto expected = Sentence("CommandLine", "%1 or a whole number from 0 to %2");
  refuseValue(what, expected.with(listed, names.size() - 1), text);
}

}  // namespace

std::string inSmallLetters(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(), [](char each) {
    return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
  });
  return small;
}

std::optional<std::size_t> placeOf(std::string_view text, std::span<const std::string_view> names) {
  const auto number = wholeTextAs<std::int64_t>(text);
  if (number && std::cmp_greater_equal(*number, 0) && std::cmp_less(*number, names.size())) {
    return static_cast<std::size_t>(*number);
  }
  const auto found = std::ranges::find(names, inSmallLetters(text));
  if (found == names.end()) return std::nullopt;
  return static_cast<std::size_t>(found - names.begin());
}

std::optional<std::int64_t> standardFromText(std::string_view text) {
  return identifierIn(text, namesOf(calc::growthStandards()));
}

std::optional<std::int64_t> formulaFromText(std::string_view text) {
  return identifierIn(text, namesOf(calc::weightFormulas()));
}

std::int64_t requiredStandard(std::string_view what, const std::string& text) {
  return requiredIdentifier(what, text, namesOf(calc::growthStandards()));
}

std::int64_t requiredFormula(std::string_view what, const std::string& text) {
  return requiredIdentifier(what, text, namesOf(calc::weightFormulas()));
}

Measure requiredMeasure(const std::string& text) {
  const std::string name = inSmallLetters(text);
  for (const calc::Measurement measurement : calc::kMeasurements) {
    if (name == calc::nameOf(measurement)) return {measurement};
  }
  if (name == kWeightName) return {};
  throw UsageError(
      Sentence("CommandLine", "expected bpd, hc, ac, fl or efw as the measurement, but \"%1\" was given")
          .with(oneLine(text)));
}

}  // namespace nascor::cli
