#include "foundation/LongDate.h"

#include <array>
#include <string_view>

namespace nascor::foundation {
namespace {

/// Day and year, so that each language puts them where they belong.
constexpr std::array<std::string_view, 12> kForms{
    translatable("CorvelDocument", "%ld January %ld"),   translatable("CorvelDocument", "%ld February %ld"),
    translatable("CorvelDocument", "%ld March %ld"),     translatable("CorvelDocument", "%ld April %ld"),
    translatable("CorvelDocument", "%ld May %ld"),       translatable("CorvelDocument", "%ld June %ld"),
    translatable("CorvelDocument", "%ld July %ld"),      translatable("CorvelDocument", "%ld August %ld"),
    translatable("CorvelDocument", "%ld September %ld"), translatable("CorvelDocument", "%ld October %ld"),
    translatable("CorvelDocument", "%ld November %ld"),  translatable("CorvelDocument", "%ld December %ld")};

}  // namespace

std::string longDateText(const CivilDay& day, const Localizer& localizer) {
  if (!isValid(day)) return {};
  return format(localizer.text("CorvelDocument", kForms.at(static_cast<std::size_t>(day.month) - 1)),
                {day.day, day.year});
}

}  // namespace nascor::foundation
