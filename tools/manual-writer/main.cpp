// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Writes what a system keeps beside a program: its manual page and its completion for three shells.
//
//     nascor-manual FOLDER

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>

#include "manual/CliProgram.h"
#include "manual/Completion.h"
#include "manual/ManualPage.h"
#ifdef NASCOR_WINDOW
#include "manual_writer/WindowProgram.h"
#endif

namespace {

using namespace nascor::manual;

void write(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file << text;
  file.close();
}

void writeAll(const std::filesystem::path& folder, const Program& program) {
  const std::string& name = program.whole.name;
  write(folder / (name + ".1"), manualPage(program));
  write(folder / (name + ".bash"), bashCompletion(program));
  write(folder / ("_" + name), zshCompletion(program));
  write(folder / (name + ".fish"), fishCompletion(program));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: nascor-manual FOLDER\n", stderr);
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    writeAll(folder, cliProgram());
#ifdef NASCOR_WINDOW
    writeAll(folder, windowProgram());
#endif
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nascor-manual: %s\n", error.what());
    return 1;
  }
  return 0;
}
