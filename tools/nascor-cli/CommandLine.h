#pragma once

namespace nascor::cli {

/// Reads the command line, runs one command and answers the exit status: 0 all well, 1 some input was bad, 2 wrong
/// usage. Every exception ends here, as a sentence on standard error.
int runCommandLine(int argc, char** argv);

}  // namespace nascor::cli
