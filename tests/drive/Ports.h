// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "foundation/Clock.h"
#include "foundation/Localizer.h"
#include "posix/PosixFileStore.h"

namespace nascor::drive {

/// English texts; dates, decimal sign and capital letters as a locale has them.
class StoryLocalizer final : public foundation::Localizer {
 public:
  std::string text(std::string_view, std::string_view key) const override { return std::string(key); }
  foundation::ShortDateForm shortDateForm() const override { return form_; }
  std::string longDateText(const foundation::CivilDay& day) const override {
    return foundation::EnglishLocalizer().longDateText(day);
  }
  char decimalSign() const override { return decimalSign_; }
  std::string upperCased(std::string_view text) const override;

  /// False for a locale that is not in the table.
  bool choose(std::string_view locale);

 private:
  foundation::ShortDateForm form_{.pattern = "M/d/yy", .monthNames = {}};
  char decimalSign_ = '.';
};

/// The files of the operating system, dated by the story's clock: the first that is written at a moment a millisecond after
/// it, the next two, so that no two files are of the same age.
class StoryFileStore final : public foundation::FileStore {
 public:
  StoryFileStore(std::string documentsFolder, const foundation::Clock& clock)
      : files_(std::move(documentsFolder)), clock_(clock) {}

  std::variant<std::vector<std::byte>, foundation::FileError> contents(
      const std::string& path) const override {
    return files_.contents(path);
  }
  std::optional<foundation::FileError> replaceContents(const std::string& path,
                                                       std::span<const std::byte> bytes) override;
  std::optional<foundation::FileError> replaceExpected(const std::string& path,
                                                       std::span<const std::byte> bytes,
                                                       const foundation::FileContents& expected) override;
  /// From now on takes no lock of a document outside the folder of documents: others open it at the same time.
  void leaveOthersUnlocked() { leavesOthersUnlocked_ = true; }
  foundation::FileClaim claim(const std::string& path, Claim wish) override {
    const bool isOther = path.starts_with('/') && !path.starts_with(documentsFolder());
    return leavesOthersUnlocked_ && isOther ? foundation::FileClaim{} : files_.claim(path, wish);
  }
  std::vector<foundation::FileEntry> entries(const std::string& folder) const override {
    return files_.entries(folder);
  }
  bool exists(const std::string& path) const override { return files_.exists(path); }
  std::string documentsFolder() const override { return files_.documentsFolder(); }
  std::string resolvedPath(const std::string& path) const override { return files_.resolvedPath(path); }

 private:
  std::optional<foundation::FileError> date(const std::string& path);

  posix::PosixFileStore files_;
  const foundation::Clock& clock_;
  int writes_ = 0;
  bool leavesOthersUnlocked_ = false;
};

/// One locale of the driver, as Qt has it.
struct LocaleRow {
  std::string_view name;
  std::string_view shortDatePattern;
  char decimalSign;
};
const std::vector<LocaleRow>& locales();

}  // namespace nascor::drive
