#include "drive/Story.h"

#include <fstream>
#include <optional>
#include <string_view>

#include "drive/Driver.h"

namespace nascor::drive {
namespace {

/// Whether `actual` holds all that `expected` names.
bool holds(const Json& actual, const Json& expected) {
  if (expected.is_object()) {
    if (!actual.is_object()) return false;
    for (const auto& [key, value] : expected.items()) {
      if (!actual.contains(key) || !holds(actual[key], value)) return false;
    }
    return true;
  }
  if (expected.is_array()) {
    if (!actual.is_array() || actual.size() != expected.size()) return false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      if (!holds(actual[i], expected[i])) return false;
    }
    return true;
  }
  return actual == expected;
}

}  // namespace

bool playStory(const std::string& path, std::ostream& out) {
  std::ifstream story(path);
  if (!story) {
    out << path << ": cannot be read\n";
    return false;
  }
  Driver driver;
  bool isWell = true;
  int number = 0;
  int answeredAt = 0;
  std::string answer;
  const auto fail = [&](const std::string& what) {
    out << path << ":" << answeredAt << ": " << what << "\n  answered " << answer << "\n";
    isWell = false;
  };
  bool isExpected = true;
  const auto checkNoError = [&] {
    if (!isExpected && Json::parse(answer).contains("error")) fail("an error was not expected");
  };
  for (std::string line; std::getline(story, line);) {
    ++number;
    const std::size_t start = line.find_first_not_of(' ');
    const std::string_view text = start == std::string::npos ? "" : std::string_view(line).substr(start);
    if (text.starts_with('{')) {
      checkNoError();
      answer = driver.answer(text);
      answeredAt = number;
      isExpected = false;
    } else if (text.starts_with("=> ") || text.starts_with("=~ ")) {
      isExpected = true;
      const Json expected = Json::parse(text.substr(3));
      const Json actual = Json::parse(answer);
      const bool fits = text.starts_with("=>") ? actual == expected : holds(actual, expected);
      if (!fits) fail("expected " + textOf(expected));
    }
  }
  checkNoError();
  return isWell;
}

}  // namespace nascor::drive
