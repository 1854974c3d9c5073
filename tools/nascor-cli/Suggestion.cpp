// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Suggestion.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace nascor::cli {

namespace {

/// How many letters to add, leave out, change or swap with their neighbour make the one of the other.
std::size_t distanceBetween(std::string_view from, std::string_view to) {
  std::vector<std::size_t> beforeLast;
  std::vector<std::size_t> last;
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= from.size(); ++i) {
    beforeLast = last;
    last = row;
    row[0] = i;
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const bool isSame = from[i - 1] == to[j - 1];
      row[j] = std::min({row[j - 1] + 1, last[j] + 1, last[j - 1] + (isSame ? 0U : 1U)});
      const bool isSwapped = i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
      if (isSwapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
  }
  return row.back();
}

}  // namespace

foundation::Sentence didYouMean(const foundation::Sentence& sentence, std::string_view word,
                                std::span<const std::string> names) {
  // Longer than any name; the work grows with the length.
  constexpr std::size_t kLongestWord = 40;
  // Of an option the dashes are no letters.
  const auto letters = [](std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of('-'), text.size()));
    return text;
  };
  const std::string_view typed = letters(word);
  if (typed.empty() || word.size() > kLongestWord) return sentence;

  const std::string* nearest = nullptr;
  // One letter alone is like nothing but itself.
  std::size_t least = typed.size() == 1 ? 1 : std::max<std::size_t>(1, (typed.size() - 1) / 3) + 1;
  for (const std::string& name : names) {
    const std::size_t distance = distanceBetween(typed, letters(name));
    if (distance < least) {
      least = distance;
      nearest = &name;
    }
  }
  if (!nearest && typed.size() > 1) {
    const auto longer = std::ranges::find_if(
        names, [&](const std::string& name) { return letters(name).starts_with(typed); });
    if (longer != names.end()) nearest = &*longer;
  }
  if (!nearest) return sentence;
  //: %1 is a sentence, %2 what may have been meant.
  return foundation::Sentence("CommandLine", "%1; did you mean \"%2\"?").with(sentence, *nearest);
}

}  // namespace nascor::cli
