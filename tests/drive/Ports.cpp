// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Ports.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unicase.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace nascor::drive {

const std::vector<LocaleRow>& locales() {
  static const std::vector<LocaleRow> rows{
      {"en_US", "M/d/yy", '.'},     {"en_GB", "dd/MM/yyyy", '.'}, {"en_AU", "d/M/yy", '.'},
      {"de_DE", "dd.MM.yy", ','},   {"fr_FR", "dd/MM/yyyy", ','}, {"sv_SE", "yyyy-MM-dd", ','},
      {"ja_JP", "yyyy/MM/dd", '.'},
  };
  return rows;
}

std::string StoryLocalizer::upperCased(std::string_view text) const {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::size_t length = 0;
  const std::unique_ptr<std::uint8_t, decltype(&std::free)> capitals(
      u8_toupper(bytes, text.size(), "", nullptr, nullptr, &length), &std::free);
  // What is not UTF-8 has no capitals.
  if (capitals == nullptr) return std::string(text);
  return {reinterpret_cast<const char*>(capitals.get()), length};
}

bool StoryLocalizer::choose(std::string_view locale) {
  const auto row = std::ranges::find(locales(), locale, &LocaleRow::name);
  if (row == locales().end()) return false;
  form_.pattern = row->shortDatePattern;
  decimalSign_ = row->decimalSign;
  return true;
}

std::optional<foundation::FileError> StoryFileStore::replaceContents(const std::string& path,
                                                                     std::span<const std::byte> bytes) {
  if (auto error = files_.replaceContents(path, bytes)) return error;
  return date(path);
}

std::optional<foundation::FileError> StoryFileStore::replaceExpected(
    const std::string& path, std::span<const std::byte> bytes, const foundation::FileContents& expected) {
  if (auto error = files_.replaceExpected(path, bytes, expected)) return error;
  return date(path);
}

std::optional<foundation::FileError> StoryFileStore::date(const std::string& path) {
  constexpr double kUnixTimeOf2001 = 978307200.0;
  constexpr double kMillisecond = 0.001;
  const double written = clock_.now().secondsSince2001 + kUnixTimeOf2001 + kMillisecond * ++writes_;
  const timespec stamp{.tv_sec = static_cast<time_t>(std::floor(written)),
                       .tv_nsec = static_cast<long>((written - std::floor(written)) * 1e9)};
  const timespec stamps[] = {stamp, stamp};
  if (::utimensat(AT_FDCWD, path.c_str(), stamps, 0) != 0) return foundation::FileError{"no date can be set"};
  return std::nullopt;
}

}  // namespace nascor::drive
