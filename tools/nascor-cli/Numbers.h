#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli_commands/Command.h"

namespace nascor::cli {

/// A decimal number, all of `text`: digits, a point, an exponent, a sign. Nothing for hexadecimals, decimal commas,
/// blanks, words, and numbers beyond the range of a double.
std::optional<double> numberFromText(std::string_view text);

/// The number in `text`, or a UsageError that names `what`.
double requiredNumber(std::string_view what, const std::string& text);

/// The whole number in `text`, which must lie from 0 to `count - 1`, or a UsageError that names `what`.
std::int64_t requiredIdentifier(std::string_view what, const std::string& text, std::size_t count);

}  // namespace nascor::cli
