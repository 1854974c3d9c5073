#include "cli_commands/CommandLine.h"
#include "posix/CoreDumps.h"

int main(int argc, char** argv) {
  nascor::posix::switchOffCoreDumps();
  return nascor::cli::runCommandLine(argc, argv);
}
