// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/FileName.h"

#include <algorithm>
#include <cstddef>

#include "foundation/Utf8.h"

namespace nascor::framework {

std::string fileNameText(std::string_view text) {
  std::string result(text);
  constexpr char kDelete = 0x7F;
  std::ranges::replace_if(
      result, [](char each) { return each == '/' || (each >= 0 && each < ' ') || each == kDelete; }, '-');
  if (result.starts_with('.') || result.starts_with('-')) result.front() = '_';
  return result;
}

std::string portableFileNameText(std::string_view text) {
  constexpr std::string_view kRefused = "<>:\"\\|?*";
  std::string result = fileNameText(text);
  std::ranges::replace_if(
      result, [&](char each) { return kRefused.find(each) != std::string_view::npos; }, '-');
  if (result.ends_with(' ') || result.ends_with('.')) result.back() = '-';
  return result;
}

std::string fileNameEndingIn(std::string_view name, std::string_view ending) {
  constexpr std::size_t kMostBytes = 255;
  const std::size_t room = kMostBytes - std::min(kMostBytes, ending.size());
  return std::string(name.substr(0, foundation::lengthWithin(name, room))).append(ending);
}

std::string freeFileName(std::string_view name, std::string_view kept, std::string_view extension,
                         const std::function<bool(const std::string&)>& isTaken) {
  std::string free = fileNameEndingIn(name, std::string(kept).append(extension));
  for (int i = 2; isTaken(free); ++i) {
    std::string ending(kept);
    ending.append(" (").append(std::to_string(i)).append(")").append(extension);
    free = fileNameEndingIn(name, ending);
  }
  return free;
}

std::string fileName(std::string_view name, std::string_view extension) {
  return fileNameEndingIn(fileNameText(name), std::string(".").append(extension));
}

bool hasExtension(std::string_view path, std::string_view extension) {
  if (path.size() <= extension.size()) return false;
  const std::string_view ending = path.substr(path.size() - extension.size());
  const auto isSame = [](char letter, char small) {
    return letter == small || (letter >= 'A' && letter <= 'Z' && letter + ('a' - 'A') == small);
  };
  return path[path.size() - extension.size() - 1] == '.' && std::ranges::equal(ending, extension, isSame);
}

}  // namespace nascor::framework
