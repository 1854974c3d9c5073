#include "foundation/LongDate.h"

#include <array>
#include <string_view>

namespace nascor::foundation {
namespace {

/// Day and year, so that each language puts them where they belong.
constexpr std::array<std::string_view, 12> kForms{"%ld January %ld", "%ld February %ld", "%ld March %ld",
                                                  "%ld April %ld",   "%ld May %ld",      "%ld June %ld",
                                                  "%ld July %ld",    "%ld August %ld",   "%ld September %ld",
                                                  "%ld October %ld", "%ld November %ld", "%ld December %ld"};

}  // namespace

std::string longDateText(const CivilDay& day, const Localizer& localizer) {
  if (!isValid(day)) return {};
  return format(localizer, string_table::corvelDocument, kForms.at(static_cast<std::size_t>(day.month) - 1),
                {day.day, day.year});
}

}  // namespace nascor::foundation
