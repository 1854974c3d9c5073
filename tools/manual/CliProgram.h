#pragma once

#include "manual/Program.h"

namespace nascor::manual {

/// nascor-cli, from the table of its commands.
Program cliProgram();

}  // namespace nascor::manual
