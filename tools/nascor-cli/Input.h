#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli_commands/Console.h"

namespace nascor::cli {

/// How messages name an input: the path, or "standard input" for "-".
std::string nameOf(const std::string& path);

/// The whole file, or all of standard input for "-". When it cannot be read: a complaint, and nothing.
std::optional<std::vector<std::byte>> contentsOf(const std::string& path, Console& console);

/// Reads standard input to its end, one number a line, and hands each on as it comes. A line that is no number is a
/// complaint and is handed on as nothing. Blanks around a number do not matter.
void forEachNumberOfInput(Console& console, const std::function<void(std::optional<double>)>& take);

}  // namespace nascor::cli
