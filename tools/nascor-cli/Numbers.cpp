// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Numbers.h"

#include <cmath>

#include "foundation/NumberText.h"

namespace nascor::cli {

void refuseValue(std::string_view what, const Sentence& expected, const std::string& text) {
  //: %1 is an option or an operand, %2 what it takes, %3 what was typed.
  throw UsageError(
      Sentence("CommandLine", "%1: expected %2, but \"%3\" was given").with(what, expected, oneLine(text)));
}

std::optional<double> numberFromText(std::string_view text) {
  const auto value = wholeTextAs<double>(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

double requiredNumber(std::string_view what, const std::string& text) {
  const auto value = numberFromText(text);
  if (!value) {
    const Sentence number = Sentence("CommandLine", "a decimal number");
    const Sentence withPoint = Sentence("CommandLine", "a decimal number with a point, such as 61.2");
    refuseValue(what, text.find(',') == std::string::npos ? number : withPoint, text);
  }
  return *value;
}

std::string Digits::text(double value) const {
  return isFixed_ ? foundation::fixedText(value, 1) : foundation::shortestText(value);
}

void Digits::write(foundation::JsonText& json, double value) const {
  if (isFixed_) {
    json.fixed(value, 1);
  } else {
    json.number(value);
  }
}

}  // namespace nascor::cli
