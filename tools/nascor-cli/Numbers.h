// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "cli_commands/Command.h"
#include "foundation/JsonText.h"

namespace nascor::cli {

/// All of `text` as a number of that type, which may have a plus sign; nothing when it is none.
template <class Number>
std::optional<Number> wholeTextAs(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

/// Throws the UsageError "WHAT: expected EXPECTED, but "TEXT" was given".
[[noreturn]] void refuseValue(std::string_view what, const Sentence& expected, const std::string& text);

/// A decimal number, all of `text`: digits, a point, an exponent, a sign. Nothing for hexadecimals, decimal commas,
/// blanks, words, and numbers beyond the range of a double.
std::optional<double> numberFromText(std::string_view text);

/// The number in `text`, or a UsageError that names `what`.
double requiredNumber(std::string_view what, const std::string& text);

/// How a command writes its numbers.
class Digits {
 public:
  /// With `--fixed`, which people want, one digit behind the point as C's "%.1f" gives it; else the digits that read
  /// back to the same double.
  explicit Digits(const Arguments& arguments) : isFixed_(arguments.has("fixed")) {}

  std::string text(double value) const;
  void write(foundation::JsonText& json, double value) const;

 private:
  bool isFixed_;
};

/// The option that `Digits` reads.
inline constexpr OptionSpec kFixedOption{
    "fixed", "", translatable("CommandHelp", "one digit behind the point, in JSON too")};

}  // namespace nascor::cli
