#include "cli_commands/Numbers.h"

#include <cmath>

#include "foundation/NumberText.h"

namespace nascor::cli {

void refuseValue(std::string_view what, const std::string& expected, const std::string& text) {
  throw UsageError(std::string(what) + ": expected " + expected + ", but \"" + oneLine(text) +
                   "\" was given");
}

std::optional<double> numberFromText(std::string_view text) {
  const auto value = wholeTextAs<double>(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

double requiredNumber(std::string_view what, const std::string& text) {
  const auto value = numberFromText(text);
  if (!value) refuseValue(what, "a decimal number", text);
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
