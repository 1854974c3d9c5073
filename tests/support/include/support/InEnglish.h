// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::tests {

inline std::string inEnglish(const foundation::Sentence& sentence) { return english(sentence); }

/// Empty for nothing.
inline std::string inEnglish(const std::optional<foundation::Sentence>& sentence) {
  return sentence ? english(*sentence) : "";
}

inline std::vector<std::string> inEnglish(const std::vector<foundation::Sentence>& sentences) {
  std::vector<std::string> texts;
  texts.reserve(sentences.size());
  for (const foundation::Sentence& each : sentences) texts.push_back(english(each));
  return texts;
}

}  // namespace nascor::tests
