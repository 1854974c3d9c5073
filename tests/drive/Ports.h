#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/Localizer.h"

namespace nascor::drive {

/// English texts; dates, decimal sign and capital letters as a locale has them.
class StoryLocalizer final : public foundation::Localizer {
 public:
  std::string text(std::string_view, std::string_view key) const override { return std::string(key); }
  foundation::ShortDateForm shortDateForm() const override { return form_; }
  char decimalSign() const override { return decimalSign_; }
  std::string upperCased(std::string_view text) const override;

  /// False for a locale that is not in the table.
  bool choose(std::string_view locale);

 private:
  foundation::ShortDateForm form_{.pattern = "M/d/yy", .monthNames = {}};
  char decimalSign_ = '.';
};

/// One locale of the driver, as the toolkit has it.
struct LocaleRow {
  std::string_view name;
  std::string_view shortDatePattern;
  char decimalSign;
};
const std::vector<LocaleRow>& locales();

}  // namespace nascor::drive
