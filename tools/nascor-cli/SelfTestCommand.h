#pragma once

#include <span>

#include "cli_commands/Console.h"
#include "selftest/Examples.h"

namespace nascor::cli {

/// Works `examples` out again and tells of each group; a complaint when any of them differs.
void tellSelfTest(std::span<const selftest::Example> examples, bool asJson, Console& console);

}  // namespace nascor::cli
