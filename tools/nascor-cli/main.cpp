#include "cli_commands/CommandLine.h"
#include "posix/CoreDumps.h"
#include "posix/FileSizeSignal.h"

int main(int argc, char** argv) {
  nascor::posix::switchOffCoreDumps();
  nascor::posix::ignoreFileSizeSignal();
  return nascor::cli::runCommandLine(argc, argv);
}
