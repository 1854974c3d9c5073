#include "cli_commands/CommandLine.h"

int main(int argc, char** argv) { return nascor::cli::runCommandLine(argc, argv); }
