// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <iostream>
#include <string>
#include <string_view>

#include "drive/Driver.h"
#include "drive/Story.h"
#include "posix/FileSizeSignal.h"

/// Without arguments: reads lines from standard input and answers each. With the names of stories: plays them and says
/// where an answer is not the one that the story expects.
int main(int argc, char** argv) {
  nascor::posix::ignoreFileSizeSignal();
  constexpr std::string_view kUsage =
      "usage: nascor-drive [STORY...]\n"
      "\n"
      "Plays the user of the application without a display.\n"
      "\n"
      "Without arguments: reads JSON objects from standard input, one a line, and answers each by one, such "
      "as\n"
      "  {\"new\":true}\n"
      "  {\"edit\":[\"bpdField\",\"45.3\"]}\n"
      "  {\"state\":true}\n"
      "With the names of stories: plays them and says where an answer is not the expected one; the status is "
      "1 then.\n"
      "tests/drive/Story.h says how stories are written.\n";
  if (argc > 1 && argv[1][0] == '-') {
    const std::string_view option = argv[1];
    const bool isHelp = option == "--help" || option == "-h";
    (isHelp ? std::cout : std::cerr) << kUsage;
    return isHelp ? 0 : 2;
  }
  if (argc == 1) {
    nascor::drive::Driver driver;
    for (std::string line; std::getline(std::cin, line);) std::cout << driver.answer(line) << std::endl;
    return 0;
  }
  int failed = 0;
  for (int i = 1; i < argc; ++i) failed += nascor::drive::playStory(argv[i], std::cout) ? 0 : 1;
  return failed == 0 ? 0 : 1;
}
