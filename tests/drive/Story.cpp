// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Story.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>
#include <vector>

#include "drive/Driver.h"

namespace nascor::drive {
namespace {

constexpr std::string_view kAndMore = "...";
constexpr std::string_view kNotThere = "<none>";

/// Whether `actual` is `expected`, in which "..." stands for any text.
bool fits(std::string_view actual, std::string_view expected) {
  std::size_t gap = expected.find(kAndMore);
  if (gap == std::string_view::npos) return actual == expected;
  if (!actual.starts_with(expected.substr(0, gap))) return false;
  actual.remove_prefix(gap);
  for (;;) {
    expected.remove_prefix(gap + kAndMore.size());
    gap = expected.find(kAndMore);
    if (gap == std::string_view::npos) return actual.ends_with(expected);
    const std::size_t at = actual.find(expected.substr(0, gap));
    if (at == std::string_view::npos) return false;
    actual.remove_prefix(at + gap);
  }
}

/// Whether `actual` holds all that `expected` names.
bool holds(const Json& actual, const Json& expected) {
  if (expected.is_object()) {
    if (!actual.is_object()) return false;
    for (const auto& [key, value] : expected.items()) {
      if (value == Json(kNotThere) ? actual.contains(key)
                                   : !actual.contains(key) || !holds(actual[key], value)) {
        return false;
      }
    }
    return true;
  }
  if (expected.is_array()) {
    const bool hasMore = !expected.empty() && expected.back() == Json(kAndMore);
    const std::size_t named = expected.size() - (hasMore ? 1 : 0);
    if (!actual.is_array() || actual.size() < named || (actual.size() > named && !hasMore)) return false;
    for (std::size_t i = 0; i < named; ++i) {
      if (!holds(actual[i], expected[i])) return false;
    }
    return true;
  }
  if (actual.is_string() && expected.is_string()) {
    return fits(actual.get_ref<const std::string&>(), expected.get_ref<const std::string&>());
  }
  return actual == expected;
}

/// What stands for folders in the lines of a story, and these folders.
using Folders = std::vector<std::pair<std::string_view, std::string>>;

std::string withFolders(std::string_view line, const Folders& folders) {
  std::string result(line);
  for (const auto& [name, folder] : folders) {
    for (std::size_t at = 0; (at = result.find(name, at)) != std::string::npos; at += folder.size())
      result.replace(at, name.size(), folder);
  }
  return result;
}

}  // namespace

bool playStory(const std::string& path, std::ostream& out) {
  std::ifstream story(path);
  if (!story) {
    out << path << ": cannot be read\n";
    return false;
  }
  const char* reports = std::getenv("NASCOR_REPORTS");
  const Folders folders{
      {"$DATA", (std::filesystem::absolute(path).parent_path().parent_path() / "data").string()},
      {"$REPORTS", reports ? reports : "NASCOR_REPORTS"}};
  Driver driver;
  driver.sharesSamples();
  bool isWell = true;
  int number = 0;
  int answeredAt = 0;
  int expectations = 0;
  bool isExpected = true;
  std::string answer;
  const auto fail = [&](int line, const std::string& what) {
    out << path << ":" << line << ": " << what << "\n";
    if (!answer.empty()) out << "  answered " << answer << "\n";
    isWell = false;
  };
  const auto checkNoError = [&] {
    if (!isExpected && Json::parse(answer).contains("error")) fail(answeredAt, "an error was not expected");
  };
  for (std::string line; std::getline(story, line);) {
    ++number;
    const std::size_t start = line.find_first_not_of(' ');
    const std::string_view text = start == std::string::npos ? "" : std::string_view(line).substr(start);
    if (text.starts_with('{')) {
      checkNoError();
      answer = driver.answer(withFolders(text, folders));
      answeredAt = number;
      isExpected = false;
    } else if (text.starts_with('=')) {
      const bool isWhole = text.starts_with("=> ");
      if ((!isWhole && !text.starts_with("=~ ")) || answer.empty()) {
        fail(number, "not an expectation");
        continue;
      }
      isExpected = true;
      ++expectations;
      const Json expected = Json::parse(withFolders(text.substr(3), folders), nullptr, false);
      const Json actual = Json::parse(answer);
      if (expected.is_discarded()) {
        fail(number, "the expectation is not JSON");
      } else if (isWhole ? actual != expected : !holds(actual, expected)) {
        fail(number, "expected " + textOf(expected));
      }
    }
  }
  checkNoError();
  if (expectations == 0) fail(number, "nothing was expected");
  return isWell;
}

}  // namespace nascor::drive
