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

std::string fileName(std::string_view name, std::string_view extension) {
  constexpr std::size_t kMostBytes = 255;
  std::string result = fileNameText(name);
  std::size_t length = std::min(result.size(), kMostBytes - std::min(kMostBytes, extension.size() + 1));
  if (length < result.size()) {
    const auto continues = [](char each) { return (static_cast<unsigned char>(each) & 0xC0) == 0x80; };
    while (length > 0 && continues(result[length])) --length;
  }
  result.resize(length);
  return result.append(".").append(extension);
}

}  // namespace nascor::framework
