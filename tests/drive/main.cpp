#include <iostream>
#include <string>

#include "drive/Driver.h"
#include "drive/Story.h"

/// Without arguments: reads lines from standard input and answers each. With the names of stories: plays them and says
/// where an answer is not the one that the story expects.
int main(int argc, char** argv) {
  if (argc == 1) {
    nascor::drive::Driver driver;
    for (std::string line; std::getline(std::cin, line);) std::cout << driver.answer(line) << std::endl;
    return 0;
  }
  int failed = 0;
  for (int i = 1; i < argc; ++i) failed += nascor::drive::playStory(argv[i], std::cout) ? 0 : 1;
  return failed == 0 ? 0 : 1;
}
