#include "qt/SystemLog.h"

#include <gmock/gmock.h>
#include <syslog.h>

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

}  // namespace
}  // namespace nascor::tests
