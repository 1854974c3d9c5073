#include "cli_commands/Numbers.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace nascor::cli {

namespace {

template <class Number>
std::optional<Number> wholly(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

[[noreturn]] void refuse(std::string_view what, const std::string& expected, const std::string& text) {
  throw UsageError(std::string(what) + ": expected " + expected + ", but \"" + oneLine(text) +
                   "\" was given");
}

}  // namespace

std::optional<double> numberFromText(std::string_view text) {
  const auto value = wholly<double>(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

double requiredNumber(std::string_view what, const std::string& text) {
  const auto value = numberFromText(text);
  if (!value) refuse(what, "a decimal number", text);
  return *value;
}

std::int64_t requiredIdentifier(std::string_view what, const std::string& text, std::size_t count) {
  const auto value = wholly<std::int64_t>(text);
  if (!value || std::cmp_less(*value, 0) || std::cmp_greater_equal(*value, count)) {
    refuse(what, "a whole number from 0 to " + std::to_string(count - 1), text);
  }
  return *value;
}

}  // namespace nascor::cli
