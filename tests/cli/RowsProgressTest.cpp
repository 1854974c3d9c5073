// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <cstdlib>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Process.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::Not;

/// What `rows` of `paths` writes to a terminal that is its standard error, and perhaps its standard output.
std::string seenOnATerminal(const std::vector<std::string>& paths, bool outputToo) {
  const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
  if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0) return {};
  const int other = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
  const int nowhere = ::open("/dev/null", O_RDWR);
  std::vector<std::string> words{NASCOR_CLI, "rows"};
  words.insert(words.end(), paths.begin(), paths.end());
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(nowhere, STDIN_FILENO);
    ::dup2(outputToo ? other : nowhere, STDOUT_FILENO);
    ::dup2(other, STDERR_FILENO);
    ::execv(pointers[0], pointers.data());
    ::_exit(127);
  }
  ::close(other);
  ::close(nowhere);
  // A terminal whose last writer is gone fails to be read.
  std::string seen;
  char byte = 0;
  while (::read(terminal, &byte, 1) == 1) seen += byte;
  ::waitpid(child, nullptr, 0);
  ::close(terminal);
  return seen;
}

TEST(RowsProgress, isShownWhereRowsAreNot) {
  const ScratchFolder folder;
  const std::string file = folder.write("a.nascor", document("{}"));
  const std::string seen = seenOnATerminal({file, file, file}, false);
  EXPECT_THAT(seen, HasSubstr("1 of 3")) << "needs a terminal (/dev/pts)";
  EXPECT_TRUE(seen.ends_with("\r\033[K")) << seen;
  EXPECT_THAT(seenOnATerminal({folder.path("")}, false), HasSubstr("1 of 1")) << "folders are counted";
  EXPECT_THAT(seenOnATerminal({file, file}, true), Not(HasSubstr("1 of 2")));
}

TEST(RowsProgress, makesRoomForAComplaint) {
  const ScratchFolder folder;
  const std::string file = folder.write("a.nascor", document("{}"));
  const std::string seen = seenOnATerminal({file, folder.path("none")}, false);
  EXPECT_THAT(seen, HasSubstr("\033[K" + folder.path("none") + ": No such file or directory\r\n"));
}

}  // namespace
}  // namespace nascor::tests
