#include "foundation/DateText.h"

#include "foundation/ShortDate.h"

namespace nascor::foundation {

std::string shortDateText(const std::optional<Date>& date, const Calendar& calendar,
                          const Localizer& localizer) {
  const auto day = date ? localDay(*date, calendar) : std::nullopt;
  return day ? shortDateText(*day, localizer.shortDateForm()) : std::string();
}

}  // namespace nascor::foundation
