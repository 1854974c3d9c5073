// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientPage.h"

#include <algorithm>
#include <utility>

namespace nascor::model {

namespace {

constexpr bool standAtTheirPlaces() {
  for (std::size_t place = 0; place < kPatientPages.size(); ++place) {
    if (placeOf(kPatientPages.at(place).page) != place) return false;
  }
  return true;
}
static_assert(standAtTheirPlaces());
static_assert(kPatientPages.size() <= 10, "a number of a page is one digit");

std::string inSmallLetters(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(), [](char each) {
    return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
  });
  return small;
}

std::optional<PatientPage> pageOfWord(std::string_view word) {
  if (word == "first") return kPatientPages.front().page;
  if (word == "last") return kPatientPages.back().page;
  for (const PatientPageFacts& each : kPatientPages) {
    if (word == each.word) return each.page;
  }
  if (word.size() != 1) return std::nullopt;
  return patientPageAt(word.front() - '0');
}

}  // namespace

std::optional<PatientPage> patientPageAt(std::int64_t index) {
  if (index < 0 || std::cmp_greater_equal(index, kPatientPages.size())) return std::nullopt;
  return kPatientPages.at(static_cast<std::size_t>(index)).page;
}

ChosenPages chosenPages(std::string_view text) {
  ChosenPages chosen;
  if (inSmallLetters(text) == "all") {
    for (const PatientPageFacts& each : kPatientPages) chosen.pages.push_back(each.page);
    return chosen;
  }
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(',', start), text.size());
    const std::string_view word = text.substr(start, end - start);
    const auto page = pageOfWord(inSmallLetters(word));
    if (!page) {
      chosen.refused = word;
      return chosen;
    }
    chosen.pages.push_back(*page);
    start = end + 1;
  }
  return chosen;
}

}  // namespace nascor::model
