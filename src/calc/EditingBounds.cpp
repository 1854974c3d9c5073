#include "calc/EditingBounds.h"

#include "calc/Standards.h"

namespace nascor::calc {

EditingBounds plannedDeliveryDays(std::int64_t standard) {
  const GrowthStandard* chosen = growthStandard(standard);
  return {.least = -280.0, .greatest = chosen != nullptr ? chosen->lastDeliveryDay : kUsualLastDeliveryDay};
}

}  // namespace nascor::calc
