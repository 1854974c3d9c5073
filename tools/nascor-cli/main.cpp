// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/CommandLine.h"
#include "posix/CoreDumps.h"
#include "posix/FileSizeSignal.h"
#include "posix/GettextLocalizer.h"

int main(int argc, char** argv) {
  nascor::posix::switchOffCoreDumps();
  nascor::posix::ignoreFileSizeSignal();
  const nascor::posix::GettextLocalizer localizer(nascor::posix::catalogueFolder());
  return nascor::cli::runCommandLine(argc, argv, localizer);
}
