// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/SystemLog.h"

#include <gmock/gmock.h>
#include <syslog.h>
#include <unistd.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::vector<std::string> systemLines;

void keep(const char* format, std::va_list arguments) {
  char line[1000];
  std::vsnprintf(line, sizeof line, format, arguments);
  systemLines.emplace_back(line);
}

}  // namespace

// In place of the system's: the program that runs the tests writes into no log.
extern "C" void syslog(int, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  keep(format, arguments);
  va_end(arguments);
}
extern "C" void __syslog_chk(int, int, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  keep(format, arguments);
  va_end(arguments);
}

namespace nascor::tests {
namespace {

using testing::ElementsAre;

/// What a line becomes, on the console; the system's log has the same without the line's end.
std::string logged(std::string_view line) {
  systemLines.clear();
  testing::internal::CaptureStderr();
  qt::SystemLog().write(line);
  return testing::internal::GetCapturedStderr();
}

TEST(TheSystemLog, takesEachLineAndSoDoesTheConsole) {
  EXPECT_EQ(logged("Scripting: set gravida to 2"), "Scripting: set gravida to 2\n");
  EXPECT_THAT(systemLines, ElementsAre("Scripting: set gravida to 2"));
}

TEST(TheSystemLog, takesAnIdentifierForNoFormatAndForNoSecondLine) {
  EXPECT_EQ(logged("Scripting: set identifer to %s%n\nScripting: set gravida to 9"),
            "Scripting: set identifer to %s%n\\nScripting: set gravida to 9\n");
  EXPECT_THAT(systemLines, ElementsAre("Scripting: set identifer to %s%n\\nScripting: set gravida to 9"));
}

TEST(TheSystemLog, doesNotWaitForAConsoleThatNobodyReads) {
  systemLines.clear();
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  const int console = ::dup(STDERR_FILENO);
  ::dup2(ends[1], STDERR_FILENO);
  ::alarm(60);  // more than a pipe holds: who waited would wait for ever
  for (int i = 0; i < 5000; ++i) qt::SystemLog().write("Scripting: gravida is 2, and so on, and so on");
  ::alarm(0);
  ::dup2(console, STDERR_FILENO);
  std::array<char, 46> first{};
  EXPECT_EQ(::read(ends[0], first.data(), first.size()), static_cast<ssize_t>(first.size()));
  EXPECT_EQ(std::string(first.data(), first.size()), "Scripting: gravida is 2, and so on, and so on\n");
  EXPECT_EQ(systemLines.size(), 5000U);
  for (const int each : {ends[0], ends[1], console}) ::close(each);
}

}  // namespace
}  // namespace nascor::tests
