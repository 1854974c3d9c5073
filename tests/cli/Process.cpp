// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "Process.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nascor::tests {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File temporaryFile() { return {std::tmpfile(), std::fclose}; }

std::string contentsOf(std::FILE* file) {
  std::rewind(file);
  std::string contents;
  std::array<char, 65536> piece;
  while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), file))
    contents.append(piece.data(), count);
  return contents;
}

}  // namespace

Outcome run(const Call& call) {
  const File input = temporaryFile();
  const File output = temporaryFile();
  const File errors = temporaryFile();
  std::fwrite(call.input.data(), 1, call.input.size(), input.get());
  std::rewind(input.get());

  const std::string program = call.program.empty() ? NASCOR_CLI : call.program;
  std::vector<char*> arguments{const_cast<char*>(program.c_str())};
  for (const std::string& argument : call.arguments) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);

  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(::fileno(input.get()), STDIN_FILENO);
    ::dup2(call.outputFile >= 0 ? call.outputFile : ::fileno(output.get()), STDOUT_FILENO);
    ::dup2(::fileno(errors.get()), STDERR_FILENO);
    if (!call.zone.empty()) ::setenv("TZ", call.zone.c_str(), 1);
    if (!call.language.empty()) ::setenv("LANGUAGE", call.language.c_str(), 1);
    // A timer goes on in the program that takes the place of this one.
    constexpr std::int64_t kSecond = 1'000'000;
    const std::int64_t after = call.killedAfter.count();
    const itimerval timer{.it_interval = {},
                          .it_value = {.tv_sec = after / kSecond, .tv_usec = after % kSecond}};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
          .out = contentsOf(output.get()),
          .err = contentsOf(errors.get())};
}

Outcome run(std::vector<std::string> arguments, std::string input) {
  return run(Call{.arguments = std::move(arguments), .input = std::move(input)});
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

ScratchFolder::ScratchFolder() {
  std::string pattern = std::filesystem::temp_directory_path() / "nascor-cli-test-XXXXXX";
  path_ = ::mkdtemp(pattern.data());
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::write(const std::string& name, const std::string& contents) const {
  std::ofstream(path(name), std::ios::binary) << contents;
  return path(name);
}

std::string contentsOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string document(const std::string& json) {
  const Outcome made = run({"make", "-"}, json);
  EXPECT_EQ(made.status, 0) << made.err;
  return made.out;
}

}  // namespace nascor::tests
