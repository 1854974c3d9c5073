#pragma once

#include <string>

#include "foundation/Calendar.h"
#include "foundation/Localizer.h"

namespace nascor::foundation {

/// `day` with its month in words and all digits of its year, "4 March 2027": it reads as one day everywhere. Empty when
/// `day` is not valid.
std::string longDateText(const CivilDay& day, const Localizer& localizer);

}  // namespace nascor::foundation
