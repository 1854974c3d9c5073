#include "drive/Ports.h"

#include <algorithm>

#include "drive/UpperCase.h"

namespace nascor::drive {

const std::vector<LocaleRow>& locales() {
  static const std::vector<LocaleRow> rows{
      {"en_US", "M/d/yy", '.'},     {"en_GB", "dd/MM/yyyy", '.'}, {"en_AU", "d/M/yy", '.'},
      {"de_DE", "dd.MM.yy", ','},   {"fr_FR", "dd/MM/yyyy", ','}, {"sv_SE", "yyyy-MM-dd", ','},
      {"ja_JP", "yyyy/MM/dd", '.'},
  };
  return rows;
}

std::string StoryLocalizer::upperCased(std::string_view text) const { return drive::upperCased(text); }

bool StoryLocalizer::choose(std::string_view locale) {
  const auto row = std::ranges::find(locales(), locale, &LocaleRow::name);
  if (row == locales().end()) return false;
  form_.pattern = row->shortDatePattern;
  decimalSign_ = row->decimalSign;
  return true;
}

}  // namespace nascor::drive
