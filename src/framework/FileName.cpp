#include "framework/FileName.h"

#include <algorithm>
#include <cstddef>

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
  std::size_t length = std::min(name.size(), kMostBytes - std::min(kMostBytes, ending.size()));
  if (length < name.size()) {
    const auto continues = [](char each) { return (static_cast<unsigned char>(each) & 0xC0) == 0x80; };
    while (length > 0 && continues(name[length])) --length;
  }
  return std::string(name.substr(0, length)).append(ending);
}

std::string fileName(std::string_view name, std::string_view extension) {
  return fileNameEndingIn(fileNameText(name), std::string(".").append(extension));
}

}  // namespace nascor::framework
